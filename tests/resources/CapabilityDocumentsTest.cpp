#include <iterator>
#include <map>
#include <set>

#include "ocore/Attributes/IppList.h"
#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Capabilities/ResourceCapabilities.h"
#include "ocore/FeatureSettings/CapabilityDataBase.h"
#include "ocore/FeatureSettings/CapabilityIdentifier.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "ocore/Models/PrinterTables.h"
#include "ocore/OrdoParse/OrdoCategories.h"
#include "resources/ResourceIds.h"
#include "resources/ids.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

// The documents have the numbers between these.
constexpr std::uint32_t firstDocument = IDR_CAPABILITIES_17;
constexpr std::uint32_t lastDocument = IDR_CAPABILITIES_2_STREAM;
constexpr FeatureEnum formCycleType =
    feature::formCycleType; // its set of values stands where others name members

using Names = std::set<std::string>;

std::string textOf(const AttrNode& node) {
    AttrNodeList list;
    list.addNode(node);
    return textOfList(list);
}

/// A capability document as it lies in the resource library.
class Document {
public:
    explicit Document(std::uint32_t resource) { ResourceCapabilities(resource).load(list); }

    const AttrNode* find(const std::string& name) const {
        return list.findNode(AttrID(CXString(name.c_str())));
    }
    /// A capability as one line; empty if it isn't there.
    std::string text(const std::string& name) const {
        return find(name) != nullptr ? textOf(*find(name)) : "";
    }
    /// The texts of a set; none if it isn't there.
    Names texts(const std::string& name) const {
        const AttrNode* const node = find(name);
        Names texts;
        for (const AttrNode* value : node != nullptr ? valuesOf(*node) : Values()) {
            texts.insert(value->getAttrValue().getIppValue().toNarrow());
        }
        return texts;
    }
    /// Those of the job and the members of all collections.
    Names features() const {
        Names names = texts("job-creation-attributes-supported");
        for (FeatureEnum feature = feature::first; feature <= feature::last; ++feature) {
            if (feature != formCycleType &&
                _CI::hasCapability(feature, CAPTYPE_SUPPORTED_FEATURES)) {
                names.merge(texts(_FI(feature).getName().toNarrow() + "-supported"));
            }
        }
        return names;
    }

    using Values = std::vector<const AttrNode*>;
    static Values valuesOf(const AttrNode& node) {
        Values values;
        if (node.getAttrValue().is1setOf()) {
            const auto& set = static_cast<const IppList&>(node.getAttrValue()).getAttrNodeList();
            for (std::uint32_t i = 0; i < set.getNumberOfNodes(); ++i) {
                values.push_back(&set.getNodeAt(i));
            }
        }
        return values;
    }

    AttrNodeList list;
};

const std::map<std::uint32_t, Document>& documents() {
    static const std::map<std::uint32_t, Document> all = [] {
        useResourceLibrary();
        std::map<std::uint32_t, Document> documents;
        for (std::uint32_t resource = firstDocument; resource <= lastDocument; ++resource) {
            documents.try_emplace(resource, resource);
        }
        return documents;
    }();
    return all;
}

/// The rows of the capability table by the outermost name of their place.
std::multimap<std::string, CapabilityInfo> rowsByTopName() {
    std::multimap<std::string, CapabilityInfo> rows;
    for (FeatureEnum feature = TJTF_ANY; feature <= feature::last; ++feature) {
        for (const CapabilityInfo& row : CapabilityDataBase().getRows(feature)) {
            const NestedAttrID& id = row.m_nestedID;
            const CXString& top =
                id.isSimple() ? id.getName() : id.getParentName(id.getDepth() - 1);
            rows.emplace(top.toNarrow(), row);
        }
    }
    return rows;
}

/// Whether one value of a capability is what the table says of it.
bool isSane(const CapabilityInfo& row, const AttrValue& value) {
    const CXString text = value.getIppValue();
    std::int32_t first = 0;
    std::int32_t second = 0;
    std::int32_t units = 0;
    if (row.m_type == CAPTYPE_INT_RANGE) {
        return value.getRangeOfIntegerValues(first, second) && first <= second;
    }
    if (row.m_type == CAPTYPE_IS_SUPPORTED) {
        return text == u"true"; // what isn't offered isn't mentioned
    }
    if (row.m_type != CAPTYPE_SUPPORTED_VALUES && row.m_feature != formCycleType) {
        return _FI::isFeatureName(text);
    }
    switch (value.getAttrValueType()) {
    case AVTE_KEYWORD:
    case AVTE_ENUM:
    case AVTE_MIMEMEDIA:
        return FeatureValueDataBase().hasFeatureValue(row.m_feature, text);
    case AVTE_NAME:
    case AVTE_URI:
        return !text.isEmpty() && text.length() <= 30; // the shortest limit of a text
    default:                                           // the table has resolutions beside these
        return value.getResolutionValues(first, second, units) && first >= 300 && second >= 300 &&
               units == 3;
    }
}

TEST(CapabilityDocumentsTest, NamesSyntaxesAndValuesAreKnown) {
    const auto rows = rowsByTopName();
    for (const auto& [resource, document] : documents()) {
        Names seen;
        for (std::uint32_t i = 0; i < document.list.getNumberOfNodes(); ++i) {
            const AttrNode& node = document.list.getNodeAt(i);
            const std::string name = node.getName().toNarrow();
            SCOPED_TRACE(std::to_string(resource) + ' ' + name);
            EXPECT_TRUE(seen.insert(name).second) << "stands twice";
            if (name == "media-col-database" || name == "media-size-supported" ||
                name.ends_with("-allowable-char-limit")) {
                continue; // looked at by tests of their own
            }
            ASSERT_EQ(rows.count(name), 1U);
            const CapabilityInfo& row = rows.find(name)->second;
            EXPECT_EQ(row.m_class, capabilityClass::standard);
            const auto values =
                row.m_nestedID.isSimple() ? Document::Values{&node} : Document::valuesOf(node);
            EXPECT_FALSE(values.empty());
            Names different;
            for (const AttrNode* value : values) {
                EXPECT_EQ(value->getName(), row.m_nestedID.getAttrID().getText());
                EXPECT_TRUE(different.insert(textOf(*value)).second) << textOf(*value);
                EXPECT_TRUE(row.m_syntaxes.hasSyntax(value->getAttrValue().getIppSyntax()) &&
                            isSane(row, value->getAttrValue()))
                    << textOf(*value);
            }
        }
    }
}

TEST(CapabilityDocumentsTest, FeaturesAndCapabilitiesGoTogether) {
    for (const auto& [resource, document] : documents()) {
        const Names features = document.features();
        const Names userDefined = document.texts("user-defined-values-supported");
        EXPECT_TRUE(std::ranges::includes(features, userDefined)) << resource;
        // An ordo document has a place for each feature of the job.
        for (const std::string& name : document.texts("job-creation-attributes-supported")) {
            // "pages" is of page exceptions, and named for the dialogs' sake.
            EXPECT_TRUE(name == "pages" ||
                        findOrdoCategory(CXString(name.c_str())) != OrdoCategory::none)
                << resource << ' ' << name;
        }
        EXPECT_TRUE(!features.contains("page-overrides") ||
                    document.texts("page-overrides-supported").contains("pages"))
            << resource;
        for (FeatureEnum number = feature::first; number <= feature::last; ++number) {
            const std::string name = _FI(number).getName().toNarrow();
            SCOPED_TRACE(std::to_string(resource) + ' ' + name);
            bool wanted = false;
            bool found = false;
            for (const CapabilityInfo& row : CapabilityDataBase().getRows(number)) {
                const bool isDimension = row.m_nestedID.getDepth() > 1;
                if (row.m_class == capabilityClass::standard && !isDimension) {
                    wanted = features.contains(name);
                    found = found || document.find(row.m_nestedID.getName().toNarrow()) != nullptr;
                }
            }
            EXPECT_EQ(wanted, found);
            // A member stands behind its parent: nothing is offered that no ticket can hold.
            FeatureEnum parent = TJTF_ANY;
            if (features.contains(name) && _FI(number).getParentFeature(&parent)) {
                EXPECT_TRUE(features.contains(_FI(parent).getName().toNarrow()));
            }
        }
    }
}

bool hasColorLanguage(std::uint32_t family) {
    return std::ranges::any_of(getDriverTable(), [&](const DriverInfo& driver) {
        return driver.pdl == pageLanguage::colorPcl &&
               getModelTable()[driver.model - 1].family == family;
    });
}

TEST(CapabilityDocumentsTest, FamiliesOfferWhatThePrinterTablesSay) {
    std::set<std::uint32_t> used;
    for (const FamilyInfo& family : getFamilyTable()) {
        for (const std::uint32_t resource :
             {family.capabilityResource1, family.capabilityResource2}) {
            SCOPED_TRACE(testing::Message() << "family " << family.family << ", " << resource);
            used.insert(resource);
            const Document& document = documents().at(resource);
            const Names features = document.features();

            const AjtPrinterTraits::MediaSizeLimits& limits = family.traits.mediaSizeLimits;
            const auto range = [](std::int32_t lower, std::int32_t upper) {
                return "(lower-bound=" + std::to_string(lower) +
                       " upper-bound=" + std::to_string(upper) + ")";
            };
            EXPECT_EQ(document.text("media-size-supported"),
                      "media-size-supported{value{x-dimension" +
                          range(limits.xMinimum, limits.xMaximum) + " y-dimension" +
                          range(limits.yMinimum, limits.yMaximum) + "}}");
            const std::string lastPage =
                " upper-bound=" + std::to_string(family.maxPageNumber) + ")";
            for (const char* name :
                 {"force-front-side-supported", "insert-after-page-number-supported"}) {
                const std::string pages = document.text(name);
                EXPECT_TRUE(pages.empty() || pages.ends_with(lastPage)) << pages;
            }
            // A text is offered where there is room for it.
            EXPECT_EQ(features.contains("job-phone-number"), family.texts.phoneNumberLimit > 0);
            EXPECT_EQ(features.contains("job-sheet-message"), family.texts.sheetMessageLimit > 0);
            EXPECT_EQ(features.contains("job-message-to-operator"),
                      family.texts.operatorMessageLimit > 0);
            const bool isHighlight = family.family == 9 || family.family == 10;
            EXPECT_EQ(features.contains("highlight-colorant"), isHighlight);
            if (resource == family.capabilityResource1) {
                EXPECT_EQ(features.contains("color-effects-type"), hasColorLanguage(family.family));
            }
        }
    }
    EXPECT_EQ(used.size(), documents().size()); // none is there for nothing
}

TEST(CapabilityDocumentsTest, FamiliesHaveTheDocumentsThatTheirSourceNames) {
    const std::vector<std::string> lines =
        split(readTestFile("../resources/capabilities/families.toml"), '\n');
    for (const FamilyInfo& family : getFamilyTable()) {
        const auto head =
            std::ranges::find(lines, "[family." + std::to_string(family.family) + "]");
        ASSERT_NE(head, lines.end()) << family.family;
        const std::vector<std::string> names = split(*(head + 1), '"'); // documents = ["A", "B"]
        ASSERT_EQ(names.front(), "documents = [");
        const bool hasOne = names.size() == 3;
        EXPECT_EQ(family.capabilityResource1, idsByName().at(names[1]));
        EXPECT_EQ(family.capabilityResource2, idsByName().at(names[hasOne ? 1 : 3]));
    }
}

} // namespace
} // namespace zent::test
