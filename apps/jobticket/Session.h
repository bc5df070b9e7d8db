#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Feature.h"
#include "Value.h"
#include "zent27.h"

namespace jobticket {

class Ticket;

/// The printer that a session is for. Every model has monochrome PCL.
struct PrinterChoice {
    std::uint32_t model = 1;
    std::uint32_t pdl = ZENT_PDL_MONOCHROME_PCL;
    std::uint32_t form = ZENT_INSTRUCTIONS_BY_MODEL; // of printing instructions
};

/// The set of preferences that a session uses: the one of that name; without a name that of the
/// printer's driver, or the one that is shared by all printers.
struct PreferenceSet {
    std::string name;
    bool isShared = true;
};

/// A session of the library, opened silent: what fails is raised as LibraryError, and the program
/// tells the user.
class Session {
public:
    /// Opens a session. To edit tickets as they are any printer will do.
    explicit Session(const PrinterChoice& printer = {}, const PreferenceSet& preferences = {});
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    ZentSessionType getHandle() const { return m_handle; }

    /// Reads a ticket in place of the one that the session holds; `name` is for messages. True if
    /// there is anything in it that the printer can't do, which stays so.
    bool importTicket(std::string_view document, const std::string& name) {
        return import(document, ZENT_FORMAT_XML, name, ZENT_APPLY_SILENT_KEEP);
    }
    /// Reads a ticket in the same way, and repairs what the printer can't do.
    bool importAndRepairTicket(std::string_view document, const std::string& name) {
        return import(document, ZENT_FORMAT_XML, name, ZENT_APPLY_SILENT_REPAIR);
    }
    /// The outcome of a report.
    struct Report {
        bool hadProblems = false;
        bool isTaken = false; // the ticket, as it is now; not if the user refused the repair
    };
    /// Reads a ticket in the same way. A dialog shows the user what the printer can't do; with
    /// `repairs` it is repaired unless the user refuses. Without a display the report goes to
    /// standard error, and the repair counts as refused.
    Report importAndReportTicket(std::string_view document, const std::string& name, bool repairs);
    std::string exportTicket() { return exportAs(ZENT_FORMAT_XML); }
    /// These do the same with a state blob.
    void importState(std::string_view blob, const std::string& name) {
        import(blob, ZENT_FORMAT_STATE, name, ZENT_APPLY_SILENT_KEEP);
    }
    std::string exportState() { return exportAs(ZENT_FORMAT_STATE); }
    /// The printing instructions for a document of the job, in the session's form. The name of the
    /// document may be empty.
    std::string getInstructions(const std::string& documentName);
    /// Makes a state blob anew, with the present user's name and preferences in it.
    std::string renewState(std::string_view blob, const std::string& name);

    /// Lets the user edit the job notes of the ticket in a dialog.
    void showJobNotes();

    /// The ticket that the session holds.
    Ticket getTicket();

private:
    bool import(std::string_view bytes, std::uint32_t format, const std::string& name,
                std::uint32_t mode);
    Report importBy(std::uint32_t mode, std::string_view bytes, std::uint32_t format,
                    const std::string& name);
    std::string exportAs(std::uint32_t format);

    ZentSessionType m_handle = nullptr;
};

/// A ticket, or a part of one, to which a settings handle of a session belongs.
class Ticket {
public:
    /// Makes an empty ticket of its own.
    explicit Ticket(const Session& session);
    ~Ticket();
    Ticket(Ticket&& other) noexcept;
    Ticket(const Ticket&) = delete;
    Ticket& operator=(const Ticket&) = delete;

    std::uint32_t count(const Feature& feature) const;
    /// Replaces a value, or appends it.
    void set(const Feature& feature, std::uint32_t index, const Value& value);
    void remove(const Feature& feature, std::uint32_t index);
    void removeAll();

    /// A copy of the collection that is the value of a feature; empty if there is none.
    Ticket copyNested(const Feature& feature, std::uint32_t index) const;
    void setNested(const Feature& feature, std::uint32_t index, const Ticket& nested);

    /// Makes an empty ticket in the same session.
    Ticket createEmpty() const;

private:
    friend class Session;
    Ticket(ZentSessionType session, TarvoJtSettingsType handle)
        : m_session(session), m_handle(handle) {}
    static Ticket create(ZentSessionType session);

    ZentSessionType m_session;
    TarvoJtSettingsType m_handle;
};

} // namespace jobticket
