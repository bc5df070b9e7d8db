// The check is the library's own; what is added here is what a person needs to act on a problem: a
// path to type, and what the printer takes instead.

#include "TicketCheck.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "Assignment.h"
#include "Listing.h"
#include "Offers.h"
#include "Outline.h"
#include "Text.h"
#include "ocore/Ajt/TarvoAjtTranslator.h"
#include "ocore/Checking/SettingsValidator.h"
#include "ocore/Faults/TarvoException.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/Printer/NonDriverBasedPrinter.h"
#include "ocore/Repair/RepairReport.h"
#include "ocore/Repair/SettingsProblemFixer.h"
#include "zent27.h"

namespace jobticket {

namespace {

using zent::ProblemRule;
using zent::RepairAction;
using zent::RepairEntry;

/// The offers by feature, which the problems of a feature share. The offer of a size also has the
/// ranges of its two edges.
using OfferMap = std::map<zent::FeatureEnum, std::shared_ptr<const Offer>>;

OfferMap mapOffers(const Offers& offers) {
    OfferMap map;
    for (const Offer& offer : offers.features) {
        map[offer.feature.getNumber()] = std::make_shared<const Offer>(offer);
    }
    if (const auto size = map.find(zent::feature::mediaSize); size != map.end()) {
        Offer whole = *size->second;
        for (const auto edge : {zent::feature::xDimension, zent::feature::yDimension}) {
            if (const auto found = map.find(edge); found != map.end()) {
                const std::vector<Range>& ranges = found->second->ranges;
                whole.ranges.insert(whole.ranges.end(), ranges.begin(), ranges.end());
            }
        }
        size->second = std::make_shared<const Offer>(std::move(whole));
    }
    return map;
}

std::optional<ShownValue> showValue(const RepairEntry& entry, const zent::RepairValue& value) {
    return value.value == nullptr
               ? std::nullopt
               : std::optional(describeAttribute(toUtf8(entry.attribute), *value.value));
}

/// Says which part of the ticket a problem is in. A set that lies in the ticket itself is no part
/// of its own.
void setPart(Problem& problem, const zent::RepairLocation& location) {
    if (location.feature == zent::TJTF_ANY || !Feature(location.feature).isPageLevel()) {
        return;
    }
    problem.part = Feature(location.feature).getName();
    if (location.entry > 0) {
        problem.part += "[" + std::to_string(location.entry - 1) + "]";
    }
    if (location.hasPages) {
        problem.pages = Range{location.firstPage, location.lastPage};
    }
}

/// The path of the collection that lacks a required member.
std::string pathOfHolder(const RepairEntry& entry) {
    const std::string way = toUtf8(entry.path);
    return toPathText(way.substr(0, way.rfind('/')));
}

void setRepair(Problem& problem, const RepairEntry& entry) {
    problem.newValue = showValue(entry, entry.newValue);
    switch (entry.action) {
    case RepairAction::remove:
    case RepairAction::removeFromSet:
        problem.repair = Repair::remove;
        problem.removedPath = problem.value ? problem.path : pathOfHolder(entry);
        break;
    case RepairAction::replace:
        problem.repair = Repair::replace;
        break;
    case RepairAction::addDefault:
        problem.repair = Repair::add;
        break;
    }
}

Problem makeProblem(const RepairEntry& entry, const OfferMap& offers) {
    Problem problem = {};
    problem.path = toPathText(toUtf8(entry.path));
    problem.feature = toUtf8(entry.attribute);
    problem.name = toUtf8(entry.featureName);
    problem.rule = entry.rule;
    problem.value = showValue(entry, entry.oldValue);
    if (entry.hasLimits) {
        problem.limits = Range{entry.lowerLimit, entry.upperLimit};
    }
    setPart(problem, entry.location);
    setRepair(problem, entry);
    if (const auto offer = offers.find(entry.feature); offer != offers.end()) {
        problem.offer = offer->second;
    }
    return problem;
}

/// Leaves out problems that a repair doesn't get to: where an attribute or its value as a whole is
/// at fault, it is repaired first, and other problems there are gone.
std::vector<const RepairEntry*> leaveEffective(const std::vector<RepairEntry>& entries) {
    using Kind = zent::SettingsProblem::Kind;
    // By path; problems of attributes come first.
    std::map<std::u16string_view, const RepairEntry*> settled;
    for (const RepairEntry& entry : entries) {
        if (entry.kind == Kind::unsupportedAttribute || entry.kind == Kind::unsupportedValue) {
            settled.try_emplace(entry.path.view(), &entry);
        }
    }
    std::vector<const RepairEntry*> effective;
    for (const RepairEntry& entry : entries) {
        const auto found = settled.find(entry.path.view());
        if (found == settled.end() || found->second == &entry) {
            effective.push_back(&entry);
        }
    }
    return effective;
}

zent::NonDriverBasedPrinter makePrinter(const PrinterChoice& choice) {
    return {choice.model, choice.pdl, choice.form, zent::CXString(), true};
}

/// Brings a ticket into the form that an import gives it.
void normalize(zent::AttrNodeList& ticket) { zent::FeatureSettings(&ticket).normalize(); }

Omission makeOmission(const zent::AjtOmission& omission) {
    const std::string attribute = toUtf8(omission.attribute);
    return {toPathText(toUtf8(omission.path)), attribute,
            Feature::exists(attribute) ? Feature::named(attribute).getDisplayName() : attribute,
            describeAttribute(attribute, omission.node->getAttrValue())};
}

std::vector<Omission> findOmissions(const zent::AttrNodeList& ticket, zent::Printer& printer) {
    std::vector<Omission> omissions;
    if (printer.getInstructionForm() != ZENT_INSTRUCTIONS_XML) {
        const zent::TarvoAjtTranslator translator(printer.getCapabilities().getAjtPrinterTraits());
        std::ranges::transform(translator.findOmissions(ticket), std::back_inserter(omissions),
                               makeOmission);
    }
    return omissions;
}

/// Finds what the instructions leave out once the problems are repaired. Nothing if the ticket
/// holds a value from which no instructions can be made.
std::vector<Omission> findOmissionsAfterRepair(zent::SettingsProblemList& problems,
                                               const zent::AttrNodeList& ticket,
                                               zent::Printer& printer) {
    try {
        zent::SettingsProblemFixer(printer.getDefaults().getSettings()).fix(problems);
        return findOmissions(ticket, printer);
    } catch (const zent::TarvoException&) {
        return {};
    }
}

} // namespace

TicketCheck checkTicket(zent::AttrNodeList ticket, const PrinterChoice& choice) {
    TicketCheck check = {getOffers(choice), {}, {}};
    zent::NonDriverBasedPrinter printer = makePrinter(choice);
    normalize(ticket);
    zent::FeatureSettings settings(&ticket);
    zent::SettingsProblemList problems;
    validate(printer.getCapabilities(), settings, problems);
    const zent::RepairReport report(problems, printer.getDefaults().getSettings());
    const OfferMap offers = mapOffers(check.offers);
    for (const RepairEntry* entry : leaveEffective(report.getEntries())) {
        check.problems.push_back(makeProblem(*entry, offers));
    }
    check.omissions = findOmissionsAfterRepair(problems, ticket, printer);
    std::erase_if(check.omissions, [&](const Omission& omission) {
        return std::ranges::count(check.problems, omission.path, &Problem::path) > 0;
    });
    return check;
}

std::vector<Omission> findOmissions(zent::AttrNodeList ticket, const PrinterChoice& choice) {
    zent::NonDriverBasedPrinter printer = makePrinter(choice);
    normalize(ticket);
    return findOmissions(ticket, printer);
}

namespace {

bool isNumber(const std::string& value) {
    return std::ranges::all_of(value, [](char c) { return c >= '0' && c <= '9'; });
}

/// Adds the meaning to a number that stands for something: "20 (Staple, top left)". A text that two
/// values share has the number in it already.
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

/// The values that the printer has; of many only the first few.
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

/// Describes the limits, which are those of a number or of a text's length.
std::string describeLimits(const Problem& problem) {
    const ValueKind kind = Feature::named(problem.feature).getKind(); // others have no limits
    const bool isNumber = kind == ValueKind::number || kind == ValueKind::range;
    return (isNumber ? "allowed: " : "length: ") + toText(*problem.limits);
}

/// Describes what the printer takes in place of a value.
std::string describeAllowed(const Problem& problem) {
    switch (problem.rule) {
    case ProblemRule::outOfRange:
        return describeLimits(problem);
    case ProblemRule::embeddedSpaces:
        return "no spaces";
    case ProblemRule::missingFeature:
        return "required";
    case ProblemRule::unsupportedValue:
        return describeOffer(problem);
    case ProblemRule::unsupportedAttribute:
        break;
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

/// The rule that a ticket breaks, for programs.
const char* wordOf(ProblemRule rule) {
    switch (rule) {
    case ProblemRule::outOfRange:
        return "out-of-range";
    case ProblemRule::embeddedSpaces:
        return "embedded-spaces";
    case ProblemRule::missingFeature:
        return "missing-feature";
    case ProblemRule::unsupportedValue:
        return "unsupported-value";
    case ProblemRule::unsupportedAttribute:
        break;
    }
    return "unsupported-attribute";
}

Json toJson(const Problem& problem) {
    Json json = Json::object();
    json.add("path", problem.path);
    json.add("feature", problem.feature);
    json.add("name", problem.name);
    json.add("rule", wordOf(problem.rule));
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
    std::vector<Row> rows;
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
    std::vector<Row> rows;
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
