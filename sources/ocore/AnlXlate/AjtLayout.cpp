// Which pages of a job are printed how often, and how they lie on the sheets.

#include "ocore/AnlXlate/AjtGroups.h"
#include "ocore/AnlXlate/AjtWords.h"

namespace zent::ajt {

namespace {

void writeWord(std::string_view keyword, std::string_view word, Output& output) {
    if (!word.empty()) {
        output << keyword << word << "\n";
    }
}

void writeShift(const Job& job, std::string_view keyword, FeatureEnum feature, Output& output) {
    std::int32_t shift = 0;
    if (job.settings.getLong(_FI(feature), &shift)) {
        output << keyword << inMillimetres(shift) << "\n";
    }
}

} // namespace

void writeSignature(const Job& job, Output& output) {
    switch (job.settings.getFeatureValue(_FI(feature::impositionTemplate)).getValue()) {
    case value::impositionSignature:
        output << "%TRVsignature: True\n";
        break;
    case value::impositionNone:
        output << "%TRVsignature: False\n";
        break;
    case FeatureValue::unspecified:
        output << (job.traits.signatureSizeSwap ? "%TRVsignature: False\n" : "");
        break;
    default:
        break;
    }
}

void writeCopyCount(const Job& job, Output& output) {
    std::int32_t copies = 0;
    if (job.settings.getLong(_FI(feature::copies), &copies)) {
        output << "%TRVcopyCount: " << copies << "\n";
    }
}

void writePagesToPrint(const Job& job, Output& output) {
    std::int32_t first = 0;
    std::int32_t last = 0;
    if (job.settings.getRange(_FI(feature::pageRanges), &first, &last)) {
        output << "%TRVpagesToPrint: " << first << " " << last << "\n";
    }
}

void writePlex(const Job& job, Output& output) {
    writeWord("%TRVrequirements: ", getPlexWord(job.settings), output);
}

void writeCollation(const Job& job, Output& output) {
    static constexpr Word words[] = {
        {value::collated, "collated"},
        {value::uncollated, "uncollated"},
    };
    writeWord("%TRVrequirements: ",
              findWord(words, job.settings.getFeatureValue(_FI(feature::sheetCollate))), output);
}

void writeRotation(const Job& job, Output& output) {
    writeWord("%TRVrotation: ", getRotationWord(job.settings), output);
}

void writeImageShifts(const Job& job, Output& output) {
    writeShift(job, "%TRVxImageShift: ", feature::xSide1ImageShift, output);
    writeShift(job, "%TRVyImageShift: ", feature::ySide1ImageShift, output);
    if (job.settings.getFeatureValue(_FI(feature::sides)).getValue() != value::oneSided) {
        writeShift(job, "%TRVx2ImageShift: ", feature::xSide2ImageShift, output);
        writeShift(job, "%TRVy2ImageShift: ", feature::ySide2ImageShift, output);
    }
}

} // namespace zent::ajt
