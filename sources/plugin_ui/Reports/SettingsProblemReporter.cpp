#include "plugin_ui/Reports/SettingsProblemReporter.h"

#include "ocore/Faults/TarvoException.h"
#include "ocore/Faults/Trace.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"
#include "plugin_ui/Reports/PrinterLimitationsDialog.h"
#include "plugin_ui/Reports/UserMessage.h"
#include "resources/ids.h"

namespace zent {

SettingsProblemReporter::SettingsProblemReporter(platform::WindowHandle owner,
                                                 const CXString& title, bool offersChoice,
                                                 std::uint32_t mode, std::uint32_t policy)
    : m_owner(owner), m_title(title), m_offersChoice(offersChoice), m_mode(mode), m_policy(policy) {
}

SettingsProblemReporter SettingsProblemReporter::forStock(platform::WindowHandle owner,
                                                          bool mayDecline) {
    // In this mode alone it is for the caller to say whether there is a choice.
    return {owner, ResourceLibrary().getString(IDS_STOCK_PROBLEM_TITLE), mayDecline,
            reportMode::silentKeep, problemPolicy::repair};
}

bool SettingsProblemReporter::isChoiceOffered() const {
    return m_offersChoice || m_mode != reportMode::silentKeep;
}

RepairWording SettingsProblemReporter::getWording() const {
    if (m_policy != problemPolicy::repair) {
        return RepairWording::none;
    }
    return isChoiceOffered() ? RepairWording::offered : RepairWording::made;
}

CXString SettingsProblemReporter::getLabel() const {
    const std::uint32_t question =
        m_mode == reportMode::reportKeep ? IDS_NOTHING_CHANGES : IDS_REPAIR_QUESTION;
    return ResourceLibrary().getString(isChoiceOffered() ? question : IDS_REPAIR_NOTICE);
}

std::uint32_t SettingsProblemReporter::report(const SettingsProblemList& problems,
                                              const Settings& defaults) const {
    if (problems.isEmpty()) {
        return m_policy;
    }
    const CXString text = RepairReport(problems, defaults).getText(getWording());
    platform::WindowSystem* const system = findWindowSystem();
    const bool isRefused =
        system != nullptr ? isRefusedInDialog(*system, text) : isRefusedInBox(text);
    return isRefused ? problemPolicy::keep : m_policy;
}

bool SettingsProblemReporter::isRefusedInDialog(platform::WindowSystem& system,
                                                const CXString& text) const {
    PrinterLimitationsDialog dialog(m_title, getLabel(), text, isChoiceOffered());
    const std::intptr_t answer = dialog.run(system, m_owner);
    if (answer != PrinterLimitationsDialog::agreed && answer != PrinterLimitationsDialog::refused) {
        trace::systemErrorText(platform::getLastError(), traceLevel::general);
    }
    return answer == PrinterLimitationsDialog::refused;
}

bool SettingsProblemReporter::isRefusedInBox(const CXString& text) const {
    const UserMessage message(m_owner, m_title, getLabel() + u"\r\n\r\n" + text,
                              isChoiceOffered() ? messageStyle::okCancel : 0,
                              UserMessage::Severity::warning);
    return message.show() == messageAnswer::cancel;
}

} // namespace zent
