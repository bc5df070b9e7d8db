// What is done to the sheets once they are printed.

#include <algorithm>
#include <optional>

#include "ocore/Ajt/AjtGroups.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent::ajt {

namespace {

/// What the printer's own finisher does; empty where nothing is asked for.
struct Finishing {
    std::string_view binding;
    std::string_view stitching;
    std::string_view booklet;
};

/// By the numbers of the "finishings" attribute; nothing for one that the stream doesn't know.
std::optional<Finishing> findFinishing(std::int32_t finishing) {
    struct Row {
        std::int32_t number = 0;
        Finishing finishing;
    };
    static constexpr Row rows[] = {
        {3, {}}, // no finishing
        {13, {{}, {}, "True"}},
        {20, {{}, "SinglePortrait", {}}},
        {21, {{}, "SingleLandscape", {}}},
        {22, {{}, "RightSinglePortrait", {}}},
        {23, {{}, "RightSingleLandscape", {}}},
        {28, {{}, "DualLandscape", {}}},
        {29, {{}, "DualPortrait", {}}},
        {30, {{}, "RightDualLandscape", {}}},
        {31, {{}, "RightDualPortrait", {}}},
        {50, {"left", {}, {}}},
        {52, {"right", {}, {}}},
    };
    const auto* const found = std::ranges::find(rows, finishing, &Row::number);
    return found == std::end(rows) ? std::nullopt : std::optional(found->finishing);
}

/// A finishing template or slip sheets take the place of all other finishing.
Finishing writeOrGetFinishing(const Job& job, Output& output) {
    CXString finishingTemplate;
    std::int32_t finishing = 0;
    if (job.ticket.takeString(feature::finishingTemplate, &finishingTemplate)) {
        output << "%TRVoutputLocation: FinishingBypass " << finishingTemplate << "\n";
    } else if (job.ticket.getFeatureValue(feature::separatorSheetsType) != FeatureValue()) {
        job.ticket.take(feature::separatorSheetsType);
        output << "%TRVrequirements: slipSheeting\n";
    } else if (job.ticket.getSettings().getLong(_FI(feature::finishings), &finishing)) {
        if (const std::optional<Finishing> known = findFinishing(finishing)) {
            job.ticket.take(feature::finishings);
            return *known;
        }
    }
    return {};
}

void writeFinisher(const Job& job, std::string_view keyword, std::string_view text,
                   std::string_view none, Output& output) {
    if (!text.empty() || job.traits.explicitFinishingNone) {
        output << keyword << (text.empty() ? none : text) << "\n";
    }
}

} // namespace

void writeFinishing(const Job& job, Output& output) {
    const Finishing finishing = writeOrGetFinishing(job, output);
    writeFinisher(job, "%TRVbinding: ", finishing.binding, "None", output);
    writeFinisher(job, "%TRVedgeStitching: ", finishing.stitching, "None", output);
    writeFinisher(job, "%TRVbookletMaker: ", finishing.booklet, "False", output);
}

} // namespace zent::ajt
