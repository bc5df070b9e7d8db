// The sheets that a job has besides its pages, and those that begin a chapter.

#include "ocore/Ajt/AjtGroups.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent::ajt {

namespace {

void writePaperOf(const TicketReader& sheets, const Job& job, Output& output) {
    writeDescription(Paper(sheets, job.traits), job.paper, job.traits, output);
}

/// `sides` says which side of a cover lies outside: the front of the front cover, but the back of
/// the back cover.
void writeCover(const Job& job, std::string_view keyword, FeatureEnum feature,
                std::span<const Word> sides, Output& output) {
    const TicketReader cover = job.ticket.getNested(feature);
    if (cover.getSettings().isEmpty()) {
        return;
    }
    const std::string_view printed = findWord(sides, cover.getFeatureValue(feature::coverType));
    cover.take(feature::coverType);
    output << keyword << (printed.empty() ? "noImage" : printed) << " ";
    writePaperOf(cover, job, output);
    output << "\n";
}

void writeInsert(const TicketReader& insert, const Job& job, Output& output) {
    std::int32_t page = 0;
    std::int32_t count = 1;
    if (!insert.takeLong(feature::insertAfterPageNumber, &page)) {
        return;
    }
    insert.takeLong(feature::insertCount, &count);
    output << "%TRVblankPageInserts: " << page << " " << count << " ";
    writePaperOf(insert, job, output);
    output << "\n";
}

} // namespace

void writeChapterHints(const Job& job, Output& output) {
    for (const std::int32_t page : job.ticket.takeLongs(feature::forceFrontSide)) {
        output << "%TRVchapterStartHint: " << page << "\n";
    }
}

void writeCovers(const Job& job, Output& output) {
    static constexpr Word frontSides[] = {
        {value::printFront, "outsideOnly"},
        {value::printBack, "insideOnly"},
        {value::printBoth, "both"},
    };
    static constexpr Word backSides[] = {
        {value::printFront, "insideOnly"},
        {value::printBack, "outsideOnly"},
        {value::printBoth, "both"},
    };
    writeCover(job, "%TRVcover-front: ", feature::coverFront, frontSides, output);
    writeCover(job, "%TRVcover-back: ", feature::coverBack, backSides, output);
}

void writeBlankPageInserts(const Job& job, Output& output) {
    job.ticket.visitNested(feature::insertSheet,
                           [&](const TicketReader& insert) { writeInsert(insert, job, output); });
}

} // namespace zent::ajt
