// Whether a job is printed or saved, and where to.

#include "ocore/Ajt/AjtGroups.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent::ajt {

namespace {

void writeDestination(const Job& job, Output& output) {
    CXString name;
    if (job.ticket.takeString(feature::saveName, &name)) {
        output << (job.traits.unixDestination ? "%TRVdestination: UNIX:" : "%TRVdestination: DOS:")
               << name << "\n";
    }
}

} // namespace

void writeDisposition(const Job& job, Output& output) {
    constexpr std::string_view printOnly = "PRINT";
    static constexpr Word words[] = {
        {FeatureValue::unspecified, printOnly},
        {value::saveNone, printOnly},
        {value::saveOnly, "SAVE"},
        {value::printSave, "PRINT&SAVE"},
    };
    const std::string_view word = job.ticket.takeWord(feature::saveDisposition, words);
    if (word.empty()) {
        return;
    }
    output << "%TRVdisposition: " << word << "\n";
    if (word != printOnly) {
        writeDestination(job, output);
    }
}

} // namespace zent::ajt
