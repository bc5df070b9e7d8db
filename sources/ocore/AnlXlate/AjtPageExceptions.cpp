// Pages that are printed in another manner than the job.

#include "ocore/AnlXlate/AjtGroups.h"
#include "ocore/AnlXlate/AjtWords.h"

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
            m_plex = orDefault(getPlexWord(job.settings), "simplex");
            m_rotation = orDefault(getRotationWord(job.settings), "0");
        }
    }

    void write(const FeatureSettings& entry) {
        std::int32_t first = 0;
        std::int32_t last = 0;
        if (!entry.getRange(_FI(feature::pages), &first, &last)) {
            return;
        }
        m_range = std::to_string(first) + ' ' + std::to_string(last) + ' ';
        m_output << m_mediumKeyword << m_range;
        writeDescription(Paper(entry, m_job.traits), m_job.paper, m_job.traits, m_output);
        m_output << "\n";
        writeWord("%TRVpageExceptions-plex: ", orDefault(getPlexWord(entry), m_plex));
        writeWord("%TRVpageExceptions-rotation: ", orDefault(getRotationWord(entry), m_rotation));
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

    void writeShifts(const FeatureSettings& entry, SideShifts& shifts) {
        std::int32_t second = 0;
        const bool hasFirst = entry.getLong(_FI(shifts.firstFeature), &shifts.first);
        const bool hasSecond = entry.getLong(_FI(shifts.secondFeature), &second);
        const bool isSame = hasSecond && second == shifts.first;
        if (hasFirst) {
            writeShift(shifts.keyword, shifts.first, isSame ? " ALL\n" : " ODD\n");
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
    job.settings.visitNestedSettings(
        _FI(feature::pageOverrides),
        [&](const FeatureSettings& entry) { exceptions.write(entry); });
}

} // namespace zent::ajt
