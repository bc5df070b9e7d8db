#pragma once

#include <tuple>

#include "plugin_ui/Controls/StaticUIControl.h"
#include "plugin_ui/UIDialog.h"
#include "resources/ids.h"

namespace zent {

class AccountDialogUIFeature;
class CustomStringDialogUIFeature;
class JobNotesUIFeature;

/// A row of the table of dialogs. No two dialogs have the same root feature, so the root is the key
/// of its row, and a dialog without a row doesn't compile.
template <typename Root>
struct DialogRow : DialogFacts {};

inline constexpr std::tuple dialogTable{
    DialogRow<JobNotesUIFeature>{{.templateId = IDD_JOB_NOTES,
                                  .bindStockInformation = true,
                                  .okId = IDC_JOB_NOTES_OK,
                                  .cancelId = IDC_JOB_NOTES_CANCEL,
                                  .staticItem = IDC_JOB_NOTES_INTRODUCTION}},
    DialogRow<AccountDialogUIFeature>{{.templateId = IDD_ACCOUNT, .staticItem = IDC_ACCOUNT_GROUP}},
    DialogRow<CustomStringDialogUIFeature>{{.templateId = IDD_CUSTOM_VALUE}},
};

/// The row of a root feature, also for a dialog that puts its tree together by itself.
template <typename Root>
inline constexpr const DialogFacts& dialogFacts = std::get<DialogRow<Root>>(dialogTable);

/// A dialog as its row has it, with its root feature. The level of the ticket that it works on is
/// the root's.
template <typename Root>
class FeatureDialog : public UIDialog {
public:
    /// `arguments` are what the root takes after the configuration.
    template <typename... Arguments>
    explicit FeatureDialog(UIConfiguration& configuration, Arguments&&... arguments)
        : UIDialog(configuration, dialogFacts<Root>),
          m_root(makeChild<Root>(configuration, std::forward<Arguments>(arguments)...)) {
        if constexpr (constexpr auto item = dialogFacts<Root>.staticItem; item != 0) {
            makeChild<StaticUIControl>(item);
        }
    }

    Root& getRoot() { return m_root; }

private:
    Root& m_root;
};

using AccountUIDialog = FeatureDialog<AccountDialogUIFeature>;
using CustomStringUIDialog = FeatureDialog<CustomStringDialogUIFeature>;
using JobNotesUIDialog = FeatureDialog<JobNotesUIFeature>;

} // namespace zent
