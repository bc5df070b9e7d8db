#pragma once

#include "platform/InputRule.h"
#include "platform/qt/Item.h"

namespace zent::platform::qt {

/// A text that the user can change: of one line, or of several.
class EditItem : public Item {
public:
    static std::unique_ptr<Item> make(Dialog& dialog, const DialogTemplate::Item& source);

    void setFilter(CharacterFilter filter) { m_rule.filter = std::move(filter); }
    /// 0 for none.
    void setLimit(std::uint32_t units);
    /// Positions count a line end of several lines as two, as the text of the port has it; an `end`
    /// of -1 stands for the end of the text.
    virtual void select(std::int32_t start, std::int32_t end) = 0;
    virtual void setTransparent() = 0;
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
