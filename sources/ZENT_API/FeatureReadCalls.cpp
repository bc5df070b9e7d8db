// Each call is one query of the settings in the frame of a call; all checks of arguments and
// results are the frame's.

#include "ZENT_API/Arguments.h"
#include "ZENT_API/CallFrame.h"

using namespace zent;

extern "C" {

ZentResult ZENT_CALL fnIsEmpty(ZentSessionType session, TarvoJtSettingsType settings,
                               ZentBool* empty) {
    return withSettings(session, settings, __func__,
                        [&](ZENTSession& /*opened*/, FeatureSettings& ticket) -> ZentResult {
                            required(empty) = ticket.isEmpty();
                            return ZENT_OK;
                        });
}

ZentResult ZENT_CALL fnIsSpecified(ZentSessionType session, TarvoJtSettingsType settings,
                                   const ZentChar* feature, ZentBool* specified) {
    return withSettings(session, settings, __func__,
                        [&](ZENTSession& /*opened*/, FeatureSettings& ticket) -> ZentResult {
                            ZentBool& out = required(specified);
                            out = ticket.isSpecified(_FI(textOf(feature)));
                            return ZENT_OK;
                        });
}

ZentResult ZENT_CALL fnGetNumberOfValues(ZentSessionType session, TarvoJtSettingsType settings,
                                         const ZentChar* feature, uint32_t* count) {
    return withSettings(session, settings, __func__,
                        [&](ZENTSession& /*opened*/, FeatureSettings& ticket) -> ZentResult {
                            uint32_t& out = required(count);
                            out = ticket.getNumberOfValues(_FI(textOf(feature)));
                            return ZENT_OK;
                        });
}

ZentResult ZENT_CALL fnGetStringValue(ZentSessionType session, TarvoJtSettingsType settings,
                                      const ZentChar* feature, ZentChar* buffer, uint32_t* size,
                                      uint32_t index, ZentBool* found) {
    return withSettings(session, settings, __func__,
                        [&](ZENTSession& /*opened*/, FeatureSettings& ticket) -> ZentResult {
                            uint32_t& units = required(size);
                            ZentBool& isFound = required(found);
                            CXString text;
                            isFound = ticket.getString(_FI(textOf(feature)), &text, index);
                            return handOutText(text, buffer, units);
                        });
}

ZentResult ZENT_CALL fnGetNumberValue(ZentSessionType session, TarvoJtSettingsType settings,
                                      const ZentChar* feature, int32_t* number, uint32_t index,
                                      ZentBool* found) {
    return withSettings(session, settings, __func__,
                        [&](ZENTSession& /*opened*/, FeatureSettings& ticket) -> ZentResult {
                            int32_t& out = required(number);
                            ZentBool& isFound = required(found);
                            isFound = ticket.getLong(_FI(textOf(feature)), &out, index);
                            return ZENT_OK;
                        });
}

ZentResult ZENT_CALL fnGetRangeValues(ZentSessionType session, TarvoJtSettingsType settings,
                                      const ZentChar* feature, int32_t* lower, int32_t* upper,
                                      uint32_t index, ZentBool* found) {
    return withSettings(session, settings, __func__,
                        [&](ZENTSession& /*opened*/, FeatureSettings& ticket) -> ZentResult {
                            int32_t& outLower = required(lower);
                            int32_t& outUpper = required(upper);
                            ZentBool& isFound = required(found);
                            int32_t low = 0;
                            int32_t high = 0;
                            isFound = ticket.getRange(_FI(textOf(feature)), &low, &high, index);
                            if (isFound != 0) {
                                outLower = low;
                                outUpper = high;
                            }
                            return ZENT_OK;
                        });
}

ZentResult ZENT_CALL fnGetResolutionValue(ZentSessionType session, TarvoJtSettingsType settings,
                                          const ZentChar* feature, int32_t* crossFeed,
                                          int32_t* feed, int32_t* units, uint32_t index,
                                          ZentBool* found) {
    return withSettings(session, settings, __func__,
                        [&](ZENTSession& /*opened*/, FeatureSettings& ticket) -> ZentResult {
                            int32_t& outCrossFeed = required(crossFeed);
                            int32_t& outFeed = required(feed);
                            int32_t& outUnits = required(units);
                            ZentBool& isFound = required(found);
                            Resolution value;
                            isFound = ticket.getResolution(_FI(textOf(feature)), &value, index);
                            outCrossFeed = value.getCrossFeed();
                            outFeed = value.getFeedDirection();
                            outUnits = value.getUnits();
                            return ZENT_OK;
                        });
}

ZentResult ZENT_CALL fnGetStockSizeValues(ZentSessionType session, TarvoJtSettingsType settings,
                                          int32_t* width, int32_t* height, ZentBool* found) {
    return withSettings(session, settings, __func__,
                        [&](ZENTSession& opened, FeatureSettings& ticket) -> ZentResult {
                            int32_t& outWidth = required(width);
                            int32_t& outHeight = required(height);
                            ZentBool& isFound = required(found);
                            const StockSize size = ticket.getStockSize();
                            isFound = !size.isUnspecified();
                            if (isFound != 0) {
                                size.getOrientedDimensions(
                                    opened.getCapabilities().getStockSizeLimits(), &outWidth,
                                    &outHeight);
                            }
                            return ZENT_OK;
                        });
}

} // extern "C"
