#include <algorithm>
#include <array>

#include "Command.h"
#include "Listing.h"
#include "Offers.h"
#include "Printers.h"
#include "Text.h"
#include "TicketFile.h"

namespace jobticket {

namespace {

std::string formOf(const Model& model) { return model.takesXml ? "xml" : "stream"; }

std::string listModels(const std::vector<Model>& models) {
    std::vector<Row> rows = {{"No.", "Name", "Languages", "Form", "Family"}};
    for (const Model& model : models) {
        rows.push_back({std::to_string(model.number), model.name, listLanguages(model),
                        formOf(model), std::to_string(model.family)});
    }
    return layOut(rows);
}

std::string describe(const Model& model) {
    std::vector<Row> rows = {
        {"Model", std::to_string(model.number)},
        {"Name", model.name},
        {"Family", std::to_string(model.family)},
        {"Form", formOf(model) + (model.takesXml ? " (instructions are an XML document)"
                                                 : " (instructions are comment lines)")}};
    std::string text = layOut(rows) + "Drivers\n";
    rows.clear();
    for (const Driver& driver : model.drivers) {
        rows.push_back({"  " + std::string(driver.language.name), driver.name});
    }
    return text + layOut(rows);
}

/// Number, name, family, form, and the drivers by language.
std::vector<Row> makeTable(const std::vector<Model>& models) {
    std::vector<Row> rows;
    for (const Model& model : models) {
        Row row = {std::to_string(model.number), model.name, std::to_string(model.family),
                   formOf(model)};
        for (const Driver& driver : model.drivers) {
            row.push_back(std::string(driver.language.name) + '=' + driver.name);
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

Json toJson(const Model& model) {
    Json drivers = Json::array();
    for (const Driver& driver : model.drivers) {
        drivers.add(Json::object().add("pdl", driver.language.name).add("name", driver.name));
    }
    return Json::object()
        .add("model", model.number)
        .add("name", model.name)
        .add("family", model.family)
        .add("form", formOf(model))
        .add("drivers", drivers);
}

Json makeJson(const std::vector<Model>& models) {
    Json list = Json::array();
    for (const Model& model : models) {
        list.add(toJson(model));
    }
    return Json::object().add("models", list);
}

ExitStatus listPrinters(const Options& options) {
    const std::vector<Model> models = findModels(options.pattern);
    if (models.empty()) {
        throw ProgramError(ExitStatus::badValue, "there is no printer " +
                                                     inQuotes(options.pattern) +
                                                     R"(; "jobticket models" lists all)");
    }
    printListing(
        {.asJson = [&] { return makeJson(models); },
         .asTable = [&] { return makeTable(models); },
         .asText =
             [&] { return models.size() == 1 ? describe(models.front()) : listModels(models); }},
        options);
    return ExitStatus::success;
}

constexpr std::array modelsOptions = {
    Option{.names = "PATTERN",
           .operand = Operand::model,
           .target = in<&Options::pattern>,
           .help = "A printer's number or name, to see all about it; or a part of the names of "
                   "those to list"},
    withHelp(tableOption, "One line a printer with tabs between the columns, for other programs"),
    jsonOption};

} // namespace

const Command modelsCommand = {"models", "List the printers that the library knows", modelsOptions,
                               listPrinters,
                               "jobticket models chromaset\n"
                               "jobticket models 43\n"};

namespace {

std::string yesOrNo(bool flag) { return flag ? "yes" : "no"; }

std::string describe(const Range& range, const Unit& unit) {
    if (range.lower == range.upper) {
        return withUnit(range.lower, unit);
    }
    const std::string lower = withUnit(range.lower, unit);
    return lower.substr(0, lower.find(' ')) + " to " + withUnit(range.upper, unit);
}

std::string describe(const Range& length) {
    return (length.lower > 0 ? std::to_string(length.lower) + " to " : "up to ") +
           std::to_string(length.upper) + " characters";
}

void addPart(std::string& text, const std::string& part) {
    text += (text.empty() || part.empty() ? "" : "; ") + part;
}

std::string describeOwnValues(const Offer& offer) {
    switch (offer.feature.getKind()) {
    case ValueKind::keyword:
        return offer.takesOwnValues ? "own names" : "";
    case ValueKind::size:
        return offer.takesOwnValues ? "own sizes" : "";
    default:
        return "";
    }
}

/// Describes an offer apart from its values and members.
std::string summarize(const Offer& offer) {
    std::string text;
    for (const Range& range : offer.ranges) {
        text += (text.empty() ? "" : ", ") + describe(range, offer.feature.getUnit());
    }
    if (offer.step.value_or(1) != 1) {
        text += " in steps of " + withUnit(*offer.step, offer.feature.getUnit());
    }
    addPart(text, describeOwnValues(offer));
    addPart(text, offer.length ? describe(*offer.length) : "");
    addPart(text, offer.characters);
    return text;
}

std::string listPrinter(const Offers& offers) {
    return layOut({
        {"Printer", offers.printer + ", " + offers.language},
        {"Instructions",
         offers.choice.form == ZENT_INSTRUCTIONS_XML ? "XML document" : "comment lines"},
        {"Front and back cover apart", yesOrNo(offers.hasSeparateCovers)},
        {"Several media in an insert", yesOrNo(offers.insertsMultipleMedia)},
        {"TIFF when printing and saving", yesOrNo(offers.savesTiffWhenPrinting)},
    });
}

/// A collection that groups features of the ticket itself; these are listed by themselves.
bool isGroup(const Feature& feature) {
    return feature.getKind() == ValueKind::collection && !feature.isPageLevel();
}

/// Whether a collection among the features has it as its member.
bool isInGroupOf(const std::vector<Feature>& features, const Feature& member) {
    return std::ranges::any_of(features, [&](const Feature& group) {
        return !(group == member) && isGroup(group) && member.isMemberOf(group);
    });
}

std::string listFeatures(const std::vector<Offer>& features) {
    std::vector<Row> rows;
    for (const Offer& offer : features) {
        if (isGroup(offer.feature) && features.size() > 1) {
            continue;
        }
        rows.push_back({offer.feature.getName(), offer.feature.getDisplayName(), summarize(offer)});
        for (const NamedValue& value : offer.values) {
            rows.push_back({"  " + value.name, value.displayName});
        }
        for (const Feature& member : offer.members) {
            if (isInGroupOf(offer.members, member)) {
                continue;
            }
            rows.push_back({"  " + member.getName(), member.getDisplayName()});
        }
    }
    return layOut(rows);
}

std::string joinByHyphen(const Range& range) {
    return std::to_string(range.lower) + '-' + std::to_string(range.upper);
}

/// Name, name for people, and all else as key=value.
Row makeRow(const Offer& offer) {
    Row row = {offer.feature.getName(), offer.feature.getDisplayName()};
    const auto add = [&row](std::string key, const std::string& value) {
        row.push_back(std::move(key.append("=").append(value)));
    };
    add("unset", yesOrNo(offer.mayBeUnset));
    add("own", yesOrNo(offer.takesOwnValues));
    for (const Range& range : offer.ranges) {
        add("range", joinByHyphen(range));
    }
    if (offer.step) {
        add("step", std::to_string(*offer.step));
    }
    if (offer.length) {
        add("length", joinByHyphen(*offer.length));
    }
    if (!offer.characters.empty()) {
        add("characters", offer.characters);
    }
    for (const NamedValue& value : offer.values) {
        add("value", value.name);
    }
    for (const Feature& member : offer.members) {
        add("member", member.getName());
    }
    return row;
}

std::vector<Row> makeTable(const std::vector<Offer>& features) {
    std::vector<Row> rows(features.size());
    std::ranges::transform(features, rows.begin(), makeRow);
    return rows;
}

Json makeJson(const Offers& offers) {
    Json features = Json::array();
    for (const Offer& offer : offers.features) {
        features.add(toJson(offer));
    }
    return Json::object()
        .add("printer", describePrinter(offers)
                            .add("separateCovers", offers.hasSeparateCovers)
                            .add("severalMediaInInsert", offers.insertsMultipleMedia)
                            .add("tiffWhenPrintingAndSaving", offers.savesTiffWhenPrinting))
        .add("features", features);
}

/// Keeps only the feature of that name, or those with the text in a name.
void keepMatching(std::vector<Offer>& features, const std::string& pattern) {
    const auto isNamed = [&](const Offer& offer) { return offer.feature.getName() == pattern; };
    const bool isName = std::ranges::any_of(features, isNamed);
    std::erase_if(features, [&](const Offer& offer) {
        return isName ? !isNamed(offer)
                      : !containsIgnoringCase(offer.feature.getName(), pattern) &&
                            !containsIgnoringCase(offer.feature.getDisplayName(), pattern);
    });
}

ExitStatus listCapabilities(const Options& options) {
    Offers offers = getOffers(choosePrinter(options.printer));
    keepMatching(offers.features, options.pattern);
    if (offers.features.empty()) {
        throw ProgramError(ExitStatus::badValue,
                           offers.printer + " has no feature " + inQuotes(options.pattern));
    }
    const auto writeText = [&] {
        return (options.pattern.empty() ? listPrinter(offers) + "\n" : "") +
               listFeatures(offers.features);
    };
    printListing({.asJson = [&] { return makeJson(offers); },
                  .asTable = [&] { return makeTable(offers.features); },
                  .asText = writeText},
                 options);
    return ExitStatus::success;
}

constexpr std::array capabilitiesOptions = {
    Option{.names = "PATTERN",
           .operand = Operand::feature,
           .target = in<&Options::pattern>,
           .help = "A feature, or a part of the names of those to list"},
    modelOption,
    languageOption,
    formOption,
    tableOption,
    jsonOption};

} // namespace

const Command capabilitiesCommand = {"capabilities", "List what a printer offers",
                                     capabilitiesOptions, listCapabilities,
                                     "jobticket capabilities --model 43 --pdl ps finishings\n"};

} // namespace jobticket
