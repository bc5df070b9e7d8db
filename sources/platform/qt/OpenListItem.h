#pragma once

#include <QListWidget>

#include "platform/qt/ChoiceItem.h"

namespace zent::platform::qt {

/// A list of texts that is open all the time; the item's widget is the list, or one around it.
class OpenListItem : public ChoiceItem {
public:
    int getCount() const override { return m_list.count(); }
    int getSelected() const override;
    void select(int index) override;
    void clear() override;
    void removeEntry(int index) override;
    QString entryText(int index) const override;
    void showEntryText(int index, const QString& text) override;
    std::uintptr_t getEntryValue(int index) const override;

protected:
    OpenListItem(Dialog& dialog, const DialogTemplate::Item& source, QWidget& widget,
                 QListWidget& list, bool isSorted);

    QListWidget& list() const { return m_list; }

private:
    void insert(int index, const QString& text, std::uintptr_t value) override;

    QListWidget& m_list;
};

} // namespace zent::platform::qt
