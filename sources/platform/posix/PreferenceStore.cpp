#include "platform/PreferenceStore.h"

#include <cerrno>
#include <memory>
#include <string>

#include <sqlite3.h>
#include <sys/stat.h>

#include "platform/CodePage.h"
#include "platform/System.h"
#include "platform/posix/Pause.h"
#include "platform/posix/PreferenceSnapshot.h"
#include "platform/posix/UserFolders.h"

namespace zent::platform {

namespace {

/// SQLite calls this while another process uses the database, with the number of calls before;
/// false ends the wait. SQLite's own wait counts its pauses as whole ones though signals cut them
/// short.
int waitForOthers(void* /*unused*/, int pauses) {
    constexpr int pause = 5; // milliseconds, as is the next
    constexpr int longestWait = 30'000;
    if (pauses >= longestWait / pause) {
        return 0;
    }
    pauseFor(pause);
    return 1;
}

/// The exception for all that SQLite refuses. It doesn't leave this source.
struct StoreError {
    int code = SQLITE_OK;
    int systemError = 0; // an errno number, if it comes from that
};

void require(int code, int wanted = SQLITE_OK) {
    if (code != wanted) {
        throw StoreError{code};
    }
}

/// A prepared statement. The values that are bound must outlive it.
class Statement {
public:
    Statement(sqlite3* connection, std::string_view sql) {
        sqlite3_stmt* statement = nullptr;
        require(sqlite3_prepare_v2(connection, sql.data(), static_cast<int>(sql.size()), &statement,
                                   nullptr));
        m_statement.reset(statement);
    }

    void bind(std::u16string_view text) {
        // A null address would bind no value in place of an empty one.
        const auto* units = reinterpret_cast<const char*>(text.empty() ? u"" : text.data());
        const std::size_t size = text.size() * sizeof(char16_t);
        require(
            sqlite3_bind_text64(m_statement.get(), ++m_bound, units, size, nullptr, SQLITE_UTF16));
    }
    void bind(std::uint32_t number) {
        require(sqlite3_bind_int64(m_statement.get(), ++m_bound, number));
    }
    void bind(std::span<const std::byte> bytes) {
        const void* data = bytes.empty() ? "" : static_cast<const void*>(bytes.data());
        require(sqlite3_bind_blob64(m_statement.get(), ++m_bound, data, bytes.size(), nullptr));
    }

    /// Goes to the next row; false if there is none.
    bool step() {
        const int code = sqlite3_step(m_statement.get());
        if (code != SQLITE_ROW) {
            require(code, SQLITE_DONE);
        }
        return code == SQLITE_ROW;
    }
    bool isNull(int column) {
        return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
    }
    std::uint32_t getNumber(int column) {
        return static_cast<std::uint32_t>(sqlite3_column_int64(m_statement.get(), column));
    }
    std::vector<std::byte> getBytes(int column) {
        // The order matters: the second call gives the size of what the first has made.
        const void* data = sqlite3_column_blob(m_statement.get(), column);
        requireMemory(data);
        const int size = sqlite3_column_bytes(m_statement.get(), column);
        const auto* bytes = static_cast<const std::byte*>(data);
        return {bytes, bytes + size};
    }
    std::u16string getText(int column) {
        const void* data = sqlite3_column_text16(m_statement.get(), column);
        requireMemory(data);
        const int size = sqlite3_column_bytes16(m_statement.get(), column);
        const auto* units = static_cast<const char16_t*>(data);
        return {units, units + static_cast<std::size_t>(size) / sizeof(char16_t)};
    }

private:
    void requireMemory(const void* data) {
        if (data == nullptr &&
            sqlite3_errcode(sqlite3_db_handle(m_statement.get())) == SQLITE_NOMEM) {
            throw StoreError{SQLITE_NOMEM};
        }
    }

    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
    int m_bound = 0;
};

/// An open database; an unfinished transaction is undone when the object goes.
class Connection {
public:
    /// Opens an existing file. It is opened for writing by readers too, since a reader may be the
    /// one to undo what a process that died has left unfinished.
    explicit Connection(const std::string& path) {
        sqlite3* connection = nullptr;
        const int code = sqlite3_open_v2(path.c_str(), &connection,
                                         SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
        m_connection.reset(connection); // even if it has failed, since it must be closed then too
        if (code != SQLITE_OK) {
            throw StoreError{code, sqlite3_system_errno(connection)};
        }
        require(sqlite3_busy_handler(connection, waitForOthers, nullptr));
    }

    Statement prepare(std::string_view sql) { return {m_connection.get(), sql}; }
    void run(std::string_view sql) { prepare(sql).step(); }

private:
    struct Closer {
        void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
    };
    std::unique_ptr<sqlite3, Closer> m_connection;
};

/// Where the database lies; empty if the user has no home.
std::string getPath() {
    const std::string folder = getConfigFolder();
    return folder.empty() ? folder : folder + "/zent27/preferences.sqlite";
}

bool isMissing(const std::string& path) {
    struct stat status = {};
    return stat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

/// Makes an empty file, and the folders that it lies in. What is there already stays; if something
/// can't be made, opening the database fails. Gives the first reason for that, else 0.
int createFile(const std::string& path) {
    int reason = 0;
    const auto note = [&reason](int result) {
        if (result != 0 && errno != EEXIST && reason == 0) {
            reason = errno;
        }
    };
    for (std::size_t end = path.find('/', 1); end != std::string::npos;
         end = path.find('/', end + 1)) {
        note(mkdir(path.substr(0, end).c_str(), S_IRWXU));
    }
    // SQLite would let everybody read it. It isn't opened here: closing it again would end the
    // locks that another thread's connection holds on it.
    note(mknod(path.c_str(), S_IFREG | S_IRUSR | S_IWUSR, 0));
    return reason;
}

/// An empty file, as the first writer leaves it for a moment, has no table.
bool hasTable(Connection& database) {
    return database.prepare("SELECT 1 FROM sqlite_schema WHERE name = 'preference'").step();
}

/// Makes SQLite keep texts as they come, unit by unit, even if they aren't valid UTF-16.
constexpr std::string_view keepUnits = "PRAGMA encoding = 'UTF-16le'";

constexpr std::string_view createTable = "CREATE TABLE IF NOT EXISTS preference ("
                                         "key TEXT NOT NULL, "
                                         "name TEXT NOT NULL, "
                                         "type INTEGER NOT NULL, "
                                         "bytes BLOB NOT NULL, "
                                         "PRIMARY KEY (key, name)) STRICT";

/// The form of the database that this library writes. The database holds its number. Databases that
/// were written before the form had a number hold 0, and have the same form.
constexpr std::uint32_t formVersion = 1;
constexpr std::string_view sayForm = "PRAGMA user_version = 1";
/// The code with which a database of a later form fails. SQLite itself no longer uses it.
constexpr int laterForm = SQLITE_FORMAT;

/// Gives the form of a database. A later form fails, since its tables may mean something else.
std::uint32_t requireKnownForm(Connection& database) {
    Statement select = database.prepare("PRAGMA user_version");
    const std::uint32_t version = select.step() ? select.getNumber(0) : 0;
    if (version > formVersion) {
        throw StoreError{laterForm};
    }
    return version;
}

/// Reads all values that may be kept; null if nothing may be kept, since a change of the database
/// couldn't be seen.
std::shared_ptr<const PreferenceSnapshot> readAll(Connection& database, const FileState& state) {
    // With a write-ahead log a change leaves no trace in the file itself.
    Statement mode = database.prepare("PRAGMA journal_mode");
    if (!state.isSettled() || !mode.step() || mode.getText(0) == u"wal") {
        return nullptr;
    }
    const auto snapshot = std::make_shared<PreferenceSnapshot>(state);
    // The database stores the size of a value before it, so that a value that is too large isn't
    // read.
    Statement select = database.prepare(
        "SELECT key, name, type, CASE WHEN length(bytes) <= ? THEN bytes END FROM preference");
    select.bind(PreferenceSnapshot::largestValue);
    for (bool hasRoom = true; hasRoom && select.step();) {
        std::optional<StoredPreference> value;
        if (!select.isNull(3)) {
            value = {select.getNumber(2), select.getBytes(3)};
        }
        hasRoom = snapshot->add(select.getText(0), select.getText(1), std::move(value));
    }
    return snapshot;
}

bool take(const PreferenceSnapshot& snapshot, std::u16string_view key, std::u16string_view name,
          StoredPreference& value) {
    const StoredPreference* const found = snapshot.find(key, name);
    if (found != nullptr) {
        value = *found;
    }
    return found != nullptr;
}

/// Finds a value in the database. `state` is that of its file before the call, if it is known and
/// no snapshot of it is kept; then a new snapshot is.
bool find(const std::string& path, const std::optional<FileState>& state, std::u16string_view key,
          std::u16string_view name, StoredPreference& value) {
    Connection database(path);
    database.run("BEGIN"); // so that all that follows sees one state of the database
    requireKnownForm(database);
    if (!hasTable(database)) {
        return false;
    }
    if (const auto snapshot = state ? readAll(database, *state) : nullptr) {
        PreferenceSnapshot::keep(snapshot);
        if (snapshot->knows(key, name)) {
            return take(*snapshot, key, name, value);
        }
    }
    Statement select = database.prepare("SELECT type, CASE WHEN length(bytes) <= ? THEN bytes END "
                                        "FROM preference WHERE key = ? AND name = ?");
    select.bind(largestPreference);
    select.bind(key);
    select.bind(name);
    if (!select.step()) {
        return false;
    }
    if (select.isNull(1)) {
        throw StoreError{SQLITE_TOOBIG};
    }
    value = {select.getNumber(0), select.getBytes(1)};
    return true;
}

/// Opens a database after an attempt to create it. If that failed, its reason says more than that
/// there is no database.
Connection openCreated(const std::string& path, int reason) {
    try {
        return Connection(path);
    } catch (StoreError& error) {
        error.systemError = reason != 0 ? reason : error.systemError;
        throw;
    }
}

/// Opens the database with a table in it, as the only writer until it is committed.
Connection openForWriting(const std::string& path) {
    if (path.empty()) {
        throw StoreError{SQLITE_CANTOPEN};
    }
    const int reason = createFile(path);
    Connection database = openCreated(path, reason);
    database.run(keepUnits);
    database.run("BEGIN IMMEDIATE");
    if (requireKnownForm(database) != formVersion) {
        database.run(sayForm);
    }
    database.run(createTable);
    return database;
}

PreferenceResult failed(PreferenceStatus status, const StoreError& error) {
    return {status, static_cast<std::uint32_t>(error.code),
            static_cast<std::uint32_t>(error.systemError)};
}

/// Whether an error is about one value or the moment. For a reader any other error is as if there
/// were no store.
bool isOfValue(const StoreError& error) {
    return error.code == SQLITE_BUSY || error.code == SQLITE_LOCKED || error.code == SQLITE_NOMEM ||
           error.code == SQLITE_TOOBIG;
}

} // namespace

PreferenceResult readPreference(std::u16string_view key, std::u16string_view name,
                                StoredPreference& value) {
    const std::string path = getPath();
    const auto state = findFileState(path);
    if (path.empty() || (!state && isMissing(path))) {
        return {PreferenceStatus::noKey, SQLITE_CANTOPEN};
    }
    try {
        // A key doesn't exist apart from its values here, so that only a value can be missing.
        const auto kept = state ? PreferenceSnapshot::findKept(*state) : nullptr;
        const bool found = kept && kept->knows(key, name)
                               ? take(*kept, key, name, value)
                               : find(path, kept ? std::nullopt : state, key, name, value);
        return {found ? PreferenceStatus::done : PreferenceStatus::noValue, SQLITE_OK};
    } catch (const StoreError& error) {
        return failed(isOfValue(error) ? PreferenceStatus::valueFailed : PreferenceStatus::noKey,
                      error);
    }
}

PreferenceResult writePreference(std::u16string_view key, std::u16string_view name,
                                 std::uint32_t type, std::span<const std::byte> bytes) {
    if (key.size() > longestPreferenceName) {
        return {PreferenceStatus::keyFailed, SQLITE_TOOBIG};
    }
    if (name.size() > longestPreferenceName || bytes.size() > largestPreference) {
        return {PreferenceStatus::valueFailed, SQLITE_TOOBIG};
    }
    PreferenceStatus failure = PreferenceStatus::keyFailed;
    PreferenceSnapshot::keep(nullptr);
    try {
        Connection database = openForWriting(getPath());
        failure = PreferenceStatus::valueFailed;
        Statement insert = database.prepare(
            "INSERT OR REPLACE INTO preference (key, name, type, bytes) VALUES (?, ?, ?, ?)");
        insert.bind(key);
        insert.bind(name);
        insert.bind(type);
        insert.bind(bytes);
        insert.step();
        database.run("COMMIT");
        return {};
    } catch (const StoreError& error) {
        return failed(failure, error);
    }
}

std::u16string explainPreferenceFailure(std::u16string_view /*key*/,
                                        const PreferenceResult& result) {
    const std::string path = getPath();
    const std::string_view reason =
        result.error == laterForm ? "a later version of this software keeps other preferences there"
                                  : sqlite3_errstr(static_cast<int>(result.error));
    std::u16string text = fromAnsi(path.empty() ? "the user has no home folder" : path);
    text += u": " + fromAnsi(reason);
    if (result.systemError != 0) {
        text += u" (" + getSystemErrorText(result.systemError) + u")";
    }
    return text;
}

} // namespace zent::platform
