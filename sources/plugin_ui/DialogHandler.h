#pragma once

#include "ocore/FeatureSettings/FeatureSettings.h"
#include "plugin_ui/ConfigurableUIComponent.h"

namespace zent {

/// The one procedure of all dialogs. It turns each event into a DialogMessage, passes it down the
/// tree whose root it is, and lets no exception out into the toolkit. What the tree edits is a
/// working copy of the caller's settings, so that Cancel has nothing to undo.
class DialogHandler : public ConfigurableUIComponent, public platform::DialogProcedure {
public:
    /// `bindStockInformation` says whether stocks are counted in the working copy.
    DialogHandler(UIConfiguration& configuration, bool bindStockInformation)
        : ConfigurableUIComponent(configuration), m_bindStockInformation(bindStockInformation) {}

    /// Exceptions of the library and the standard are shown to the user, and the event is over; any
    /// other leaves only if the user wants to stop. A validation that fails is a refusal. At the
    /// dialog's start one failure is shown, and the rest of the start still happens.
    bool processEvent(platform::Dialog& dialog, std::uint32_t message, std::uintptr_t wParam,
                      std::intptr_t lParam, std::intptr_t& result) override;

    /// Is called when the window is there and the tree hasn't heard of it yet.
    virtual void onDialogCreated(platform::Dialog& /*dialog*/) {}
    /// Is called when the tree is ready and nothing is shown yet.
    virtual void onDialogReady(platform::Dialog& /*dialog*/) {}
    /// Makes the configuration as read-only again as it was at the start.
    bool onDestroy(const DialogMessage& message, std::intptr_t& result) override;
    /// Copies the working settings over the caller's.
    virtual void commitSettings();

    FeatureSettings& workingSettings() { return m_workingSettings; }

protected:
    /// Takes a fresh working copy. The target must outlive the dialog's run.
    void setTarget(FeatureSettings& settings);

private:
    void startTree(platform::Dialog& dialog, std::intptr_t& result);

    FeatureSettings* m_targetSettings = nullptr;
    FeatureSettings m_workingSettings;
    bool m_bindStockInformation;
    bool m_startedReadOnly = false;
};

} // namespace zent
