#include <gmock/gmock.h>

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "support/LibraryTesting.h"
#include "support/ListCapabilities.h"
#include "support/TraceCapture.h"

namespace zent::test {
namespace {

using testing::HasSubstr;

class CapabilitiesTest : public testing::Test {
protected:
    CapabilitiesTest() { useResourceLibrary(); }
};

TEST_F(CapabilitiesTest, SeveralRangesAreOneHull) {
    const Capabilities capabilities =
        capabilitiesOf("media-weight-metric-supported[value(lower-bound=60 upper-bound=90) "
                       "value(lower-bound=100 upper-bound=200)]");
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
        capabilitiesOf("sides-supported[value=two-sided-long-edge value=both value=one-sided] "
                       "imposition-template-supported[value=none]");
    std::vector<std::int32_t> numbers;
    const TraceCapture trace;
    for (const FeatureValue& value :
         capabilities.getFeatureCapabilities(_FI(feature::sides), true)) {
        numbers.push_back(value.getValue());
    }
    EXPECT_THAT(TraceCapture::text(), HasSubstr("create FeatureValue with value 'both' & syntax "
                                                "'keyword' for feature 'sides'. This is not"));
    EXPECT_EQ(numbers, (std::vector<std::int32_t>{FeatureValue::unspecified, value::oneSided, 5}));
    // A feature of the class that never offers the default has its values alone.
    EXPECT_EQ(capabilities.getFeatureCapabilities(_FI(feature::impositionTemplate), true).size(),
              1U);
}

TEST_F(CapabilitiesTest, FeaturesAreSupportedByNameByFlagOrThroughTheirParents) {
    const Capabilities capabilities = capabilitiesOf(
        "job-creation-attributes-supported[value=copies value=media-col value=separator-sheets] "
        "media-col-supported[value=media-color value=media-size] "
        "separator-sheets-supported[value=separator-sheets-type value=media value=media-col "
        "value=no-such] job-phone-number-supported=boolean:true");
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
    EXPECT_THAT(TraceCapture::text(), HasSubstr("the 'no-such' feature name, but it is unknown"));
}

TEST_F(CapabilitiesTest, SizesEndInOther) {
    EXPECT_EQ(capabilitiesOf("").getStockSizeValues().back().getSize(), StockSize::codeOther);
    EXPECT_EQ(capabilitiesOf("", 6).getStockSizeLimits().highestHeight, 36320);
}

} // namespace
} // namespace zent::test
