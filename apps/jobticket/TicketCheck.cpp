#include "TicketCheck.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "FeaturePath.h"
#include "Outline.h"
#include "Text.h"
#include "ocore/AnlXlate/TarvoAjtTranslator.h"
#include "ocore/Capabilities/RepairReport.h"
#include "ocore/Capabilities/SettingsProblemFixer.h"
#include "ocore/Printer/NonDriverBasedPrinter.h"
#include "ocore/TarvoException.h"
#include "zent27.h"

namespace jobticket {

namespace {

using zent::RepairAction;
using zent::RepairEntry;

/// The offers by feature, to be shared by the problems of each. With that of a size stand the
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

/// A set that stands in the ticket itself is no part of it.
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

/// What should hold something that is missing, and makes no sense without it.
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
    problem.rule = toUtf8(entry.rule);
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

/// Where the attribute or its value as a whole is at fault, a repair begins with that, and what
/// else is wrong there has no effect.
std::vector<const RepairEntry*> leaveEffective(const std::vector<RepairEntry>& entries) {
    using Kind = zent::SettingsProblem::Kind;
    std::map<std::u16string_view, const RepairEntry*> settled; // by path; attributes come first
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

/// As an import does.
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

/// What would still be left out of a ticket without its problems. Nothing where it holds a value
/// that instructions can't be made of.
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
    printer.getCapabilities().validate(settings, problems);
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

} // namespace jobticket
