#pragma once

#include "platform/DialogItems.h"
#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// What combo boxes and list boxes have in common.
class ChoiceItem : public Item, public platform::ChoiceItem {
public:
    int add(std::u16string_view text, std::uintptr_t value, int position) override;
    std::u16string getEntryText(int index) const override;
    void setEntryText(int index, std::u16string_view text) override;

protected:
    ChoiceItem(Dialog& dialog, const DialogTemplate::Item& source, QWidget& widget, bool isSorted)
        : Item(dialog, source, widget), m_isSorted(isSorted) {}

    bool isIndex(int index) const { return index >= 0 && index < getCount(); }
    virtual QString entryText(int index) const = 0;
    virtual void showEntryText(int index, const QString& text) = 0;
    virtual void insert(int index, const QString& text, std::uintptr_t value) = 0;

private:
    int findPlace(const QString& text) const;

    bool m_isSorted;
};

} // namespace zent::platform::qt
