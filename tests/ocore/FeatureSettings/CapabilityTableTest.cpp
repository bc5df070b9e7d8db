#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "expected/ExpectedTable.h"
#include "ocore/FeatureSettings/CapabilityDataBase.h"
#include "ocore/FeatureSettings/CapabilityIdentifier.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "support/Raised.h"

namespace zent::test {
namespace {

constexpr FeatureEnum lastFeature = 137;
constexpr std::uint32_t lastType = 12;

/// A capability's place as the table writes it, empty at the top of a document:
/// "media-size-supported:c / value:c / x-dimension", "sides-supported:s (names) / value".
std::string locationOf(const NestedAttrID& id) {
    std::string location;
    for (std::uint32_t i = id.getDepth(); i-- > 0;) { // outermost first
        location += id.getParentName(i).toNarrow();
        location += id.getParentSyntax(i) == syntax::setOf ? ":s" : ":c";
        location += id.isNamingParent(i) ? " (names) / " : " / ";
    }
    return id.isSimple() ? location : location + id.getAttrID().getText().toNarrow();
}

std::string joined(const SyntaxList& syntaxes) {
    std::string text;
    for (std::uint32_t i = 0; i < syntaxes.getSyntaxCount(); ++i) {
        text += (i == 0 ? "" : " ") + syntaxes.getSyntax(i).toNarrow();
    }
    return text;
}

TEST(CapabilityTableTest, CapabilitiesAreThoseOfTheTable) {
    const CapabilityDataBase capabilities;
    std::map<FeatureEnum, std::vector<std::uint32_t>> types;
    std::map<FeatureEnum, std::vector<std::uint32_t>> extensions;
    const std::vector<ExpectedRow> rows = readExpectedTable("capabilities.tsv");
    ASSERT_EQ(rows.size(), 178U);
    for (const ExpectedRow& row : rows) {
        const auto feature = static_cast<FeatureEnum>(row.number("feature"));
        const auto type = static_cast<std::uint32_t>(row.number("type"));
        SCOPED_TRACE(row.text("feature") + " " + row.text("attribute"));
        const bool isExtension = row.text("class") == "PRIVATE";
        types[feature].push_back(type);
        if (isExtension) {
            extensions[feature].push_back(type);
        }
        ASSERT_TRUE(capabilities.hasCapability(feature, type));
        const CapabilityInfo& info = capabilities.getCapabilityInfo(feature, type);
        EXPECT_EQ(info.m_feature, feature);
        EXPECT_EQ(info.m_type, type);
        EXPECT_EQ(info.m_nestedID.getName().toNarrow(), row.text("attribute"));
        EXPECT_EQ(locationOf(info.m_nestedID), row.text("location"));
        EXPECT_EQ(info.m_class,
                  isExtension ? capabilityClass::extension : capabilityClass::standard);
        EXPECT_EQ(joined(info.m_syntaxes), row.text("syntaxes"));
        // The handle of the row answers from it.
        const _CI capability(feature, type);
        EXPECT_EQ(&capability.getNestedAttrID(), &info.m_nestedID);
        EXPECT_EQ(capability.getName().toNarrow(), row.text("attribute"));
        EXPECT_EQ(capability.getClass(), info.m_class);
        EXPECT_EQ(capability.isInSetOf(), row.text("location").ends_with(":s (names) / value"));
    }
    for (FeatureEnum feature = 0; feature <= lastFeature + 1; ++feature) {
        SCOPED_TRACE(feature);
        EXPECT_EQ(_CI::getCapabilityTypes(feature), types[feature]); // in the order of their types
        EXPECT_EQ(_CI::getCapabilityTypes(feature, capabilityClass::extension),
                  extensions[feature]);
        EXPECT_EQ(capabilities.getCapabilityInfoList(feature).size(), types[feature].size());
        for (std::uint32_t type = 0; type <= lastType + 1; ++type) {
            const bool isThere = std::ranges::count(types[feature], type) == 1;
            EXPECT_EQ(capabilities.hasCapability(feature, type), isThere) << type;
        }
    }
}

TEST(CapabilityTableTest, IdentifiersAreEqualByFeatureAndType) {
    const _CI account(feature::jobAccountID, CAPTYPE_CHAR_RESTRICTION);
    const _CI data(feature::jobAccountingData, CAPTYPE_CHAR_RESTRICTION);
    EXPECT_EQ(account.getName(), data.getName()); // one attribute serves three features
    EXPECT_FALSE(account.isEqual(data));
    EXPECT_FALSE(account.isEqual(_CI(feature::jobAccountID, CAPTYPE_INT_RANGE)));
    EXPECT_TRUE(account.isEqual(*account.clone()));
    // A feature and a capability are never the same.
    EXPECT_FALSE(account.isEqual(_FI(feature::jobAccountID)));
    EXPECT_FALSE(_FI(feature::jobAccountID).isEqual(account));
}

TEST(CapabilityTableTest, LookupsThatFailSayWhatWasLookedFor) {
    const CapabilityDataBase capabilities;
    const std::string begin = "CapabilityDataBase::getCapabilityInfo( Feature, Capability type ) "
                              "could not find requested capability type ";
    const auto lookup = [&](FeatureEnum feature, std::uint32_t type) {
        return raised<UnknownFeatureRequestException>(
            [&] { capabilities.getCapabilityInfo(feature, type); });
    };
    EXPECT_EQ(lookup(feature::copies, 4), begin + "'4' for feature '2' (copies).\r\n");
    EXPECT_EQ(lookup(lastFeature + 1, 1), begin + "'1' for feature '138' (<unknown>!).\r\n");
    EXPECT_EQ(raised<UnknownFeatureRequestException>([] { _CI(TJTF_ANY, 1).getName(); }),
              begin + "'1' for feature '1' (<unknown>!).\r\n");
}

TEST(CapabilityTableTest, TypesHaveATextForDiagnosis) {
    EXPECT_EQ(getCapabilityTypeText(CAPTYPE_INT_RANGE), u"[Integer Range]");
    EXPECT_EQ(getCapabilityTypeText(CAPTYPE_USER_DEFINABLE), u"[User Definable]");
    EXPECT_EQ(getCapabilityTypeText(CAPTYPE_TIFF_PRINT_SAVE), u"[Print & Save is TIFF-Capable]");
    for (const std::uint32_t type : {0U, lastType + 1, 0xFFFFFFFFU}) {
        EXPECT_EQ(getCapabilityTypeText(type), u"[UNKNOWN!]");
    }
}

} // namespace
} // namespace zent::test
