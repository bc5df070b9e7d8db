#include "ZENT_API/CallFrame.h"

#include <new>

#include "ocore/Faults/TarvoException.h"
#include "platform/System.h"
#include "plugin_ui/Reports/ExceptionReport.h"
#include "resources/ids.h"

namespace zent {

namespace {

/// The location as text, or none if memory has run out: a report mustn't fail for that.
CXString textOfLocation(const char16_t* location) noexcept {
    try {
        return location;
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace

ZentResult endCall(const std::exception& exception, bool silent, const char16_t* location) {
    if (!silent) {
        reportException(exception, IDS_CALL_TITLE, textOfLocation(location), 0, u"");
    }
    return resultCodeOf(exception);
}

bool endUnknownCall(bool silent, const char16_t* location) {
    return !silent && reportUnknownException(IDS_CALL_TITLE, textOfLocation(location), 0, u"") &&
           platform::unknownExceptionsMayLeave;
}

} // namespace zent
