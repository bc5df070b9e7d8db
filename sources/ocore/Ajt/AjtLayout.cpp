// Which pages of a job are printed how often, and how they lie on the sheets.

#include "ocore/Ajt/AjtGroups.h"
#include "ocore/Ajt/AjtWords.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent::ajt {

namespace {

void writeWord(std::string_view keyword, std::string_view word, Output& output) {
    if (!word.empty()) {
        output << keyword << word << "\n";
    }
}

void writeShift(const Job& job, std::string_view keyword, FeatureEnum feature, Output& output) {
    std::int32_t shift = 0;
    if (job.ticket.takeLong(feature, &shift)) {
        output << keyword << inMillimetres(shift) << "\n";
    }
}

} // namespace

void writeSignature(const Job& job, Output& output) {
    static constexpr Word words[] = {
        {value::impositionSignature, "True"},
        {value::impositionNone, "False"},
        {FeatureValue::unspecified, "False"}, // where the line is wanted in any case
    };
    const auto table = std::span(words).first(job.traits.signatureSizeSwap ? 3 : 2);
    writeWord("%TRVsignature: ", job.ticket.takeWord(feature::impositionTemplate, table), output);
}

void writeCopyCount(const Job& job, Output& output) {
    std::int32_t copies = 0;
    if (job.ticket.takeLong(feature::copies, &copies)) {
        output << "%TRVcopyCount: " << copies << "\n";
    }
}

void writePagesToPrint(const Job& job, Output& output) {
    std::int32_t first = 0;
    std::int32_t last = 0;
    if (job.ticket.takeRange(feature::pageRanges, &first, &last)) {
        output << "%TRVpagesToPrint: " << first << " " << last << "\n";
    }
}

void writePlex(const Job& job, Output& output) {
    writeWord("%TRVrequirements: ", job.ticket.takePlexWord(), output);
}

void writeCollation(const Job& job, Output& output) {
    static constexpr Word words[] = {
        {value::collated, "collated"},
        {value::uncollated, "uncollated"},
    };
    writeWord("%TRVrequirements: ", job.ticket.takeWord(feature::sheetCollate, words), output);
}

void writeRotation(const Job& job, Output& output) {
    writeWord("%TRVrotation: ", job.ticket.takeRotationWord(), output);
}

void writeImageShifts(const Job& job, Output& output) {
    writeShift(job, "%TRVxImageShift: ", feature::xSide1ImageShift, output);
    writeShift(job, "%TRVyImageShift: ", feature::ySide1ImageShift, output);
    if (job.ticket.getFeatureValue(feature::sides).getValue() == value::oneSided) {
        // The second side isn't printed, so that the stream leaves nothing out: its shifts count as
        // written.
        job.ticket.take(feature::xSide2ImageShift);
        job.ticket.take(feature::ySide2ImageShift);
        return;
    }
    writeShift(job, "%TRVx2ImageShift: ", feature::xSide2ImageShift, output);
    writeShift(job, "%TRVy2ImageShift: ", feature::ySide2ImageShift, output);
}

} // namespace zent::ajt
