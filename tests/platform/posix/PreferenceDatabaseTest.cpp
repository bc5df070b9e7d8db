// The preference store where it is a database: where it lies, who may read it, what happens when it
// can't be used, and that processes don't get into each other's way.

#include <chrono>
#include <csignal>
#include <iterator>
#include <thread>

#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ocore/User/Registry.h"
#include "platform/PreferenceStore.h"
#include "platform/posix/Environment.h"
#include "plugin_ui/Reports/BoxCapture.h"
#include "support/LibraryTesting.h"
#include "support/TraceCapture.h"
#include "zent27.h"

namespace zent::test {
namespace {

using namespace platform;

namespace fs = std::filesystem;

constexpr const char16_t* key = u"a\\key";

/// Runs a function in a process of its own.
template <typename Function>
pid_t inChild(const Function& function) {
    const pid_t child = fork();
    if (child == 0) {
        _exit(function() ? 0 : 1);
    }
    return child;
}

bool hasSucceeded(pid_t child) {
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

mode_t modeOf(const fs::path& path) {
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777U;
}

PreferenceStatus write(std::u16string_view name, const ByteBuffer& value) {
    return writePreference(key, name, registryType::binary, value.bytes()).status;
}

/// The first byte of a value, if all others are the same; -1 for no value, -2 for a torn one.
int read(std::u16string_view name, std::size_t size) {
    StoredPreference value;
    if (readPreference(key, name, value).status != PreferenceStatus::done) {
        return -1;
    }
    const std::byte first = value.bytes.empty() ? std::byte{0} : value.bytes.front();
    return value.bytes == std::vector(size, first) ? static_cast<int>(first) : -2;
}

class PreferenceDatabaseTest : public testing::Test {
protected:
    const TemporaryFolder m_scratch;
    const fs::path m_configuration = m_scratch.path() / "not" / "there yet";
    const fs::path m_folder = m_configuration / "zent27";
    const fs::path m_file = m_folder / "preferences.sqlite";
    const Environment m_variable{"XDG_CONFIG_HOME", m_configuration.string()};

    void writeFile(const std::string& content) const {
        fs::create_directories(m_folder);
        std::ofstream(m_file, std::ios::binary) << content;
    }
};

TEST_F(PreferenceDatabaseTest, IsCreatedByWritingForItsOwnerAlone) {
    EXPECT_EQ(read(u"name", 0), -1);
    EXPECT_FALSE(fs::exists(m_scratch.path() / "not"));

    const mode_t mask = umask(0);
    EXPECT_EQ(write(u"name", {}), PreferenceStatus::done);
    umask(mask);
    EXPECT_EQ(modeOf(m_scratch.path() / "not"), 0700U);
    EXPECT_EQ(modeOf(m_folder), 0700U);
    EXPECT_EQ(modeOf(m_file), 0600U);
    EXPECT_EQ(std::distance(fs::directory_iterator(m_folder), {}), 1) << "nothing is left beside";
    EXPECT_EQ(read(u"name", 0), 0);
}

TEST_F(PreferenceDatabaseTest, ReadsAnewWhatAnotherProcessHasChanged) {
    const auto valueOf = [](int number) { return ByteBuffer::fromBool(number != 0); };
    // Only a file that has been as it is for some time is remembered.
    const auto makeOld = [&] {
        fs::last_write_time(m_file, fs::file_time_type::clock::now() - std::chrono::seconds(10));
    };
    ASSERT_EQ(write(u"name", valueOf(0)), PreferenceStatus::done);
    for (const int number : {1, 0, 1}) {
        makeOld();
        EXPECT_EQ(read(u"name", 1), number == 1 ? 0 : 1);
        EXPECT_EQ(read(u"other", 1), -1);
        EXPECT_TRUE(hasSucceeded(
            inChild([&] { return write(u"name", valueOf(number)) == PreferenceStatus::done; })));
        EXPECT_EQ(read(u"name", 1), number);
        EXPECT_EQ(read(u"name", 1), number);
    }
    makeOld();
    EXPECT_EQ(read(u"name", 1), 1);
    fs::rename(m_file, m_folder / "aside");
    EXPECT_EQ(read(u"name", 1), -1);
    ASSERT_EQ(write(u"name", valueOf(0)), PreferenceStatus::done);
    makeOld();
    EXPECT_EQ(read(u"name", 1), 0);
    fs::rename(m_folder / "aside", m_file);
    EXPECT_EQ(read(u"name", 1), 1);
}

/// A store that can't be used gives readers the default, with a trace, and fails for writers, for a
/// reason.
void expectUnusable(const fs::path& file, const std::string& error, const std::string& reason) {
    const Registry registry{};
    const std::string why = file.string() + ": " + reason + "\r\n";
    {
        const TraceCapture trace;
        EXPECT_EQ(registry.getLongValue(key, u"name", 5), 5);
        EXPECT_TRUE(TraceCapture::text().find(file.string() + ": ") != std::string::npos)
            << TraceCapture::text();
    }
    EXPECT_EQ(raised<RegistryRequestException>([&] { registry.setLongValue(key, u"name", 5); }),
              "Registry::setValue(): Call to RegCreateKeyEx(a\\key) failed with result of " +
                  error + ".\r\n" + why);
}

TEST_F(PreferenceDatabaseTest, IsLikeNoneToReadersWhenBroken) {
    ASSERT_EQ(write(u"name", ByteBuffer::fromLong(7)), PreferenceStatus::done);
    const std::string sound = contentOf(m_file);
    std::string noTree = sound; // the first page's type of tree, behind the header
    noTree[100] = '\x7F';
    std::string laterFormat = sound;
    laterFormat[47] = 9;
    const char* const noDatabase = "file is not a database";
    const char* const malformed = "database disk image is malformed";
    for (const auto& [content, error, reason] : Rows<std::string, const char*, const char*>{
             {std::string(5000, 'x'), "26 (0x1a)", noDatabase},
             {"short", "26 (0x1a)", noDatabase},
             {std::string(sound).replace(0, 6, "sqlite"), "26 (0x1a)", noDatabase},
             {noTree, "11 (0xb)", malformed},
             {sound.substr(0, 600), "11 (0xb)", malformed},
             {laterFormat, "1 (0x1)", "SQL logic error"},
         }) {
        writeFile(content);
        expectUnusable(m_file, error, reason);
        EXPECT_EQ(contentOf(m_file), content) << "is left as it was";
    }
    EXPECT_EQ(RegistryRequestException(CXString()).getResultCode(), ResultCode{21});
}

TEST_F(PreferenceDatabaseTest, FailsWriterWhereItCannotBe) {
    const std::string cannotOpen = "unable to open database file";
    fs::create_directory(m_scratch.path() / "not");
    std::ofstream(m_configuration) << "a file";
    expectUnusable(m_file, "14 (0xe)", cannotOpen + " (Not a directory)");
    fs::remove(m_configuration);
    fs::create_directories(m_file);
    expectUnusable(m_file, "14 (0xe)", cannotOpen + " (Is a directory)");

    ZentSessionType session = nullptr;
    ASSERT_EQ(fnOpenSession(ZENT_INTERFACE_VERSION, 6, ZENT_PDL_MONOCHROME_PCL,
                            ZENT_INSTRUCTIONS_BY_MODEL, 0, nullptr, 1, &session),
              ZENT_OK);
    const BoxCapture boxes;
    EXPECT_EQ(fnSetPreferenceBoolValue(session, u"MINE", 1), ZENT_ERR_REGISTRY);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_GT(boxes.shown()[0].body.find(CXString(m_file.c_str()) + u": unable to open"), 0);
    EXPECT_EQ(fnCloseSession(&session), ZENT_OK);
}

TEST_F(PreferenceDatabaseTest, IsOutOfReachInFolderOfAnotherUser) {
    ASSERT_EQ(write(u"name", {}), PreferenceStatus::done);
    for (const fs::path& folder : {m_folder, m_configuration.parent_path()}) {
        fs::permissions(folder, fs::perms::none);
        EXPECT_TRUE(hasSucceeded(inChild([&] {
            constexpr uid_t nobody = 65534; // who is root may read everything
            if (geteuid() == 0 && setuid(nobody) != 0) {
                return false;
            }
            expectUnusable(m_file, "14 (0xe)", "unable to open database file (Permission denied)");
            return !testing::Test::HasFailure();
        })));
        fs::permissions(folder, fs::perms::owner_all);
    }
}

/// How many bytes this process has read from files so far.
std::uint64_t countBytesRead() {
    std::ifstream file("/proc/self/io");
    std::string field;
    std::uint64_t count = 0;
    EXPECT_TRUE(file >> field >> count && field == "rchar:");
    return count;
}

/// Runs a statement on the database as another program would.
void runSql(const fs::path& file, const std::string& sql) {
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(database);
}

TEST_F(PreferenceDatabaseTest, SaysItsFormAndLeavesLaterOnesAlone) {
    constexpr std::size_t lastByteOfForm = 63; // of the file's header
    ASSERT_EQ(write(u"name", ByteBuffer::fromBool(true)), PreferenceStatus::done);
    EXPECT_EQ(contentOf(m_file)[lastByteOfForm], 1);
    runSql(m_file, "PRAGMA user_version = 0"); // as the first versions left it
    EXPECT_EQ(read(u"name", 1), 1);
    EXPECT_EQ(contentOf(m_file)[lastByteOfForm], 0);
    EXPECT_EQ(write(u"other", {}), PreferenceStatus::done);
    EXPECT_EQ(contentOf(m_file)[lastByteOfForm], 1);
    EXPECT_EQ(read(u"name", 1), 1);
    for (const char* const later : {"PRAGMA user_version = 2", "PRAGMA user_version = -1"}) {
        runSql(m_file, later);
        const std::string content = contentOf(m_file);
        expectUnusable(m_file, "24 (0x18)",
                       "a later version of this software keeps other preferences there");
        EXPECT_EQ(contentOf(m_file), content) << "is left as it was";
    }
}

TEST_F(PreferenceDatabaseTest, JudgesSizesBeforeBytesAreRead) {
    ByteBuffer large;
    large.resize(largestPreference);
    ASSERT_EQ(write(u"a large one", large), PreferenceStatus::done);
    ASSERT_EQ(write(u"name", ByteBuffer::fromBool(true)), PreferenceStatus::done);
    const auto expectLittleIsRead = [&] {
        fs::last_write_time(m_file, fs::file_time_type::clock::now() - std::chrono::seconds(10));
        const std::uint64_t before = countBytesRead();
        for (int round = 0; round < 10; ++round) {
            EXPECT_EQ(read(u"name", 1), 1);
            EXPECT_EQ(read(u"other", 1), -1);
        }
        EXPECT_LT(countBytesRead() - before, 100'000U);
    };
    expectLittleIsRead();
    EXPECT_EQ(read(u"a large one", large.size()), 0);

    runSql(m_file, "UPDATE preference SET bytes = zeroblob(20000000) WHERE name = 'a large one'");
    expectLittleIsRead();
    const std::uint64_t before = countBytesRead();
    StoredPreference value;
    const PreferenceResult result = readPreference(key, u"a large one", value);
    EXPECT_EQ(result.status, PreferenceStatus::valueFailed);
    EXPECT_EQ(result.error, std::uint32_t{SQLITE_TOOBIG});
    EXPECT_LT(countBytesRead() - before, 100'000U);
}

TEST_F(PreferenceDatabaseTest, WaitsThroughSignals) {
    ASSERT_EQ(write(u"name", ByteBuffer::fromBool(true)), PreferenceStatus::done);
    std::array<int, 2> ends = {}; // of a pipe, by which the other process says that it has the lock
    ASSERT_EQ(pipe(ends.data()), 0);
    const pid_t holder = inChild([&] {
        sqlite3* database = nullptr;
        const bool isHeld =
            sqlite3_open(m_file.c_str(), &database) == SQLITE_OK &&
            sqlite3_exec(database, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) == SQLITE_OK &&
            ::write(ends[1], "", 1) == 1;
        std::this_thread::sleep_for(std::chrono::seconds(1));
        return isHeld;
    });
    char byte = 1;
    EXPECT_EQ(::read(ends[0], &byte, 1), 1);
    const pid_t reader = inChild([] {
        std::signal(SIGALRM, [](int) {});
        const itimerval often = {{0, 200}, {0, 200}}; // microseconds
        return setitimer(ITIMER_REAL, &often, nullptr) == 0 && read(u"name", 1) == 1;
    });
    EXPECT_TRUE(hasSucceeded(reader));
    EXPECT_TRUE(hasSucceeded(holder));
    close(ends[0]);
    close(ends[1]);
}

TEST_F(PreferenceDatabaseTest, WaitsForOtherProcesses) {
    constexpr std::size_t processes = 8;
    constexpr int rounds = 10;
    constexpr std::size_t size = 20'000; // several pages
    const auto nameOf = [](std::size_t process, int round) {
        return CXString::Format(u"%d/%d", process, round);
    };
    const auto valueOf = [](std::size_t process) {
        ByteBuffer value;
        value.resize(size);
        std::fill_n(value.data(), size, static_cast<std::byte>(process + 1));
        return value;
    };
    std::array<pid_t, processes> writers = {};
    for (std::size_t process = 0; process < processes; ++process) {
        writers[process] = inChild([&] {
            for (int round = 0; round < rounds; ++round) {
                if (write(nameOf(process, round), valueOf(process)) != PreferenceStatus::done ||
                    write(u"shared", valueOf(process)) != PreferenceStatus::done ||
                    read(u"shared", size) <= 0) {
                    return false;
                }
            }
            return true;
        });
    }
    for (const pid_t writer : writers) {
        EXPECT_TRUE(hasSucceeded(writer));
    }
    for (std::size_t process = 0; process < processes; ++process) {
        for (int round = 0; round < rounds; ++round) {
            EXPECT_EQ(read(nameOf(process, round), size), static_cast<int>(process + 1));
        }
    }
    EXPECT_GT(read(u"shared", size), 0);
    EXPECT_EQ(modeOf(m_file), 0600U);
}

} // namespace
} // namespace zent::test
