// Each call is one change of the settings, which drops what was generated from them before.

#include "ZENT_API/Arguments.h"
#include "ZENT_API/CallFrame.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

using namespace zent;

namespace {

/// The frame of a call that changes settings: what was generated from them is dropped, but only if
/// the change succeeded.
template <typename Work>
ZentResult changing(ZentSessionType handle, TarvoJtSettingsType settings, const char* function,
                    Work work) {
    return withSettings(handle, settings, function,
                        [&](ZENTSession& session, FeatureSettings& ticket) -> ZentResult {
                            work(ticket);
                            session.noteSettingsChanged(ticket);
                            return ZENT_OK;
                        });
}

void setText(FeatureSettings& ticket, const _FI& feature, const CXString& text, uint32_t index) {
    if (const auto known = FeatureValue::find(feature.getFeature(), text)) {
        ticket.setFeatureValue(feature, *known, index);
    } else {
        ticket.setString(feature, text, index);
    }
}

} // namespace

extern "C" {

ZentResult ZENT_CALL fnSetStringValue(ZentSessionType session, TarvoJtSettingsType settings,
                                      const ZentChar* feature, const ZentChar* value,
                                      uint32_t index) {
    return changing(session, settings, __func__, [&](FeatureSettings& ticket) {
        setText(ticket, _FI(textOf(feature)), textOf(value), index);
    });
}

ZentResult ZENT_CALL fnSetNumberValue(ZentSessionType session, TarvoJtSettingsType settings,
                                      const ZentChar* feature, int32_t number, uint32_t index) {
    return changing(session, settings, __func__, [&](FeatureSettings& ticket) {
        ticket.setLong(_FI(textOf(feature)), number, index);
    });
}

ZentResult ZENT_CALL fnSetRangeValues(ZentSessionType session, TarvoJtSettingsType settings,
                                      const ZentChar* feature, int32_t lower, int32_t upper,
                                      uint32_t index) {
    return changing(session, settings, __func__, [&](FeatureSettings& ticket) {
        ticket.setRange(_FI(textOf(feature)), lower, upper, index);
    });
}

ZentResult ZENT_CALL fnSetResolutionValue(ZentSessionType session, TarvoJtSettingsType settings,
                                          const ZentChar* feature, int32_t crossFeed, int32_t feed,
                                          int32_t units, uint32_t index) {
    return changing(session, settings, __func__, [&](FeatureSettings& ticket) {
        ticket.setResolution(_FI(textOf(feature)), Resolution(crossFeed, feed, units), index);
    });
}

ZentResult ZENT_CALL fnSetStockSizeValues(ZentSessionType session, TarvoJtSettingsType settings,
                                          int32_t width, int32_t height) {
    return changing(session, settings, __func__, [&](FeatureSettings& ticket) {
        const bool isNone = width == 0 && height == 0;
        ticket.setStockSize(isNone ? StockSize() : StockSize(width, height));
    });
}

ZentResult ZENT_CALL fnUnspecifyFeature(ZentSessionType session, TarvoJtSettingsType settings,
                                        const ZentChar* feature) {
    return changing(session, settings, __func__, [&](FeatureSettings& ticket) {
        ticket.setFeatureValue(_FI(textOf(feature)), FeatureValue());
        ticket.removeEmptyLists();
    });
}

ZentResult ZENT_CALL fnUnspecifyAllFeatures(ZentSessionType session, TarvoJtSettingsType settings) {
    return changing(session, settings, __func__,
                    [](FeatureSettings& ticket) { ticket = FeatureSettings(); });
}

ZentResult ZENT_CALL fnSetPageLevelFeatureFromTarvoJtSettings(ZentSessionType session,
                                                              TarvoJtSettingsType settings,
                                                              const ZentChar* feature,
                                                              uint32_t index,
                                                              TarvoJtSettingsType source) {
    return changing(session, settings, __func__, [&](FeatureSettings& ticket) {
        const _FI id(textOf(feature));
        FeatureSettings& pageSettings = ZENTSession::getSettingsObject(&source);
        if (id.getFeature() == feature::pageOverrides) {
            pageSettings.shapeAsPageOverride();
        }
        ticket.setNestedSettings(id, pageSettings, index);
        ticket.removeEmptyLists();
    });
}

ZentResult ZENT_CALL fnRemovePageLevelFeatureFromTarvoJtSettings(ZentSessionType session,
                                                                 TarvoJtSettingsType settings,
                                                                 const ZentChar* feature,
                                                                 uint32_t index) {
    return changing(session, settings, __func__, [&](FeatureSettings& ticket) {
        ticket.setFeatureValue(_FI(textOf(feature)), FeatureValue(), index);
        ticket.removeEmptyLists();
    });
}

} // extern "C"
