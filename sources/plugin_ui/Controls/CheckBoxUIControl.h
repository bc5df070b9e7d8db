#pragma once

#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A box with a mark, or without.
class CheckBoxUIControl : public UIControlOf<platform::ButtonItem> {
public:
    explicit CheckBoxUIControl(std::uint16_t item) : UIControlOf(item) {}

    bool isChecked() const { return m_isChecked; }
    void setChecked(bool isChecked);

    void setCaptionId(std::uint32_t stringId) override;
    void setControlCallBack() override { displayCaption(); }
    bool processControlMessage(const DialogMessage& message, std::intptr_t& result) override;

protected:
    void showValue() override;

private:
    void displayCaption();

    bool m_isChecked = false;
    std::uint32_t m_captionId = 0; // 0: as the template has it
};

} // namespace zent
