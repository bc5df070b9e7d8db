#include "ocore/Capabilities/Capabilities.h"

#include <gmock/gmock.h>

#include "support/LibraryTesting.h"
#include "support/TraceCapture.h"

namespace zent::test {
namespace {

/// A capability document of a test's own.
class TextSource : public CapabilitySource {
public:
    explicit TextSource(std::string capabilities) : m_capabilities(std::move(capabilities)) {}
    void getDocument(ByteBuffer& document) const override {
        const std::string text = "<ocap>" + m_capabilities + "</ocap>";
        document.assign(text.data(), text.size());
    }

private:
    std::string m_capabilities;
};

std::string setOf(const std::string& name, std::initializer_list<const char*> members,
                  const char* syntax = "keyword") {
    std::string text = "<" + name + " syntax='1setOf'>";
    for (const char* const member : members) {
        text += "<value syntax='";
        text += syntax;
        text += "'>";
        text += member;
        text += "</value>";
    }
    return text + "</" + name + ">";
}

class CapabilitiesTest : public testing::Test {
protected:
    CapabilitiesTest() { useResourceLibrary(); }

    static Capabilities of(const std::string& document, std::uint32_t pdl = 2,
                           std::uint32_t model = 6, std::uint32_t form = 1) {
        return {PrinterModel(model, pdl), form, TextSource(document)};
    }
};

TEST_F(CapabilitiesTest, SeveralRangesAreOneHull) {
    const Capabilities capabilities =
        of("<media-weight-metric-supported syntax='1setOf'>"
           "<value syntax='rangeOfInteger'><lower-bound syntax='integer'>60</lower-bound>"
           "<upper-bound syntax='integer'>90</upper-bound></value>"
           "<value syntax='rangeOfInteger'><lower-bound syntax='integer'>100</lower-bound>"
           "<upper-bound syntax='integer'>200</upper-bound></value>"
           "</media-weight-metric-supported>");
    std::int32_t lower = 0;
    std::int32_t upper = 0;
    capabilities.getFeatureCapabilities(_FI(feature::mediaWeightMetric), lower, upper);
    EXPECT_EQ(lower, 60);
    EXPECT_EQ(upper, 200);
    EXPECT_EQ(raised<MissingCapabilityDataException>(
                  [&] { capabilities.getFeatureCapabilities(_FI(feature::copies), lower, upper); }),
              "Capabilities::getFeatureCapabilities(range of integer): Could not find the "
              "[Integer Range] capability.\r\n");
}

TEST_F(CapabilitiesTest, ValuesAreSortedAndUnknownOnesLeftOut) {
    const Capabilities capabilities =
        of(setOf("sides-supported", {"two-sided-long-edge", "both", "one-sided"}) +
           setOf("imposition-template-supported", {"none"}));
    std::vector<std::int32_t> numbers;
    const TraceCapture trace;
    for (const FeatureValue& value :
         capabilities.getFeatureCapabilities(_FI(feature::sides), true)) {
        numbers.push_back(value.getValue());
    }
    EXPECT_THAT(TraceCapture::text(),
                testing::HasSubstr("Capabilities::getFeatureCapabilities(list of values)Tried to "
                                   "create FeatureValue with value 'both' & syntax 'keyword' for "
                                   "feature 'sides'. This is not a fatal error. The value is being "
                                   "ignored and it is safe to continue.\r\n"));
    EXPECT_EQ(numbers, (std::vector<std::int32_t>{FeatureValue::unspecified, value::oneSided, 5}));
    // A feature of the class that never offers the default has its values alone.
    EXPECT_EQ(capabilities.getFeatureCapabilities(_FI(feature::impositionTemplate), true).size(),
              1U);
}

TEST_F(CapabilitiesTest, FeaturesAreSupportedByNameByFlagOrThroughTheirParents) {
    const Capabilities capabilities =
        of(setOf("job-creation-attributes-supported", {"copies", "media-col", "separator-sheets"}) +
           setOf("media-col-supported", {"media-color", "media-size"}) +
           setOf("separator-sheets-supported",
                 {"separator-sheets-type", "media", "media-col", "no-such"}) +
           "<job-phone-number-supported syntax='boolean'>true</job-phone-number-supported>");
    for (const FeatureEnum supported :
         {feature::copies, feature::jobPhoneNumber, feature::mediaColor, feature::mediaSize,
          feature::mediaKey}) {
        EXPECT_TRUE(capabilities.isFeatureSupported(_FI(supported))) << supported;
    }
    for (const FeatureEnum lacking : {feature::sides, feature::mediaType, feature::jobName}) {
        EXPECT_FALSE(capabilities.isFeatureSupported(_FI(lacking))) << lacking;
    }
    EXPECT_TRUE(capabilities.isUserDefinable(_FI(feature::mediaKey)));
    const TraceCapture trace;
    const std::vector<_FI> members = capabilities.getMemberFeatures(_FI(feature::separatorSheets));
    ASSERT_EQ(members.size(), 1U);
    EXPECT_EQ(members[0].getName(), u"separator-sheets-type");
    EXPECT_THAT(
        TraceCapture::text(),
        testing::HasSubstr(
            "Capabilities::getFeatureCapabilities(list of features for 'separator-sheets')Tried "
            "to create a FeatureID for the 'no-such' feature name, but it is unknown. This is not "
            "a fatal error. The value is being ignored and it is safe to continue.\r\n"));
}

TEST_F(CapabilitiesTest, WhatTheLanguageLacksIsGoneAtAllDepths) {
    const std::string document =
        setOf("job-creation-attributes-supported", {"highlight-colorant", "sides"}) +
        setOf("highlight-colorant-supported", {"red"}) +
        setOf("page-overrides-supported", {"highlight-colorant"});
    const Capabilities postScript = of(document, pageLanguage::postScript);
    EXPECT_TRUE(postScript.isFeatureSupported(_FI(feature::highlightColorant)));
    const Capabilities pcl = of(document, pageLanguage::monochromePcl);
    EXPECT_FALSE(pcl.isFeatureSupported(_FI(feature::highlightColorant)));
    EXPECT_FALSE(
        pcl.getSettings().isSpecified(_CI(feature::highlightColorant, CAPTYPE_SUPPORTED_VALUES)));
    EXPECT_TRUE(pcl.getMemberFeatures(_FI(feature::pageOverrides)).empty());
    EXPECT_TRUE(pcl.isFeatureSupported(_FI(feature::sides)));
}

TEST_F(CapabilitiesTest, SizesEndInOther) {
    const std::vector<StockSize> sizes = of("").getStockSizeValues();
    ASSERT_FALSE(sizes.empty());
    EXPECT_EQ(sizes.back().getSize(), StockSize::codeOther);
    EXPECT_EQ(of("").getStockSizeLimits().highestHeight, 36320);
}

} // namespace
} // namespace zent::test
