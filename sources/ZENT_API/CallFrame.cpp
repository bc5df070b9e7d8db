#include "ZENT_API/CallFrame.h"

#include <new>

#include "ocore/Faults/TarvoException.h"
#include "platform/System.h"
#include "plugin_ui/Reports/ExceptionReport.h"
#include "resources/ids.h"

namespace zent {

namespace {

/// The location of a failed call, such as "ZENT::fnOpenSession()". It is empty if memory has run
/// out, since the report must not fail for that.
CXString locationOf(const char* function) noexcept {
    try {
        return formatText("ZENT::%S()", function);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace

ZentResult endCall(const std::exception& exception, bool silent, const char* function) {
    if (!silent) {
        reportException(exception, IDS_CALL_TITLE, locationOf(function), 0, u"");
    }
    return resultCodeOf(exception);
}

bool endUnknownCall(bool silent, const char* function) {
    return !silent && reportUnknownException(IDS_CALL_TITLE, locationOf(function), 0, u"") &&
           platform::unknownExceptionsMayLeave;
}

} // namespace zent
