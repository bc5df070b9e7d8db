#pragma once

#include <cstdint>

#include "ocore/Checking/SettingsProblemList.h"

namespace zent {

/// What becomes of a ticket with problems. The numbers are those of the interface.
namespace problemPolicy {
constexpr std::uint32_t repair = 1;
constexpr std::uint32_t keep = 2;
} // namespace problemPolicy

/// Asks before a repair: shows the problems and decides what becomes of the ticket.
class ProblemReporter {
public:
    virtual ~ProblemReporter() = default;

    /// Whether nobody is asked, so that the repair can't be refused.
    virtual bool isSilent() const = 0;
    /// Reports the problems, and gives a problemPolicy. `defaults` are the printer's default
    /// settings, from which repairs take their values.
    virtual std::uint32_t report(const SettingsProblemList& problems,
                                 const Settings& defaults) const = 0;

protected:
    ProblemReporter() = default;
    ProblemReporter(const ProblemReporter&) = default;
    ProblemReporter& operator=(const ProblemReporter&) = default;
};

/// Asks nobody: the policy is the answer.
class SilentReporter final : public ProblemReporter {
public:
    explicit SilentReporter(std::uint32_t policy) : m_policy(policy) {}

    bool isSilent() const override { return true; }
    std::uint32_t report(const SettingsProblemList& /*problems*/,
                         const Settings& /*defaults*/) const override {
        return m_policy;
    }

private:
    std::uint32_t m_policy;
};

} // namespace zent
