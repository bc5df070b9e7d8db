#pragma once

#include <cstdint>

#include "ocore/Repair/ProblemReporter.h"
#include "ocore/Repair/RepairReport.h"
#include "platform/System.h"

namespace zent::platform {
class WindowSystem;
}

namespace zent {

/// How problems are reported. The numbers are those of the interface.
namespace reportMode {
constexpr std::uint32_t silentRepair = 1;
constexpr std::uint32_t silentKeep = 2;
constexpr std::uint32_t reportRepair = 3;
constexpr std::uint32_t reportKeep = 4;
constexpr std::uint32_t reportChoice = 5;
} // namespace reportMode

/// Tells the user of a ticket's problems, and decides what becomes of it.
class SettingsProblemReporter final : public ProblemReporter {
public:
    /// The user's refusal outdoes the policy; `offersChoice` is whether there is anything to
    /// refuse, which in other modes than silentKeep there always is.
    SettingsProblemReporter(platform::WindowHandle owner, const CXString& title, bool offersChoice,
                            std::uint32_t mode, std::uint32_t policy);
    /// Reports on a stock that the user has described, under a title of its own.
    static SettingsProblemReporter forStock(platform::WindowHandle owner, bool mayDecline);

    bool isSilent() const override { return false; }
    std::uint32_t report(const SettingsProblemList& problems,
                         const Settings& defaults) const override;

private:
    bool isChoiceOffered() const;
    RepairWording getWording() const;
    /// Gives the sentence that introduces the report.
    CXString getLabel() const;
    bool isRefusedInDialog(platform::WindowSystem& system, const CXString& text) const;
    /// Asks where no dialog can be shown.
    bool isRefusedInBox(const CXString& text) const;

    platform::WindowHandle m_owner;
    CXString m_title;
    bool m_offersChoice;
    std::uint32_t m_mode;
    std::uint32_t m_policy;
};

} // namespace zent
