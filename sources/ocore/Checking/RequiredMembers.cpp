#include "ocore/Checking/RequiredMembers.h"

#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent {

namespace {

struct RequiredMember {
    FeatureEnum collection;
    FeatureEnum member;
};

// Each of these collections is about one choice, and whatever else it holds only adds to that
// choice: how a job is saved, for instance, says nothing unless it is said that the job is saved.
constexpr RequiredMember requiredMembers[] = {
    {feature::jobSaveDisposition, feature::saveDisposition},
    {feature::formSave, feature::formSaveDisposition},
    {feature::formsCol, feature::formName}, // each member of the set
    {feature::separatorSheets, feature::separatorSheetsType},
    {feature::finishingsCol, feature::finishingTemplate},
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
