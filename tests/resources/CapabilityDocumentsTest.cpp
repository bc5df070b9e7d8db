#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "expected/ExpectedTable.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/Capabilities/ResourceCapabilities.h"
#include "ocore/FeatureSettings/CapabilityDataBase.h"
#include "ocore/FeatureSettings/CapabilityIdentifier.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "ocore/FeatureSettings/StockSize.h"
#include "ocore/Printer/PrinterTables.h"
#include "resources/UseResourceLibrary.h"
#include "support/ListText.h"

namespace zent::test {
namespace {

constexpr std::uint32_t firstDocument = 11501;
constexpr std::uint32_t lastDocument = 11540;
constexpr FeatureEnum lastFeature = 137;
constexpr FeatureEnum formCycleType = 17; // its set of values stands where others name members

using Names = std::set<std::string>;

AttrID idOf(const std::string& name) { return AttrID(CXString(name.c_str())); }

_FI featureOf(const std::string& name) { return _FI(CXString(name.c_str())); }

const AttrNodeList& listOfValue(const AttrValue& value) {
    return dynamic_cast<const IppList&>(value).getAttrNodeList();
}

/// A node as one line, for messages and to find repeats.
std::string textOf(const AttrNode& node) {
    AttrNodeList list;
    list.addNode(node);
    return textOfList(list);
}

/// A capability document as it lies in the resource library.
class Document {
public:
    explicit Document(std::uint32_t resource) { ResourceCapabilities(resource).load(m_list); }

    const AttrNodeList& list() const { return m_list; }
    /// The content of a capability; null if it isn't there or no list.
    const AttrNodeList* find(const std::string& name) const {
        const AttrNode* const node = m_list.findNode(idOf(name));
        return node != nullptr && node->getAttrValue().isList() ? &listOfValue(node->getAttrValue())
                                                                : nullptr;
    }
    bool has(const std::string& name) const { return m_list.findNode(idOf(name)) != nullptr; }
    /// The texts of a set; none if it isn't there.
    Names texts(const std::string& name) const {
        Names texts;
        const AttrNodeList* const set = find(name);
        for (std::uint32_t i = 0; set != nullptr && i < set->getNumberOfNodes(); ++i) {
            texts.insert(set->getNodeAt(i).getAttrValue().getIppValue().toNarrow());
        }
        return texts;
    }
    Names jobFeatures() const { return texts("job-creation-attributes-supported"); }
    /// Those of the job and the members of all collections.
    Names features() const {
        Names names = jobFeatures();
        for (FeatureEnum feature = 2; feature <= lastFeature; ++feature) {
            if (feature != formCycleType &&
                _CI::hasCapability(feature, CAPTYPE_SUPPORTED_FEATURES)) {
                names.merge(texts(_FI(feature).getName().toNarrow() + "-supported"));
            }
        }
        return names;
    }

private:
    AttrNodeList m_list;
};

class CapabilityDocumentsTest : public testing::Test {
protected:
    static void SetUpTestSuite() { useResourceLibrary(); }

    template <typename Check>
    static void forEachDocument(Check check) {
        for (std::uint32_t resource = firstDocument; resource <= lastDocument; ++resource) {
            SCOPED_TRACE(resource);
            check(Document(resource));
        }
    }
};

/// The rows of the capability table by the outermost name of their place.
std::multimap<std::string, CapabilityInfo> rowsByTopName() {
    std::multimap<std::string, CapabilityInfo> rows;
    for (FeatureEnum feature = TJTF_ANY; feature <= lastFeature; ++feature) {
        for (const CapabilityInfo& row : CapabilityDataBase().getRows(feature)) {
            const NestedAttrID& id = row.m_nestedID;
            const CXString& top =
                id.isSimple() ? id.getName() : id.getParentName(id.getDepth() - 1);
            rows.emplace(top.toNarrow(), row);
        }
    }
    return rows;
}

void expectSaneRange(const AttrValue& value) {
    std::int32_t lower = 0;
    std::int32_t upper = 0;
    EXPECT_TRUE(value.getRangeOfIntegerValues(lower, upper));
    EXPECT_LE(lower, upper);
}

void expectKnownValue(const CapabilityInfo& row, const AttrValue& value) {
    const CXString text = value.getIppValue();
    std::int32_t crossFeed = 0;
    std::int32_t feedDirection = 0;
    std::int32_t units = 0;
    switch (value.getAttrValueType()) {
    case AVTE_KEYWORD:
    case AVTE_ENUM:
    case AVTE_MIMEMEDIA:
        EXPECT_TRUE(FeatureValueDataBase().hasFeatureValue(row.m_feature, text));
        break;
    case AVTE_NAME:
    case AVTE_URI:
        EXPECT_FALSE(text.isEmpty());
        EXPECT_LE(text.view().size(), 30U); // the shortest limit of a text
        break;
    default: // the table has resolutions beside these
        EXPECT_TRUE(value.getResolutionValues(crossFeed, feedDirection, units));
        EXPECT_TRUE(crossFeed >= 300 && feedDirection >= 300 && units == 3);
    }
}

/// One value of a capability, by what the table says of it.
void expectSaneValue(const CapabilityInfo& row, const AttrValue& value) {
    EXPECT_TRUE(row.m_syntaxes.hasSyntax(value.getIppSyntax()));
    switch (row.m_type) {
    case CAPTYPE_INT_RANGE:
        expectSaneRange(value);
        break;
    case CAPTYPE_IS_SUPPORTED:
        EXPECT_EQ(value.getIppValue(), u"true"); // what isn't offered isn't mentioned
        break;
    case CAPTYPE_SUPPORTED_FEATURES:
        if (row.m_feature == formCycleType) {
            expectKnownValue(row, value);
            break;
        }
        [[fallthrough]];
    case CAPTYPE_USER_DEFINABLE:
        EXPECT_TRUE(_FI::isFeatureName(value.getIppValue()));
        break;
    case CAPTYPE_SUPPORTED_VALUES:
        expectKnownValue(row, value);
        break;
    default:
        ADD_FAILURE() << "a capability of the printer tables";
    }
}

TEST_F(CapabilityDocumentsTest, NamesSyntaxesAndValuesAreKnown) {
    const auto rows = rowsByTopName();
    forEachDocument([&](const Document& document) {
        Names seen;
        for (std::uint32_t i = 0; i < document.list().getNumberOfNodes(); ++i) {
            const AttrNode& node = document.list().getNodeAt(i);
            const std::string name = node.getName().toNarrow();
            SCOPED_TRACE(name);
            EXPECT_TRUE(seen.insert(name).second) << "stands twice";
            if (name == "media-col-database" || name == "media-size-supported") {
                continue; // looked at by tests of their own
            }
            ASSERT_EQ(rows.count(name), 1U);
            const CapabilityInfo& row = rows.find(name)->second;
            EXPECT_EQ(row.m_class, capabilityClass::standard);
            if (row.m_nestedID.isSimple()) {
                expectSaneValue(row, node.getAttrValue());
                continue;
            }
            ASSERT_TRUE(node.getAttrValue().is1setOf());
            const AttrNodeList& set = listOfValue(node.getAttrValue());
            Names values;
            ASSERT_NE(set.getNumberOfNodes(), 0U);
            for (std::uint32_t j = 0; j < set.getNumberOfNodes(); ++j) {
                const AttrNode& member = set.getNodeAt(j);
                SCOPED_TRACE(textOf(member));
                EXPECT_EQ(member.getName(), u"value");
                EXPECT_TRUE(values.insert(textOf(member)).second) << "stands twice";
                expectSaneValue(row, member.getAttrValue());
            }
        }
    });
}

TEST_F(CapabilityDocumentsTest, FeaturesAndCapabilitiesGoTogether) {
    forEachDocument([](const Document& document) {
        const Names features = document.features();
        for (FeatureEnum number = 2; number <= lastFeature; ++number) {
            const std::string name = _FI(number).getName().toNarrow();
            SCOPED_TRACE(name);
            bool wanted = false;
            bool found = false;
            for (const CapabilityInfo& row : CapabilityDataBase().getRows(number)) {
                const bool isDimension = row.m_nestedID.getDepth() > 1;
                if (row.m_class == capabilityClass::standard && !isDimension) {
                    wanted = features.contains(name);
                    found = found || document.has(row.m_nestedID.getName().toNarrow());
                }
            }
            EXPECT_EQ(wanted, found);
        }
        for (const std::string& name : document.texts("user-defined-values-supported")) {
            EXPECT_TRUE(features.contains(name)) << name;
        }
        for (const std::string& name : features) {
            // A member stands behind its parent: nothing is offered that no ticket can hold.
            FeatureEnum parent = TJTF_ANY;
            if (featureOf(name).getParentFeature(&parent)) {
                EXPECT_TRUE(features.contains(_FI(parent).getName().toNarrow())) << name;
            }
        }
        if (features.contains("page-overrides")) {
            EXPECT_TRUE(document.texts("page-overrides-supported").contains("pages"));
        }
    });
}

TEST_F(CapabilityDocumentsTest, OrdoDocumentHasAPlaceForEachFeatureOfTheJob) {
    Names places{"pages"}; // of page exceptions, and named for the dialogs' sake
    for (const ExpectedRow& row : readExpectedTable("categories.tsv")) {
        places.insert(row.text("name"));
    }
    forEachDocument([&](const Document& document) {
        for (const std::string& name : document.jobFeatures()) {
            EXPECT_TRUE(places.contains(name)) << name;
        }
    });
}

/// The upper bound of a range; 0 if there is none.
std::int32_t upperBoundOf(const Document& document, const std::string& name) {
    const AttrNode* const node = document.list().findNode(idOf(name));
    std::int32_t lower = 0;
    std::int32_t upper = 0;
    if (node != nullptr) {
        node->getAttrValue().getRangeOfIntegerValues(lower, upper);
    }
    return upper;
}

bool hasColorLanguage(std::uint32_t family) {
    return std::ranges::any_of(getDriverTable(), [&](const DriverInfo& driver) {
        return driver.pdl == pageLanguage::colorPcl &&
               getModelTable()[driver.model - 1].family == family;
    });
}

SizeLimits limitsOf(const FamilyInfo& family) {
    const AjtPrinterTraits::MediaSizeLimits& limits = family.traits.mediaSizeLimits;
    return {limits.xMinimum, limits.xMaximum, limits.yMinimum, limits.yMaximum};
}

TEST_F(CapabilityDocumentsTest, FamiliesOfferWhatThePrinterTablesSay) {
    std::set<std::uint32_t> used;
    for (const FamilyInfo& family : getFamilyTable()) {
        for (const std::uint32_t resource :
             {family.capabilityResource1, family.capabilityResource2}) {
            SCOPED_TRACE(testing::Message() << "family " << family.family << ", " << resource);
            used.insert(resource);
            const Document document(resource);
            const Names features = document.features();

            const SizeLimits limits = limitsOf(family);
            std::string size = "value{x-dimension(lower-bound=%1 upper-bound=%2) "
                               "y-dimension(lower-bound=%3 upper-bound=%4)}";
            for (const std::int32_t bound : {limits.lowestWidth, limits.highestWidth,
                                             limits.lowestHeight, limits.highestHeight}) {
                size.replace(size.find('%'), 2, std::to_string(bound));
            }
            ASSERT_NE(document.find("media-size-supported"), nullptr);
            EXPECT_EQ(textOfList(*document.find("media-size-supported")), size);

            for (const char* pages :
                 {"force-front-side-supported", "insert-after-page-number-supported"}) {
                const std::int32_t upper = upperBoundOf(document, pages);
                EXPECT_TRUE(upper == 0 || upper == static_cast<std::int32_t>(family.maxPageNumber))
                    << pages;
            }
            // A text is offered where there is room for it.
            EXPECT_EQ(features.contains("job-phone-number"), family.phoneNumberLimit > 0);
            EXPECT_EQ(features.contains("job-sheet-message"), family.sheetMessageLimit > 0);
            EXPECT_EQ(features.contains("job-message-to-operator"),
                      family.operatorMessageLimit > 0);
            const bool isHighlight = family.family == 9 || family.family == 10;
            EXPECT_EQ(features.contains("highlight-colorant"), isHighlight);
            if (resource == family.capabilityResource1) {
                EXPECT_EQ(features.contains("color-effects-type"), hasColorLanguage(family.family));
            }
        }
    }
    EXPECT_EQ(used.size(), lastDocument - firstDocument + 1); // none is there for nothing
    EXPECT_EQ(*used.begin(), firstDocument);
    EXPECT_EQ(*used.rbegin(), lastDocument);
}

/// What the stream of comment lines has a line for. Of media it tells no name, but the printer's
/// stocks need one.
Names sayableFeatures() {
    return {"copies",
            "sheet-collate",
            "sides",
            "imposition-template",
            "page-ranges",
            "job-save-disposition",
            "save-disposition",
            "save-info",
            "save-name",
            "job-name",
            "job-account-id",
            "requesting-user-name",
            "job-recipient-name",
            "job-sheet-message",
            "job-message-to-operator",
            "job-phone-number",
            "page-rotation",
            "x-side1-image-shift",
            "y-side1-image-shift",
            "x-side2-image-shift",
            "y-side2-image-shift",
            "highlight-colorant",
            "highlight-map-color",
            "highlight-map",
            "highlight-colorant-mismatch",
            "finishings",
            "separator-sheets",
            "separator-sheets-type",
            "finishings-col",
            "finishing-template",
            "force-front-side",
            "media-col",
            "media-size",
            "media-color",
            "media-type",
            "media-order-count",
            "media-hole-count",
            "media-weight-metric",
            "media-key",
            "cover-front",
            "cover-back",
            "cover-type",
            "page-overrides",
            "pages",
            "insert-sheet",
            "insert-after-page-number",
            "insert-count"};
}

TEST_F(CapabilityDocumentsTest, StreamFormOffersOnlyWhatTheStreamCanSay) {
    const Names sayable = sayableFeatures();
    const Names finishings{"3", "13", "20", "21", "22", "23", "28", "29", "30", "31", "50", "52"};
    for (const FamilyInfo& family : getFamilyTable()) {
        if (family.capabilityResource1 == family.capabilityResource2) {
            continue; // one document for both
        }
        SCOPED_TRACE(testing::Message() << "family " << family.family);
        const Document full(family.capabilityResource1);
        const Document stream(family.capabilityResource2);
        Names left;
        std::ranges::set_intersection(full.features(), sayable, std::inserter(left, left.end()));
        EXPECT_EQ(stream.features(), left); // no less, too
        for (std::uint32_t i = 0; i < stream.list().getNumberOfNodes(); ++i) {
            const CXString& name = stream.list().getNodeAt(i).getName();
            if (name != u"media-col-database") {
                EXPECT_TRUE(std::ranges::includes(full.texts(name.toNarrow()),
                                                  stream.texts(name.toNarrow())))
                    << name.toNarrow();
            }
        }
        EXPECT_TRUE(std::ranges::includes(finishings, stream.texts("finishings-supported")));
        for (const auto& [set, unsayable] : {std::pair{"separator-sheets-type-supported", "none"},
                                             {"highlight-colorant-supported", "use-ready"},
                                             {"highlight-colorant-mismatch-supported", "stop"}}) {
            EXPECT_FALSE(stream.texts(set).contains(unsayable)) << set;
        }
    }
}

/// Whether a printer takes what one of its stocks says, by the document.
void expectStockMember(const Document& document, const AttrNode& member) {
    const AttrNodeList* const set = document.find(member.getName().toNarrow() + "-supported");
    ASSERT_NE(set, nullptr);
    const AttrValue& value = member.getAttrValue();
    bool taken = false;
    for (std::uint32_t i = 0; i < set->getNumberOfNodes(); ++i) {
        const AttrValue& supported = set->getNodeAt(i).getAttrValue();
        std::int32_t lower = 0;
        std::int32_t upper = 0;
        if (supported.isRangeOfInteger() && supported.getRangeOfIntegerValues(lower, upper)) {
            const std::int32_t number = std::stoi(value.getIppValue().toNarrow());
            taken = taken || (number >= lower && number <= upper);
        } else {
            taken = taken || value.isEqual(supported);
        }
    }
    EXPECT_TRUE(taken);
}

TEST_F(CapabilityDocumentsTest, StocksFitTheirPrinter) {
    for (const FamilyInfo& family : getFamilyTable()) {
        for (const std::uint32_t resource :
             {family.capabilityResource1, family.capabilityResource2}) {
            SCOPED_TRACE(resource);
            const Document document(resource);
            const Names members = document.texts("media-col-supported");
            const AttrNodeList* const stocks = document.find("media-col-database");
            ASSERT_NE(stocks, nullptr);
            EXPECT_GE(stocks->getNumberOfNodes(), 4U);
            Names keys;
            for (std::uint32_t i = 0; i < stocks->getNumberOfNodes(); ++i) {
                const AttrNode& stock = stocks->getNodeAt(i);
                SCOPED_TRACE(textOf(stock));
                ASSERT_TRUE(stock.getName() == u"value" && stock.getAttrValue().isCollection());
                const AttrNodeList& said = listOfValue(stock.getAttrValue());
                CXString key;
                ASSERT_TRUE(said.OrdoAttrToString(&key, AttrID(u"media-key")));
                EXPECT_TRUE(keys.insert(key.toNarrow()).second) << "stands twice";
                for (std::uint32_t j = 0; j < said.getNumberOfNodes(); ++j) {
                    const AttrNode& member = said.getNodeAt(j);
                    SCOPED_TRACE(member.getName().toNarrow());
                    EXPECT_TRUE(members.contains(member.getName().toNarrow()));
                    if (member.getName() != u"media-size") {
                        expectStockMember(document, member);
                        continue;
                    }
                    const AttrNodeList& size = listOfValue(member.getAttrValue());
                    std::int32_t width = 0;
                    std::int32_t height = 0;
                    ASSERT_TRUE(size.OrdoAttrToLong(&width, AttrID(u"x-dimension")));
                    ASSERT_TRUE(size.OrdoAttrToLong(&height, AttrID(u"y-dimension")));
                    const SizeLimits limits = limitsOf(family);
                    EXPECT_TRUE(limits.contains(width, height) || limits.contains(height, width));
                }
            }
        }
    }
}

} // namespace
} // namespace zent::test
