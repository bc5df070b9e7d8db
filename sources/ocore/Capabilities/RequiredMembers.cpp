#include "ocore/Capabilities/RequiredMembers.h"

namespace zent {

namespace {

struct RequiredMember {
    FeatureEnum collection;
    FeatureEnum member;
};

// Each of these collections is about one choice, and whatever else it holds only adds to that
// choice: how a job is saved, for instance, says nothing unless it is said that the job is saved.
constexpr RequiredMember requiredMembers[] = {
    {125, feature::saveDisposition},   // job-save-disposition
    {127, 11},                         // form-save: form-save-disposition
    {129, feature::formName},          // each member of forms-col
    {feature::separatorSheets, 87},    // separator-sheets-type
    {132, feature::finishingTemplate}, // finishings-col
};

} // namespace

FeatureEnum getRequiredMember(FeatureEnum collection) {
    for (const RequiredMember& row : requiredMembers) {
        if (row.collection == collection) {
            return row.member;
        }
    }
    return TJTF_ANY;
}

} // namespace zent
