// Whether a job is printed or saved, and where to.

#include "ocore/AnlXlate/AjtGroups.h"
#include "ocore/AnlXlate/AjtValues.h"

namespace zent::ajt {

namespace {

void writeDestination(const Job& job, Output& output) {
    CXString name;
    if (job.settings.getString(_FI(feature::saveName), &name)) {
        output << (job.traits.unixDestination ? "%TRVdestination: UNIX:" : "%TRVdestination: DOS:")
               << name << "\n";
    }
}

} // namespace

void writeDisposition(const Job& job, Output& output) {
    switch (job.settings.getFeatureValue(_FI(feature::saveDisposition)).getValue()) {
    case FeatureValue::unspecified:
    case value::saveNone:
        output << "%TRVdisposition: PRINT\n";
        break;
    case value::saveOnly:
        output << "%TRVdisposition: SAVE\n";
        writeDestination(job, output);
        break;
    case value::printSave:
        output << "%TRVdisposition: PRINT&SAVE\n";
        writeDestination(job, output);
        break;
    default:
        break;
    }
}

} // namespace zent::ajt
