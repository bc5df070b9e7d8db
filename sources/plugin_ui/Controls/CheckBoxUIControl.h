#pragma once

#include "plugin_ui/Controls/UIControl.h"

namespace zent {

/// A box that the user ticks or leaves empty.
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
    std::uint32_t m_captionId = 0; // with 0 the caption is the template's
};

} // namespace zent
