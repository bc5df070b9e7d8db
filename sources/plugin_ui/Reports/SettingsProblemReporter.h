#pragma once

#include <cstdint>

#include "ocore/Repair/RepairReport.h"
#include "platform/System.h"

namespace zent::platform {
class WindowSystem;
}

namespace zent {

/// What becomes of a ticket with problems. The numbers are those of the interface.
namespace problemPolicy {
constexpr std::uint32_t repair = 1;
constexpr std::uint32_t keep = 2;
} // namespace problemPolicy

/// How problems are reported. The numbers are those of the interface.
namespace reportMode {
constexpr std::uint32_t silentRepair = 1;
constexpr std::uint32_t silentKeep = 2;
constexpr std::uint32_t reportRepair = 3;
constexpr std::uint32_t reportKeep = 4;
constexpr std::uint32_t reportChoice = 5;
} // namespace reportMode

/// Tells the user of a ticket's problems, and decides what becomes of it.
class SettingsProblemReporter {
public:
    /// Without a report: the policy is the answer.
    explicit SettingsProblemReporter(std::uint32_t policy);
    /// With a report. The user's refusal outdoes the policy; `offersChoice` is whether there is
    /// anything to refuse, which in other modes than silentKeep there always is.
    SettingsProblemReporter(platform::WindowHandle owner, const CXString& title, bool offersChoice,
                            std::uint32_t mode, std::uint32_t policy);
    virtual ~SettingsProblemReporter() = default;

    bool isSilent() const { return !m_isReporting; }
    /// A problemPolicy. `defaults` are the printer's default settings, from which repairs take
    /// their values.
    std::uint32_t report(const SettingsProblemList& problems, const Settings& defaults) const;

protected:
    SettingsProblemReporter(const SettingsProblemReporter&) = default;
    SettingsProblemReporter& operator=(const SettingsProblemReporter&) = default;

private:
    bool isChoiceOffered() const;
    RepairWording getWording() const;
    /// What introduces the report.
    CXString getLabel() const;
    bool isRefusedInDialog(platform::WindowSystem& system, const CXString& text) const;
    /// Where no dialog can be shown.
    bool isRefusedInBox(const CXString& text) const;

    bool m_isReporting;
    std::uint32_t m_mode;
    CXString m_title;
    platform::WindowHandle m_owner = nullptr;
    bool m_offersChoice = false;
    std::uint32_t m_policy;
};

} // namespace zent
