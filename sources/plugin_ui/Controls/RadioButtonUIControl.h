#pragma once

#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A group of any number of buttons, of which the user marks one.
class RadioButtonUIControl : public UIControl {
public:
    explicit RadioButtonUIControl(std::uint16_t firstButton) : UIControl(firstButton) {}

    void addButton(std::uint16_t item) { addItem(item); }
    /// Gives the item that is marked, 0 for none.
    std::uint16_t getCheckedId() const { return m_checkedId; }
    void setCheckedId(std::uint16_t item);

    bool processControlMessage(const DialogMessage& message, std::intptr_t& result) override;

protected:
    void showValue() override;
    void bindItems(const platform::Dialog& dialog) override;

private:
    bool isClickOnButton(const DialogMessage& message) const;

    std::uint16_t m_checkedId = 0;
    std::vector<platform::ButtonItem*> m_buttons; // while the dialog is open
};

} // namespace zent
