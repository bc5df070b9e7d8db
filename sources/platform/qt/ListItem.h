#pragma once

#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// An item that holds a list of texts, each with a value, one of them selected.
class ListItem : public Item {
public:
    virtual int count() const = 0;
    /// -1 for none.
    virtual int selected() const = 0;
    virtual void select(int index) = 0;
    virtual void clear() = 0;
    /// At -1, at the end, or where the order of a sorted list puts it. Gives the index.
    int add(const QString& text, std::uintptr_t value, int position);
    virtual void remove(int index) = 0;
    virtual QString entryText(int index) const = 0;
    virtual void setEntryText(int index, const QString& text) = 0;
    virtual std::uintptr_t entryValue(int index) const = 0;

protected:
    ListItem(Dialog& dialog, const DialogTemplate::Item& source, QWidget& widget, bool isSorted)
        : Item(dialog, source, widget), m_isSorted(isSorted) {}

    bool isIndex(int index) const { return index >= 0 && index < count(); }
    virtual void insert(int index, const QString& text, std::uintptr_t value) = 0;

private:
    int findPlace(const QString& text) const;

    bool m_isSorted;
};

} // namespace zent::platform::qt
