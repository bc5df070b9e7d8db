// A raise site can't pass its place to the constructor of every exception class, so that it leaves
// the place in a record, from which the constructor of the base class takes it.

#include "ocore/Faults/TarvoException.h"

#include <memory>
#include <new>
#include <typeinfo>
#include <utility>

#include "ocore/Faults/OwnedCriticalResource.h"
#include "ocore/Faults/Trace.h"
#include "platform/KeepForever.h"
#include "platform/System.h"
#include "resources/ids.h"

namespace zent {

namespace {

/// Where the next exception is raised, as its raise site has said.
struct PendingLocation {
    CriticalResource guard{u"TarvoException"};
    CXString file;
    std::int32_t line = 0;
    std::uint32_t level = traceLevel::general;

    void reset() {
        file.clear();
        line = 0;
        level = traceLevel::general;
    }
};

PendingLocation& pendingLocation() {
    static PendingLocation& pending = keepForever<PendingLocation>();
    return pending;
}

const char* bareName(const char* path) {
    const char* name = path;
    for (const char* c = path; *c != '\0'; ++c) {
        if (*c == '/' || *c == '\\') {
            name = c + 1;
        }
    }
    return name;
}

} // namespace

void setExceptionLocation(const CXString& file, std::int32_t line) {
    PendingLocation& pending = pendingLocation();
    const OwnedCriticalResource hold(pending.guard);
    pending.file = file;
    pending.line = line;
}

void setExceptionLevel(std::uint32_t level) {
    PendingLocation& pending = pendingLocation();
    const OwnedCriticalResource hold(pending.guard);
    pending.level = level;
}

void noteRaise(SourcePlace place, std::uint32_t level) {
    setExceptionLocation(CXString(bareName(place.file)), place.line);
    setExceptionLevel(level);
}

ReportTexts ReportTexts::ofAny() { return {IDS_FAILURE, IDS_FAILURE_ADVICE}; }

TarvoException::TarvoException() : TarvoException(CXString()) {}

TarvoException::TarvoException(const CXString& message) : TarvoException(0, message) {}

TarvoException::TarvoException(std::uint32_t traceMask, CXString message)
    : m_message(std::move(message)) {
    {
        PendingLocation& pending = pendingLocation();
        const OwnedCriticalResource hold(pending.guard);
        m_locationFile = pending.file;
        m_locationLine = pending.line;
        m_traceLevel = pending.level;
        pending.reset();
    }
    trace::location(m_locationFile, m_locationLine);
    trace::output(m_traceLevel | traceMask, m_message);
}

CXString getErrorNumberText(const std::exception& exception) {
    const auto* own = dynamic_cast<const TarvoException*>(&exception);
    if (own == nullptr) {
        return u"000:000:000";
    }
    return own->getErrorId() + formatText(":%04d", own->getLocationLine());
}

ResultCode resultCodeOf(const std::exception& exception) noexcept {
    if (const auto* own = dynamic_cast<const TarvoException*>(&exception)) {
        return own->getResultCode();
    }
    return dynamic_cast<const std::bad_alloc*>(&exception) != nullptr ? ZENT_ERR_OUT_OF_MEMORY
                                                                      : ZENT_ERR_STD_EXCEPTION;
}

CXString getDetailsReport(const std::exception& exception) {
    CXString details = formatText("%S\r\n", platform::getTypeName(typeid(exception)));
    const auto* const own = dynamic_cast<const TarvoException*>(&exception);
    if (own == nullptr) {
        return details + u"No additional information available.\r\n";
    }
    if (const CXString type = own->getErrorType(); !type.isEmpty()) {
        details += formatText("\tError Type: %s\r\n", type);
    }
    details +=
        formatText("Location: %s, line %d\r\n", own->getLocationFile(), own->getLocationLine());
    details += u"Message is:\r\n\t";
    details += own->getMessage();
    return details;
}

} // namespace zent
