#include "ocore/Checking/RequiredMembers.h"

namespace zent {

namespace {

constexpr FeatureEnum formSaveDisposition = 11;
constexpr FeatureEnum separatorSheetsType = 87;
constexpr FeatureEnum jobSaveDisposition = 125;
constexpr FeatureEnum formSave = 127;
constexpr FeatureEnum formsCol = 129;
constexpr FeatureEnum finishingsCol = 132;

struct RequiredMember {
    FeatureEnum collection;
    FeatureEnum member;
};

// Each of these collections is about one choice, and whatever else it holds only adds to that
// choice: how a job is saved, for instance, says nothing unless it is said that the job is saved.
constexpr RequiredMember requiredMembers[] = {
    {jobSaveDisposition, feature::saveDisposition},
    {formSave, formSaveDisposition},
    {formsCol, feature::formName}, // each member of the set
    {feature::separatorSheets, separatorSheetsType},
    {finishingsCol, feature::finishingTemplate},
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
