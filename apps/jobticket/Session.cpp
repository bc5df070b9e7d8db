#include "Session.h"

#include <limits>
#include <utility>

#include "Errors.h"
#include "Text.h"
#include "platform/CodePage.h"

namespace jobticket {

namespace {

ZentText textOf(const Feature& feature) { return toZent(feature.getId().getName()); }

/// Chooses the call for each kind of value.
struct Setter {
    ZentSessionType session;
    TarvoJtSettingsType settings;
    const Feature& feature;
    std::uint32_t index;

    void operator()(const std::u16string& text) const {
        check(fnSetStringValue(session, settings, textOf(feature).c_str(), toZent(text).c_str(),
                               index),
              "fnSetStringValue", feature.getName());
    }
    void operator()(std::int32_t number) const {
        check(fnSetNumberValue(session, settings, textOf(feature).c_str(), number, index),
              "fnSetNumberValue", feature.getName());
    }
    void operator()(const Range& range) const {
        check(fnSetRangeValues(session, settings, textOf(feature).c_str(), range.lower, range.upper,
                               index),
              "fnSetRangeValues", feature.getName());
    }
    void operator()(const DotDensity& density) const {
        check(fnSetResolutionValue(session, settings, textOf(feature).c_str(), density.crossFeed,
                                   density.feed, density.units, index),
              "fnSetResolutionValue", feature.getName());
    }
    void operator()(const Size& size) const {
        check(fnSetStockSizeValues(session, settings, size.width, size.height),
              "fnSetStockSizeValues", feature.getName());
    }
};

/// The size of a document, as the calls take it.
std::uint32_t sizeOf(std::string_view bytes, const char* call, const std::string& subject) {
    if (bytes.size() > std::numeric_limits<std::uint32_t>::max()) {
        throw LibraryError(ZENT_ERR_XML_OTHER, call, subject);
    }
    return static_cast<std::uint32_t>(bytes.size());
}

} // namespace

Session::Session(const PrinterChoice& printer, const PreferenceSet& preferences) {
    constexpr ZentBool silent = 1;
    check(fnOpenSession(ZENT_INTERFACE_VERSION, printer.model, printer.pdl, printer.form, silent,
                        toZent(fromUtf8(preferences.name)).c_str(), preferences.isShared ? 1 : 0,
                        &m_handle),
          "fnOpenSession");
}

Session::~Session() { fnCloseSession(&m_handle); }

bool Session::import(std::string_view bytes, std::uint32_t format, const std::string& name,
                     std::uint32_t mode) {
    const Report report = importBy(mode, bytes, format, name);
    if (!report.isTaken) {
        throw ProgramError(ExitStatus::libraryFailure,
                           name + ": the ticket isn't taken, since the printer can't do all of it");
    }
    return report.hadProblems;
}

Session::Report Session::importBy(std::uint32_t mode, std::string_view bytes, std::uint32_t format,
                                  const std::string& name) {
    const ZentChar usualTitle[] = {0};
    ZentBool problems = 0;
    ZentBool applied = 0;
    check(fnImportJobTicket(m_handle, bytes.data(), sizeOf(bytes, "fnImportJobTicket", name),
                            format, mode, nullptr, usualTitle, &problems, &applied),
          "fnImportJobTicket", name);
    return {problems != 0, applied != 0};
}

Session::Report Session::importAndReportTicket(std::string_view document, const std::string& name,
                                               bool repairs) {
    return importBy(repairs ? ZENT_APPLY_REPORT_REPAIR : ZENT_APPLY_REPORT_KEEP, document,
                    ZENT_FORMAT_XML, name);
}

void Session::showJobNotes() {
    const ZentResult result =
        fnInvokeTarvoJobTicketDialog(m_handle, ZENT_DIALOG_JOB_NOTES, nullptr, 0);
    if (result == ZENT_ERR_DIALOG_START) {
        throw ProgramError(ExitStatus::libraryFailure,
                           "the dialog can't start; there is no display to show it on, or no "
                           "libzent27-qt.so beside the program");
    }
    check(result, "fnInvokeTarvoJobTicketDialog");
}

std::string Session::exportAs(std::uint32_t format) {
    return fetch<std::string>("fnExportJobTicket", "", [&](void* buffer, std::uint32_t* size) {
        return fnExportJobTicket(m_handle, buffer, size, format);
    });
}

std::string Session::getInstructions(const std::string& documentName) {
    const std::string name = zent::platform::toAnsi(fromUtf8(documentName));
    return fetch<std::string>("fnGetPrintInstructions", documentName,
                              [&](void* buffer, std::uint32_t* size) {
        return fnGetPrintInstructions(m_handle, buffer, size,
                                      name.empty() ? nullptr : name.c_str());
    });
}

std::string Session::renewState(std::string_view blob, const std::string& name) {
    constexpr const char* call = "fnUpdateUserContextInformation";
    const std::uint32_t blobSize = sizeOf(blob, call, name);
    return fetch<std::string>(call, name, [&](void* buffer, std::uint32_t* size) {
        return fnUpdateUserContextInformation(m_handle, blob.data(), blobSize, buffer, size);
    });
}

Ticket Session::getTicket() {
    TarvoJtSettingsType handle = nullptr;
    check(fnGetTarvoJtSettingsFromSession(m_handle, &handle), "fnGetTarvoJtSettingsFromSession");
    return {m_handle, handle};
}

Ticket Ticket::create(ZentSessionType session) {
    TarvoJtSettingsType handle = nullptr;
    check(fnCreateNewTarvoJtSettings(session, &handle), "fnCreateNewTarvoJtSettings");
    if (handle == nullptr) {
        throw LibraryError(ZENT_ERR_OUT_OF_MEMORY, "fnCreateNewTarvoJtSettings", "");
    }
    return {session, handle};
}

Ticket::Ticket(const Session& session) : Ticket(create(session.getHandle())) {}

Ticket Ticket::createEmpty() const { return create(m_session); }

Ticket::Ticket(Ticket&& other) noexcept
    : m_session(other.m_session), m_handle(std::exchange(other.m_handle, nullptr)) {}

Ticket::~Ticket() {
    if (m_handle != nullptr) {
        fnReleaseTarvoJtSettings(m_session, &m_handle); // does nothing to the session's own ticket
    }
}

std::uint32_t Ticket::count(const Feature& feature) const {
    std::uint32_t number = 0;
    check(fnGetNumberOfValues(m_session, m_handle, textOf(feature).c_str(), &number),
          "fnGetNumberOfValues", feature.getName());
    return number;
}

void Ticket::set(const Feature& feature, std::uint32_t index, const Value& value) {
    std::visit(Setter{m_session, m_handle, feature, index}, value);
}

void Ticket::remove(const Feature& feature, std::uint32_t index) {
    check(fnRemovePageLevelFeatureFromTarvoJtSettings(m_session, m_handle, textOf(feature).c_str(),
                                                      index),
          "fnRemovePageLevelFeatureFromTarvoJtSettings", feature.getName());
}

void Ticket::removeAll() {
    check(fnUnspecifyAllFeatures(m_session, m_handle), "fnUnspecifyAllFeatures");
}

Ticket Ticket::copyNested(const Feature& feature, std::uint32_t index) const {
    TarvoJtSettingsType handle = nullptr;
    check(fnCreateTarvoJtSettingsFromPageLevelFeature(m_session, m_handle, textOf(feature).c_str(),
                                                      index, &handle),
          "fnCreateTarvoJtSettingsFromPageLevelFeature", feature.getName());
    if (handle == nullptr) {
        throw LibraryError(ZENT_ERR_OUT_OF_MEMORY, "fnCreateTarvoJtSettingsFromPageLevelFeature",
                           feature.getName());
    }
    return {m_session, handle};
}

void Ticket::setNested(const Feature& feature, std::uint32_t index, const Ticket& nested) {
    check(fnSetPageLevelFeatureFromTarvoJtSettings(m_session, m_handle, textOf(feature).c_str(),
                                                   index, nested.m_handle),
          "fnSetPageLevelFeatureFromTarvoJtSettings", feature.getName());
}

} // namespace jobticket
