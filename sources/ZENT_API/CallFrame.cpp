#include "ZENT_API/CallFrame.h"

#include "ocore/ExceptionReport.h"
#include "platform/System.h"

namespace zent {

namespace {
constexpr std::uint32_t boxTitle = 11619;
} // namespace

ZentResult endCall(const std::exception& exception, bool silent, const char16_t* location) {
    if (!silent) {
        reportException(exception, boxTitle, location, 0, u"");
    }
    return resultCodeOf(exception);
}

bool endUnknownCall(bool silent, const char16_t* location) {
    return !silent && reportUnknownException(boxTitle, location, 0, u"") &&
           platform::unknownExceptionsMayLeave;
}

} // namespace zent
