#include <algorithm>
#include <array>

#include "Command.h"
#include "Feature.h"
#include "Listing.h"
#include "Text.h"
#include "TicketFile.h"
#include "Value.h"

namespace jobticket {

namespace {

/// Whether a value has the text in one of its names.
bool hasValue(const Feature& feature, const std::string& pattern) {
    const std::vector<NamedValue> values = getNamedValues(feature);
    return std::ranges::any_of(values, [&](const NamedValue& value) {
        return containsIgnoringCase(value.name, pattern) ||
               containsIgnoringCase(value.displayName, pattern) ||
               containsIgnoringCase(getAlias(feature, value.name), pattern);
    });
}

std::vector<Feature> findFeatures(const std::string& pattern) {
    if (Feature::exists(pattern)) {
        return {Feature::named(pattern)};
    }
    std::vector<Feature> found;
    for (const Feature& feature : Feature::all()) {
        if (containsIgnoringCase(feature.getName(), pattern) ||
            containsIgnoringCase(feature.getDisplayName(), pattern) || hasValue(feature, pattern)) {
            found.push_back(feature);
        }
    }
    return found;
}

std::string kindOf(const Feature& feature) {
    return (feature.takesSeveral() ? "set of " : "") + feature.describeKind();
}

std::string listFeatures(const std::vector<Feature>& features) {
    std::vector<Row> rows;
    rows.reserve(features.size());
    for (const Feature& feature : features) {
        rows.push_back({feature.getName(), kindOf(feature), feature.getDisplayName()});
    }
    return layOut(rows);
}

/// The collections that hold the feature; empty if it lies in the ticket itself.
std::string locationOf(const Feature& feature) {
    return feature.standsInTicket() ? feature.getLocation() : "page-level features only";
}

std::string describe(const Feature& feature) {
    std::vector<Row> rows = {{"Feature", feature.getName()},
                             {"Name", feature.getDisplayName()},
                             {"Type", kindOf(feature)}};
    if (const std::string location = locationOf(feature); !location.empty()) {
        rows.push_back({"Lies in", location});
    }
    rows.push_back(
        {"Write", describeSyntax(feature) +
                      (feature.takesSeveral() && feature.getKind() != ValueKind::collection
                           ? "; several with commas between them"
                           : "")});
    std::string text = layOut(rows);
    rows.clear();
    for (const NamedValue& value : getNamedValues(feature)) {
        rows.push_back(
            {"  " + value.name, value.displayName, std::string(getAlias(feature, value.name))});
    }
    return text + (rows.empty() ? "" : "Values\n" + layOut(rows));
}

/// Number, name, type, set or single, location, name for people, and the values with their names.
std::vector<Row> makeTable(const std::vector<Feature>& features) {
    std::vector<Row> rows;
    for (const Feature& feature : features) {
        Row row = {std::to_string(feature.getNumber()),
                   feature.getName(),
                   feature.describeKind(),
                   feature.takesSeveral() ? "set" : "single",
                   locationOf(feature),
                   feature.getDisplayName()};
        for (const NamedValue& value : getNamedValues(feature)) {
            row.push_back(value.name + '=' + value.displayName);
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

Json toJson(const Feature& feature) {
    Json values = Json::array();
    for (const NamedValue& value : getNamedValues(feature)) {
        values.add(Json::object().add("value", value.name).add("text", value.displayName));
    }
    return Json::object()
        .add("number", static_cast<std::uint32_t>(feature.getNumber()))
        .add("feature", feature.getName())
        .add("name", feature.getDisplayName())
        .add("type", feature.describeKind())
        .add("set", feature.takesSeveral())
        .add("liesIn", locationOf(feature))
        .add("values", values);
}

Json makeJson(const std::vector<Feature>& features) {
    Json list = Json::array();
    for (const Feature& feature : features) {
        list.add(toJson(feature));
    }
    return Json::object().add("features", list);
}

ExitStatus listOrDescribe(const Options& options) {
    const std::vector<Feature> features = findFeatures(options.pattern);
    if (features.empty()) {
        Feature::named(options.pattern); // raises the error that suggests a name
    }
    const auto writeText = [&] {
        return features.size() == 1 ? describe(features.front()) : listFeatures(features);
    };
    printListing({.asJson = [&] { return makeJson(features); },
                  .asTable = [&] { return makeTable(features); },
                  .asText = writeText},
                 options);
    return ExitStatus::success;
}

constexpr std::array options = {
    Option{.names = "PATTERN",
           .operand = Operand::feature,
           .target = in<&Options::pattern>,
           .help = "A feature, to see all about it and its values; or a part of the names of those "
                   "to list, or of their values"},
    tableOption, jsonOption};

} // namespace

const Command featuresCommand = {"features", "List the features that a ticket may hold", options,
                                 listOrDescribe,
                                 "jobticket features halftone\n"
                                 "jobticket features finishings\n"
                                 "jobticket features staple\n"};

} // namespace jobticket
