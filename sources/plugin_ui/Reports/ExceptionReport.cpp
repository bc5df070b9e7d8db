#include "plugin_ui/Reports/ExceptionReport.h"

#include <new>

#include "ocore/Faults/Exceptions.h"
#include "ocore/Faults/Trace.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "plugin_ui/Reports/UserMessage.h"
#include "resources/ids.h"

namespace zent {

namespace {

/// A box gets its title by number, or as a text if there is one.
struct Title {
    std::uint32_t id = 0;
    CXString text;
};

/// All variants of a report are given this besides the exception.
struct Context {
    platform::WindowHandle owner;
    const CXString& locationName;
    std::uint32_t extraMessageId;
    const CXString& extraText;
};

template <typename E>
bool isA(const std::exception& exception) {
    return dynamic_cast<const E*>(&exception) != nullptr;
}

CXString loadTitle(platform::WindowHandle owner, const Title& title) {
    if (!title.text.isEmpty()) {
        return title.text;
    }
    CXString found;
    if (title.id != 0) {
        found = ResourceLibrary().getString(title.id);
    } else if (owner != nullptr) {
        found = platform::getWindowCaption(owner);
    }
    return found.isEmpty() ? ResourceLibrary().getString(IDS_ERROR_TITLE) : found;
}

void compose(UserMessage& message, const Context& context, const CXString& title, ReportTexts texts,
             bool isStoppingOffered, const CXString& explanation, const CXString& errorNumber) {
    const ResourceLibrary library;
    CXString body = library.getString(texts.failure);
    const auto addParagraph = [&body](const CXString& paragraph) {
        body += u"\r\n\r\n";
        body += paragraph;
    };
    addParagraph(library.getString(texts.advice));
    if (context.extraMessageId != 0) {
        addParagraph(library.getString(context.extraMessageId));
    }
    if (!explanation.isEmpty()) {
        addParagraph(explanation);
    }
    if (isStoppingOffered) {
        addParagraph(library.getString(IDS_STOP_OFFER));
        message.setFlags(messageStyle::okCancel);
    }
    if (!errorNumber.isEmpty()) {
        addParagraph(errorNumber);
    }
    message.setTitle(!title.isEmpty() ? title
                                      : CXString(platform::getWindowCaption(context.owner)));
    message.setBody(body);
}

/// The text is fixed because the resource strings themselves are out of reach.
void showMissingResources(const std::exception& exception) {
    UserMessage message(u"Tarvo Printer Driver",
                        u"Could not load the resource DLL. It's probably missing. Translated "
                        u"strings are not available. Please reinstall the driver.",
                        0);
    message.setException(&exception);
    message.show();
}

void traceReport(const Context& context, const CXString& details) {
    trace::output(context.locationName);
    trace::output(details);
    trace::output(context.extraText);
}

/// Runs a step of a report, of which no failure may come out in place of the one reported.
template <typename Step>
bool succeeds(const Step& step) noexcept {
    try {
        step();
        return true;
    } catch (...) {
        return false;
    }
}

std::int32_t showReport(const std::exception& exception, const Title& title,
                        const Context& context) noexcept {
    CXString titleText;
    succeeds([&] { titleText = loadTitle(context.owner, title); });
    if (isA<ResourceLibraryConstructionException>(exception)) {
        succeeds([&] { showMissingResources(exception); });
    }
    std::int32_t answer = 0;
    succeeds([&] {
        if (isA<std::bad_alloc>(exception)) {
            UserMessage(context.owner, IDS_ERROR_TITLE, IDS_OUT_OF_MEMORY, 0).show();
            return;
        }
        const CXString details = getDetailsReport(exception);
        traceReport(context, details);
        UserMessage message(context.owner);
        const auto* const own = dynamic_cast<const TarvoException*>(&exception);
        compose(message, context, titleText,
                own != nullptr ? own->getReportTexts() : ReportTexts::ofAny(), false,
                own != nullptr ? own->getExplanation() : CXString(), getErrorNumberText(exception));
        answer = message.show();
    });
    return answer;
}

void report(const std::exception& exception, const Title& title, const Context& context) {
    if (showReport(exception, title, context) != messageAnswer::cancel) {
        return;
    }
    if (platform::isDebuggerPresent()) {
        platform::breakIntoDebugger();
    } else if (std::current_exception() != nullptr) {
        throw;
    }
}

bool reportUnknown(const Title& title, const Context& context) noexcept {
    bool isStopping = true;
    succeeds([&] {
        traceReport(context, CXString());
        UserMessage message(context.owner);
        compose(message, context, loadTitle(context.owner, title),
                {IDS_FAILURE, IDS_UNKNOWN_FAILURE_ADVICE}, true, CXString(), CXString());
        isStopping = message.show() == messageAnswer::cancel;
    });
    return isStopping;
}

} // namespace

void reportException(const std::exception& exception, std::uint32_t titleId,
                     const CXString& locationName, std::uint32_t extraMessageId,
                     const CXString& extraText) {
    report(exception, {titleId, {}}, {nullptr, locationName, extraMessageId, extraText});
}

void reportException(const std::exception& exception, const CXString& title,
                     const CXString& locationName, std::uint32_t extraMessageId,
                     const CXString& extraText) {
    report(exception, {0, title}, {nullptr, locationName, extraMessageId, extraText});
}

void reportException(platform::WindowHandle owner, const std::exception& exception,
                     std::uint32_t titleId, const CXString& locationName,
                     std::uint32_t extraMessageId, const CXString& extraText) {
    report(exception, {titleId, {}}, {owner, locationName, extraMessageId, extraText});
}

void reportException(platform::WindowHandle owner, const std::exception& exception,
                     const CXString& title, const CXString& locationName,
                     std::uint32_t extraMessageId, const CXString& extraText) {
    report(exception, {0, title}, {owner, locationName, extraMessageId, extraText});
}

bool reportUnknownException(std::uint32_t titleId, const CXString& locationName,
                            std::uint32_t extraMessageId, const CXString& extraText) noexcept {
    return reportUnknown({titleId, {}}, {nullptr, locationName, extraMessageId, extraText});
}

bool reportUnknownException(const CXString& title, const CXString& locationName,
                            std::uint32_t extraMessageId, const CXString& extraText) noexcept {
    return reportUnknown({0, title}, {nullptr, locationName, extraMessageId, extraText});
}

bool reportUnknownException(platform::WindowHandle owner, std::uint32_t titleId,
                            const CXString& locationName, std::uint32_t extraMessageId,
                            const CXString& extraText) noexcept {
    return reportUnknown({titleId, {}}, {owner, locationName, extraMessageId, extraText});
}

bool reportUnknownException(platform::WindowHandle owner, const CXString& title,
                            const CXString& locationName, std::uint32_t extraMessageId,
                            const CXString& extraText) noexcept {
    return reportUnknown({0, title}, {owner, locationName, extraMessageId, extraText});
}

} // namespace zent
