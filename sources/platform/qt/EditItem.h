#pragma once

#include "platform/DialogItems.h"
#include "platform/InputRule.h"
#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// A text that the user can change: of one line, or of several.
class EditItem : public Item, public TextItem {
public:
    static std::unique_ptr<Item> make(Dialog& dialog, const DialogTemplate::Item& source);

    bool setFilter(const CharacterFilter& filter) override {
        m_rule.filter = filter;
        return true;
    }
    void setLimit(std::uint32_t units) override;
    void leaveFocus() override;

protected:
    EditItem(Dialog& dialog, const DialogTemplate::Item& source, QWidget& widget);

    const InputRule& rule() const { return m_rule; }
    void tellChanged();
    Qt::Alignment alignment() const;

private:
    InputRule m_rule;
};

} // namespace zent::platform::qt
