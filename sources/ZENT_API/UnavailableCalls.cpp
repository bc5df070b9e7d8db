// The calls that this version of the library only declares.

#include "ZENT_API/UnavailableCall.h"

#include "ZENT_API/CallFrame.h"

using namespace zent;

namespace {

ZentResult unavailable(ZentSessionType session, const char16_t* location) {
    return inSession(session, location,
                     [](ZENTSession& /*opened*/) -> ZentResult { throw UnavailableCall(); });
}

} // namespace

extern "C" {

ZentResult ZENT_CALL fnUpdateUserContextInformation(ZentSessionType session, const void* /*blob*/,
                                                    uint32_t /*blobLength*/, void* /*buffer*/,
                                                    uint32_t* /*size*/) {
    return unavailable(session, u"ZENT::fnUpdateUserContextInformation()");
}

ZentResult ZENT_CALL fnGetPrintInstructions(ZentSessionType session, void* /*buffer*/,
                                            uint32_t* /*size*/, const char* /*documentName*/) {
    return unavailable(session, u"ZENT::fnGetPrintInstructions()");
}

// The name in the report differs from the call's; support staff know it by that.
ZentResult ZENT_CALL fnApplyPrinterCapabilitiesToSettings(ZentSessionType session,
                                                          uint32_t /*mode*/, ZentWindow /*owner*/,
                                                          const ZentChar* /*title*/,
                                                          ZentBool* /*problems*/,
                                                          ZentBool* /*usable*/) {
    return unavailable(session, u"ZENT::fnApplyPrinterCapabilitiesToSettingsSilently()");
}

ZentResult ZENT_CALL fnInvokeTarvoJobTicketDialog(ZentSessionType session, uint32_t /*kind*/,
                                                  ZentWindow /*owner*/, uint32_t /*reserved*/) {
    return unavailable(session, u"ZENT::fnInvokeTarvoJobTicketDialog()");
}

ZentResult ZENT_CALL fnGetPreferenceBoolValue(ZentSessionType session, const ZentChar* /*name*/,
                                              ZentBool* /*value*/, ZentBool /*defaultValue*/) {
    return unavailable(session, u"ZENT::fnGetPreferenceBoolValue()");
}

ZentResult ZENT_CALL fnGetPreferenceNumberValue(ZentSessionType session, const ZentChar* /*name*/,
                                                int32_t* /*value*/, int32_t /*defaultValue*/) {
    return unavailable(session, u"ZENT::fnGetPreferenceNumberValue()");
}

ZentResult ZENT_CALL fnGetPreferenceStringValue(ZentSessionType session, const ZentChar* /*name*/,
                                                ZentChar* /*buffer*/, uint32_t* /*size*/,
                                                const ZentChar* /*defaultValue*/) {
    return unavailable(session, u"ZENT::fnGetPreferenceStringValue()");
}

ZentResult ZENT_CALL fnGetPreferenceDataValue(ZentSessionType session, const ZentChar* /*name*/,
                                              void* /*buffer*/, uint32_t* /*size*/,
                                              const void* /*defaultData*/,
                                              uint32_t /*defaultLength*/) {
    return unavailable(session, u"ZENT::fnGetPreferenceDataValue()");
}

ZentResult ZENT_CALL fnSetPreferenceBoolValue(ZentSessionType session, const ZentChar* /*name*/,
                                              ZentBool /*value*/) {
    return unavailable(session, u"ZENT::fnSetPreferenceBoolValue()");
}

ZentResult ZENT_CALL fnSetPreferenceNumberValue(ZentSessionType session, const ZentChar* /*name*/,
                                                int32_t /*value*/) {
    return unavailable(session, u"ZENT::fnSetPreferenceNumberValue()");
}

ZentResult ZENT_CALL fnSetPreferenceStringValue(ZentSessionType session, const ZentChar* /*name*/,
                                                const ZentChar* /*value*/) {
    return unavailable(session, u"ZENT::fnSetPreferenceStringValue()");
}

ZentResult ZENT_CALL fnSetPreferenceDataValue(ZentSessionType session, const ZentChar* /*name*/,
                                              const void* /*data*/, uint32_t /*length*/) {
    return unavailable(session, u"ZENT::fnSetPreferenceDataValue()");
}

} // extern "C"
