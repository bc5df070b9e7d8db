#pragma once

#include "ZENT_API/ZENTSession.h"

namespace zent {

/// How a call wants a ticket checked: a ZentApplyMode, and whose report dialog it is.
struct ApplyRequest {
    std::uint32_t mode;
    ZentWindow owner;
    const ZentChar* title; // not null in the modes that report; an empty one gives the default
};

/// Brings a ticket into the shape that printers know, then checks it against the session's printer
/// and repairs it, by the request. `problems` tells whether there was anything to repair, `usable`
/// that the user didn't refuse. ZENT_ERR_APPLY_MODE leaves both alone.
ZentResult applyCapabilities(ZENTSession& session, FeatureSettings& ticket,
                             const ApplyRequest& request, ZentBool& problems, bool& usable);

} // namespace zent
