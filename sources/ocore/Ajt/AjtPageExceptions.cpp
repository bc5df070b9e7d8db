// Pages that are printed in another manner than the job.

#include "ocore/Ajt/AjtGroups.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent::ajt {

namespace {

/// The shifts of the two sides in one direction. An entry that shifts the second side alone is
/// compared with the first side of the entry before, which is why that number outlives its entry.
struct SideShifts {
    std::string_view keyword;
    FeatureEnum firstFeature;
    FeatureEnum secondFeature;
    std::int32_t first = 0;
};

class PageExceptions {
public:
    PageExceptions(const Job& job, Output& output) : m_job(job), m_output(output) {
        if (job.traits.fullPageExceptions) {
            m_mediumKeyword = "%TRVpageExceptions: ";
            m_plex = orDefault(job.ticket.takePlexWord(), "simplex");
            m_rotation = orDefault(job.ticket.takeRotationWord(), "0");
        }
    }

    void write(const TicketReader& entry) {
        std::int32_t first = 0;
        std::int32_t last = 0;
        if (!entry.takeRange(feature::pages, &first, &last)) {
            return;
        }
        entry.takeAsUnderstood(feature::inputDocuments, 1, 1); // the one that the stream goes with
        m_range = std::to_string(first) + ' ' + std::to_string(last) + ' ';
        m_output << m_mediumKeyword << m_range;
        writeDescription(Paper(entry, m_job.traits), m_job.paper, m_job.traits, m_output);
        m_output << "\n";
        writeWord("%TRVpageExceptions-plex: ", orDefault(entry.takePlexWord(), m_plex));
        writeWord("%TRVpageExceptions-rotation: ", orDefault(entry.takeRotationWord(), m_rotation));
        writeShifts(entry, m_xShifts);
        writeShifts(entry, m_yShifts);
    }

private:
    static std::string_view orDefault(std::string_view word, std::string_view otherwise) {
        return word.empty() ? otherwise : word;
    }

    void writeWord(std::string_view keyword, std::string_view word) {
        if (!word.empty()) {
            m_output << keyword << m_range << word << "\n";
        }
    }

    void writeShifts(const TicketReader& entry, SideShifts& shifts) {
        std::int32_t second = 0;
        const bool hasFirst = entry.takeLong(shifts.firstFeature, &shifts.first);
        const bool hasSecond = entry.getSettings().getLong(_FI(shifts.secondFeature), &second);
        const bool isSame = hasSecond && second == shifts.first;
        if (hasFirst) {
            writeShift(shifts.keyword, shifts.first, isSame ? " ALL\n" : " ODD\n");
        }
        if (hasFirst || !isSame) {
            entry.take(shifts.secondFeature);
        }
        if (hasSecond && !isSame) {
            writeShift(shifts.keyword, second, " EVEN\n");
        }
    }

    void writeShift(std::string_view keyword, std::int32_t shift, std::string_view pages) {
        m_output << keyword << m_range << inMillimetres(shift) << pages;
    }

    const Job& m_job;
    Output& m_output;
    std::string_view m_mediumKeyword = "%TRVpageExceptions-medium: ";
    std::string_view m_plex; // of an entry that has none; empty for no line
    std::string_view m_rotation;
    std::string m_range;
    SideShifts m_xShifts{"%TRVpageExceptions-xShift: ", feature::xSide1ImageShift,
                         feature::xSide2ImageShift};
    SideShifts m_yShifts{"%TRVpageExceptions-yShift: ", feature::ySide1ImageShift,
                         feature::ySide2ImageShift};
};

} // namespace

void writePageExceptions(const Job& job, Output& output) {
    PageExceptions exceptions(job, output);
    job.ticket.visitNested(feature::pageOverrides,
                           [&](const TicketReader& entry) { exceptions.write(entry); });
}

} // namespace zent::ajt
