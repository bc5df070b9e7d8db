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

// The name in the report differs from the call's; support staff know it by that.
ZentResult ZENT_CALL fnApplyPrinterCapabilitiesToSettings(ZentSessionType session,
                                                          uint32_t /*mode*/, ZentWindow /*owner*/,
                                                          const ZentChar* /*title*/,
                                                          ZentBool* /*problems*/,
                                                          ZentBool* /*usable*/) {
    return unavailable(session, u"ZENT::fnApplyPrinterCapabilitiesToSettingsSilently()");
}

} // extern "C"
