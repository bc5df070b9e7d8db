#include "Offers.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

#include "Printers.h"
#include "Text.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/Printer/NonDriverBasedPrinter.h"
#include "platform/KeepForever.h"

namespace jobticket {

namespace {

using zent::_CI;
using zent::Capabilities;

/// What a collection may hold on the printer.
std::vector<Feature> readMembers(const Capabilities& capabilities, const Feature& collection) {
    std::vector<Feature> members;
    if (collection.getKind() == ValueKind::collection &&
        _CI::hasCapability(collection.getNumber(), zent::CAPTYPE_SUPPORTED_FEATURES)) {
        for (const zent::_FI& member : capabilities.getMemberFeatures(collection.getId())) {
            members.emplace_back(member.getFeature());
        }
    }
    return members;
}

/// Reads a printer's capabilities for one feature.
class OfferReader {
public:
    OfferReader(const Capabilities& capabilities, const Feature& feature)
        : m_capabilities(capabilities), m_feature(feature) {}

    Offer read() const {
        const bool mayBeUnset = m_capabilities.isPrinterDefaultAvailable(m_feature.getId(), true);
        const bool isText = m_feature.getKind() == ValueKind::text;
        const bool takesOwnValues = isText || m_capabilities.isUserDefinable(m_feature.getId());
        return {m_feature,
                mayBeUnset,
                readValues(),
                takesOwnValues,
                isText ? std::vector<Range>() : readRanges(),
                readNumber(zent::CAPTYPE_PRECISION),
                takesOwnValues ? readLength() : std::nullopt,
                describeCharacters(),
                readMembers(m_capabilities, m_feature)};
    }

private:
    bool has(std::uint32_t type) const { return _CI::hasCapability(m_feature.getNumber(), type); }
    _CI capability(std::uint32_t type) const { return {m_feature.getNumber(), type}; }
    const zent::Settings& settings() const { return m_capabilities.getSettings(); }

    std::optional<std::int32_t> readNumber(std::uint32_t type) const {
        std::int32_t number = 0;
        const bool isThere = has(type) && settings().getLong(capability(type), &number);
        return isThere ? std::optional(number) : std::nullopt;
    }

    std::vector<Range> readRanges() const {
        std::vector<Range> ranges;
        if (has(zent::CAPTYPE_INT_RANGE)) {
            const _CI range = capability(zent::CAPTYPE_INT_RANGE);
            const std::uint32_t count = range.isInSetOf() ? settings().getInstanceCount(range) : 1;
            Range bounds{};
            for (std::uint32_t index = 0; index < count; ++index) {
                if (settings().getRange(range, &bounds.lower, &bounds.upper, index)) {
                    ranges.push_back(bounds);
                }
            }
        }
        return ranges;
    }

    std::optional<Range> readLength() const {
        // A feature without numbers has the limits of a text's length here.
        const std::vector<Range> ranges = readRanges();
        if (!ranges.empty()) {
            return ranges.front();
        }
        const auto longest = readNumber(zent::CAPTYPE_INT_UPPER_LIMIT);
        return longest ? std::optional(Range{0, *longest}) : std::nullopt;
    }

    std::string describeCharacters() const {
        const auto restriction = readNumber(zent::CAPTYPE_CHAR_RESTRICTION);
        if (m_feature.getNumber() == zent::feature::jobName) {
            return restriction == 2 ? "no !" : "";
        }
        if (restriction == 2) {
            return "digits, capital letters, blanks and #+-/*";
        }
        if (restriction == 3) {
            return R"(no control characters, quotation marks or \?{}[]<>*|:;/,)";
        }
        return m_capabilities.allowsEmbeddedSpaces(m_feature.getId()) ? "" : "no blanks";
    }

    std::vector<NamedValue> readValues() const {
        switch (m_feature.getKind()) {
        case ValueKind::resolution:
            return readResolutions();
        case ValueKind::size:
            return readSizes();
        case ValueKind::collection:
            return {};
        default:
            return has(zent::CAPTYPE_SUPPORTED_VALUES) ? readKnownValues() : readKeywords();
        }
    }

    std::vector<NamedValue> readKnownValues() const {
        std::vector<NamedValue> values;
        for (const zent::FeatureValue& value :
             m_capabilities.getFeatureCapabilities(m_feature.getId(), false)) {
            if (value != zent::FeatureValue()) {
                values.push_back(toNamedValue(value));
            }
        }
        return values;
    }

    /// Reads the keywords. Those of form-cycle-type stand in the capability that holds the members
    /// of other collections.
    std::vector<NamedValue> readKeywords() const {
        std::vector<NamedValue> values;
        if (has(zent::CAPTYPE_SUPPORTED_FEATURES)) {
            const _CI set = capability(zent::CAPTYPE_SUPPORTED_FEATURES);
            zent::CXString keyword;
            for (std::uint32_t index = 0; settings().getString(set, &keyword, index); ++index) {
                if (const auto known = zent::FeatureValue::find(m_feature.getNumber(), keyword)) {
                    values.push_back(toNamedValue(*known));
                }
            }
        }
        return values;
    }

    std::vector<NamedValue> readResolutions() const {
        std::vector<NamedValue> values;
        for (const zent::Resolution& resolution : m_capabilities.getResolutionValues()) {
            if (!resolution.isUnspecified()) {
                values.push_back(
                    toNamedValue(DotDensity{resolution.getCrossFeed(),
                                            resolution.getFeedDirection(), resolution.getUnits()}));
            }
        }
        return values;
    }

    std::vector<NamedValue> readSizes() const {
        std::vector<NamedValue> values;
        for (const zent::StockSize& size :
             zent::StockSize::getSizesWithin(m_capabilities.getStockSizeLimits())) {
            values.push_back(toNamedValue(size));
        }
        return values;
    }

    const Capabilities& m_capabilities;
    Feature m_feature;
};

/// Adds a feature, and what the printer lets it hold.
void addOffered(std::set<zent::FeatureEnum>& offered, const Capabilities& capabilities,
                const Feature& feature) {
    if (!offered.insert(feature.getNumber()).second) {
        return;
    }
    // The capabilities don't list its members, but it always has both.
    if (feature.getKind() == ValueKind::size) {
        offered.insert({zent::feature::xDimension, zent::feature::yDimension});
    }
    for (const Feature& member : readMembers(capabilities, feature)) {
        addOffered(offered, capabilities, member);
    }
}

/// The features that the printer has, by number: in tickets, and in the collections that it has.
std::set<zent::FeatureEnum> findOffered(const Capabilities& capabilities) {
    std::set<zent::FeatureEnum> offered;
    for (const Feature& feature : Feature::all()) {
        if (capabilities.isFeatureSupported(feature.getId())) {
            addOffered(offered, capabilities, feature);
        }
    }
    return offered;
}

std::string displayNameOf(std::uint32_t language) {
    const auto& all = getLanguages();
    return std::string(std::ranges::find(all, language, &Language::number)->displayName);
}

bool isMemberOfAny(const std::vector<Feature>& members, const Feature& feature) {
    return std::ranges::any_of(members, [&](const Feature& member) {
        return member == feature || feature.isMemberOf(member);
    });
}

/// What page-level features hold on one printer or another. The printers are read one by one, and
/// only as far as a question needs: most features are found on the first.
class PageLevelMembers {
public:
    PageLevelMembers() {
        std::set<std::pair<std::uint32_t, std::uint32_t>> seen; // families and languages
        std::vector<Model> models = getModels();
        std::ranges::reverse(models); // the later ones hold more
        for (const Model& model : models) {
            for (const Driver& driver : model.drivers) {
                if (seen.emplace(model.family, driver.language.number).second) {
                    m_printers.emplace_back(model.number, driver.language.number);
                }
            }
        }
    }

    bool has(const Feature& holder, const Feature& feature) {
        const std::vector<Feature>& members = m_members[holder.getNumber()];
        bool isFound = isMemberOfAny(members, feature);
        while (!isFound && m_read < m_printers.size()) {
            readNextPrinter();
            isFound = isMemberOfAny(members, feature);
        }
        return isFound;
    }

private:
    void readNextPrinter() {
        const auto [model, language] = m_printers[m_read++];
        zent::NonDriverBasedPrinter printer(model, language, ZENT_INSTRUCTIONS_BY_MODEL,
                                            zent::CXString(), true);
        for (const Feature& holder : Feature::all()) {
            if (holder.isPageLevel()) {
                std::vector<Feature>& members = m_members[holder.getNumber()];
                std::ranges::copy(readMembers(printer.getCapabilities(), holder),
                                  std::back_inserter(members));
            }
        }
    }

    std::vector<std::pair<std::uint32_t, std::uint32_t>> m_printers; // models and languages
    std::size_t m_read = 0;
    std::map<zent::FeatureEnum, std::vector<Feature>> m_members; // by the number of their holder
};

} // namespace

bool mayHold(const Feature& holder, const Feature& feature) {
    static auto& members = zent::keepForever<PageLevelMembers>();
    return members.has(holder, feature);
}

Offers getOffers(const PrinterChoice& choice) {
    zent::NonDriverBasedPrinter printer(choice.model, choice.pdl, choice.form, zent::CXString(),
                                        true);
    const Capabilities& capabilities = printer.getCapabilities();
    Offers offers;
    offers.choice = {choice.model, choice.pdl, printer.getInstructionForm()};
    offers.printer = toPrintable(printer.getDisplayName());
    offers.language = displayNameOf(choice.pdl);
    offers.hasSeparateCovers = capabilities.isSeparateCoversCapable();
    offers.insertsMultipleMedia = capabilities.isInsertMultipleMediaCapable();
    offers.savesTiffWhenPrinting = capabilities.isTiffPrintSaveCapable();
    for (const zent::FeatureEnum number : findOffered(capabilities)) {
        offers.features.push_back(OfferReader(capabilities, Feature(number)).read());
    }
    return offers;
}

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
