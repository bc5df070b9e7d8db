#include "OfferJson.h"

#include <algorithm>

#include "Printers.h"

namespace jobticket {

namespace {

Json listRanges(const std::vector<Range>& ranges) {
    Json list = Json::array();
    for (const Range& range : ranges) {
        list.add(toJson(range));
    }
    return list;
}

Json listValues(const std::vector<NamedValue>& values) {
    Json list = Json::array();
    for (const NamedValue& value : values) {
        list.add(Json::object().add("value", value.name).add("text", value.displayName));
    }
    return list;
}

Json listMembers(const std::vector<Feature>& members) {
    Json list = Json::array();
    for (const Feature& member : members) {
        list.add(member.getName());
    }
    return list;
}

} // namespace

Json toJson(const Range& range) { return Json::array().add(range.lower).add(range.upper); }

Json toJson(const Offer& offer) {
    Json json = Json::object();
    json.add("feature", offer.feature.getName());
    json.add("name", offer.feature.getDisplayName());
    json.add("unset", offer.mayBeUnset);
    json.add("own", offer.takesOwnValues);
    if (!offer.values.empty()) {
        json.add("values", listValues(offer.values));
    }
    if (!offer.ranges.empty()) {
        json.add("ranges", listRanges(offer.ranges));
    }
    if (offer.step) {
        json.add("step", *offer.step);
    }
    if (offer.length) {
        json.add("length", toJson(*offer.length));
    }
    if (!offer.characters.empty()) {
        json.add("characters", offer.characters);
    }
    if (!offer.members.empty()) {
        json.add("members", listMembers(offer.members));
    }
    return json;
}

Json describePrinter(const Offers& offers) {
    const auto& languages = getLanguages();
    const auto language = std::ranges::find(languages, offers.choice.pdl, &Language::number);
    return Json::object()
        .add("model", offers.choice.model)
        .add("name", offers.printer)
        .add("pdl", language->name)
        .add("form", offers.choice.form == ZENT_INSTRUCTIONS_XML ? "xml" : "stream");
}

} // namespace jobticket
