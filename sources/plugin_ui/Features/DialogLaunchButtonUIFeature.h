#pragma once

#include "plugin_ui/Controls/PushButtonUIControl.h"
#include "plugin_ui/Features/UIFeature.h"
#include "plugin_ui/UIDialog.h"

namespace zent {

/// A button that opens a dialog on the same settings. The dialog is a component but no child, so
/// that component messages reach it and messages of this window don't.
class DialogLaunchButtonUIFeature : public UIFeature {
public:
    /// Makes no button. A subclass makes its own control, and attaches this to it.
    DialogLaunchButtonUIFeature(UIConfiguration& configuration, std::unique_ptr<UIDialog> dialog);
    /// `toolTipId` is a resource string, 0 for none.
    DialogLaunchButtonUIFeature(UIConfiguration& configuration, std::unique_ptr<UIDialog> dialog,
                                std::uint16_t buttonId, std::uint32_t toolTipId = 0);
    /// Takes a dialog that belongs to someone else and must outlive this.
    DialogLaunchButtonUIFeature(UIConfiguration& configuration, UIDialog& dialog,
                                std::uint16_t buttonId, std::uint32_t toolTipId = 0);

    /// A button whose dialog would be empty goes with it.
    bool isSupported() override;
    void updateFeatureWithNewSettings() override {}
    void handleSubjectUpdate(std::uint16_t subjectId) override;
    void setParentFeature(FeatureEnum feature) override;
    void setPrinterDefault(FeatureSettings& settings) override;
    /// A dialog that is opened while this one is locked opens locked.
    bool onLock(const DialogMessage& message, std::intptr_t& result) override;
    bool onUnlock(const DialogMessage& message, std::intptr_t& result) override;

    UIDialog& getDialog() { return m_dialog; }

private:
    void addButton(std::uint16_t buttonId, std::uint32_t toolTipId);

    std::unique_ptr<UIDialog> m_ownedDialog; // null if it isn't owned
    UIDialog& m_dialog;
};

} // namespace zent
