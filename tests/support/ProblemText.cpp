#include "support/ProblemText.h"

#include "ocore/Checking/FailedRangeCapability.h"
#include "ocore/Repair/RepairLocation.h"

namespace zent::test {

namespace {

std::string signOf(const SettingsProblem& problem) {
    switch (problem.getKind()) {
    case SettingsProblem::Kind::unsupportedAttribute:
        return "-";
    case SettingsProblem::Kind::unsupportedValue:
        return "*";
    case SettingsProblem::Kind::missingFeature:
        return "?";
    default:
        break;
    }
    const auto* const range = dynamic_cast<const FailedRangeCapability*>(&problem);
    return range == nullptr
               ? "_"
               : std::to_string(range->getLower()) + ".." + std::to_string(range->getUpper()) + ":";
}

} // namespace

std::string textOfProblems(const SettingsProblemList& problems) {
    std::string text;
    for (std::size_t i = 0; i < problems.getCount(); ++i) {
        const SettingsProblem& problem = problems.getProblem(i);
        text += (i == 0 ? "" : " ") + signOf(problem);
        text += makePathText(problem.getContext()).toNarrow();
    }
    return text;
}

} // namespace zent::test
