#include "ProblemListing.h"

#include <algorithm>

#include "Listing.h"
#include "OfferJson.h"
#include "Text.h"

namespace jobticket {

namespace {

bool isNumber(const std::string& value) {
    return std::ranges::all_of(value, [](char c) { return c >= '0' && c <= '9'; });
}

/// Numbers that stand for something are told by name as well: "20 (Staple, top left)". A text that
/// two values have tells the number itself.
std::string withMeaning(const std::string& value, const std::string& shown) {
    const std::string text = shown.substr(0, shown.rfind(" (" + value + ")"));
    return isNumber(value) && !text.starts_with(value) ? value + " (" + text + ")" : value;
}

std::string describeValue(const std::optional<ShownValue>& value) {
    constexpr std::size_t longest = 48;
    if (!value) {
        return "(not set)";
    }
    return value->value.empty() ? "(empty)"
                                : shorten(withMeaning(value->value, value->text), longest);
}

std::string describeRepair(const Problem& problem) {
    std::string result = describeValue(problem.newValue);
    if (problem.repair == Repair::remove) {
        result = problem.removedPath == problem.path ? "removed" : problem.removedPath + " removed";
    }
    return describeValue(problem.value) + " -> " + result;
}

std::string toText(const Range& range) {
    const std::string lower = std::to_string(range.lower);
    return range.lower == range.upper
               ? lower
               : lower + (range.lower < 0 ? " to " : "-") + std::to_string(range.upper);
}

std::string describeRanges(const Offer& offer) {
    const char* const separator = offer.feature.getKind() == ValueKind::size ? " x " : ", ";
    std::string text;
    for (const Range& range : offer.ranges) {
        text += (text.empty() ? "" : separator) + toText(range);
    }
    return text;
}

/// The values that the printer has, the first few of many.
std::string describeValues(const Offer& offer) {
    constexpr std::size_t mostListed = 8;
    const std::size_t count = offer.values.size();
    std::string text;
    for (std::size_t index = 0; index < std::min(count, mostListed); ++index) {
        const NamedValue& value = offer.values[index];
        const std::string_view alias = getAlias(offer.feature, value.name);
        text += (index == 0 ? "" : ", ") +
                withMeaning(value.name, alias.empty() ? value.displayName : std::string(alias));
    }
    text += count > mostListed ? " and " + std::to_string(count - mostListed) + " more" : "";
    const std::string ranges = describeRanges(offer);
    return text + (text.empty() || ranges.empty() ? "" : ", or ") + ranges;
}

std::string describeOffer(const Problem& problem) {
    const std::string values = problem.offer ? describeValues(*problem.offer) : "";
    return values.empty() ? "no such value" : "allowed: " + values;
}

/// The limits are of a number or of a text's length.
std::string describeLimits(const Problem& problem) {
    const ValueKind kind = Feature::named(problem.feature).getKind(); // others have no limits
    const bool isNumber = kind == ValueKind::number || kind == ValueKind::range;
    return (isNumber ? "allowed: " : "length: ") + toText(*problem.limits);
}

/// What the printer takes instead.
std::string describeAllowed(const Problem& problem) {
    if (problem.rule == "out-of-range") {
        return describeLimits(problem);
    }
    if (problem.rule == "embedded-spaces") {
        return "no spaces";
    }
    if (problem.rule == "missing-feature") {
        return "required";
    }
    if (problem.rule == "unsupported-value") {
        return describeOffer(problem);
    }
    return problem.offer ? "no such feature there" : "no such feature";
}

Json describeRepairAsJson(const Problem& problem) {
    switch (problem.repair) {
    case Repair::remove:
        return Json::object().add("action", "remove").add("path", problem.removedPath);
    case Repair::replace:
        return Json::object().add("action", "replace").add("with", toJson(*problem.newValue));
    case Repair::add:
        return Json::object().add("action", "add").add("with", toJson(*problem.newValue));
    }
    return Json::object();
}

Json toJson(const Problem& problem) {
    Json json = Json::object();
    json.add("path", problem.path);
    json.add("feature", problem.feature);
    json.add("name", problem.name);
    json.add("rule", problem.rule);
    if (!problem.part.empty()) {
        json.add("part", problem.part);
    }
    if (problem.pages) {
        json.add("pages", toJson(*problem.pages));
    }
    if (problem.value) {
        json.add("found", toJson(*problem.value));
    }
    if (problem.limits) {
        json.add("limits", toJson(*problem.limits));
    }
    if (problem.offer) {
        json.add("allowed", toJson(*problem.offer));
    }
    return json.add("repair", describeRepairAsJson(problem));
}

Json toJson(const Omission& omission) {
    return Json::object()
        .add("path", omission.path)
        .add("feature", omission.feature)
        .add("name", omission.name)
        .add("rule", "not-in-stream")
        .add("found", toJson(omission.value));
}

template <typename Entry>
Json toJsonArray(const std::vector<Entry>& entries) {
    Json list = Json::array();
    for (const Entry& entry : entries) {
        list.add(toJson(entry));
    }
    return list;
}

} // namespace

std::string listProblems(const std::vector<Problem>& problems) {
    std::vector<std::vector<std::string>> rows;
    rows.reserve(problems.size());
    for (const Problem& problem : problems) {
        rows.push_back({problem.path, describeRepair(problem), describeAllowed(problem)});
    }
    return layOut(std::move(rows));
}

Json toJson(const std::vector<Problem>& problems) { return toJsonArray(problems); }

std::string listOmissions(const std::vector<Omission>& omissions) {
    if (omissions.empty()) {
        return "";
    }
    std::vector<std::vector<std::string>> rows;
    rows.reserve(omissions.size());
    for (const Omission& omission : omissions) {
        rows.push_back({"  " + omission.path, describeValue(omission.value)});
    }
    return "note: the printing instructions, a stream of comment lines, leave out " +
           std::to_string(omissions.size()) + (omissions.size() == 1 ? " setting" : " settings") +
           ":\n" + layOut(std::move(rows));
}

Json toJson(const std::vector<Omission>& omissions) { return toJsonArray(omissions); }

std::string describePrinterForPeople(const Offers& offers) {
    return offers.printer + ", " + offers.language;
}

} // namespace jobticket
