#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "abi/ZentLiteral.h"
#include "support/Testing.h"
#include "zent27.h"

namespace zent::test {

/// Holds all that the calls need. It is made beforehand, so that only their own allocations count.
/// The ticket has problems, so that there is something to repair.
struct Job {
    ZentSessionType s = nullptr;
    TarvoJtSettingsType t = nullptr;
    std::string xml = readTestFile("../examples/exception-pages-with-inserts.xml");
    std::string blob;
    std::string output = std::string(1 << 20, '\0');
    ZentBool flag = 0;
    ZentBool flag2 = 0;
    std::int32_t number = 0;
    std::uint32_t size = 0;

    Job() {
        EXPECT_EQ(open(&s), ZENT_OK);
        EXPECT_EQ(fnGetTarvoJtSettingsFromSession(s, &t), ZENT_OK);
        renew();
        EXPECT_EQ(exportAs(ZENT_FORMAT_STATE), ZENT_OK);
        blob = fetched();
        EXPECT_EQ(exportAs(ZENT_FORMAT_XML), ZENT_OK);
        xml = fetched();
    }
    ~Job() { EXPECT_EQ(fnCloseSession(&s), ZENT_OK); }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    /// Brings the session back to the ticket that it began with. No result waits to be fetched
    /// then.
    void renew() {
        ASSERT_EQ(import(xml, ZENT_FORMAT_XML, ZENT_APPLY_SILENT_KEEP), ZENT_OK);
        ASSERT_EQ(fnSetNumberValue(s, t, ZT("copies"), 70000, 0), ZENT_OK);
    }
    /// The bytes that the last call handed out.
    std::string fetched() const { return output.substr(0, size); }

    static ZentResult open(ZentSessionType* opened) {
        return fnOpenSession(27, 6, 2, ZENT_INSTRUCTIONS_STREAM, 1, nullptr, 1, opened);
    }
    ZentResult import(const std::string& data, std::uint32_t format, std::uint32_t mode) {
        return fnImportJobTicket(s, data.data(), static_cast<std::uint32_t>(data.size()), format,
                                 mode, nullptr, ZT("Problems"), &flag, &flag2);
    }
    ZentResult exportAs(std::uint32_t format) {
        size = static_cast<std::uint32_t>(output.size());
        return fnExportJobTicket(s, output.data(), &size, format);
    }
    ZentResult instructions(const char* document) {
        size = static_cast<std::uint32_t>(output.size());
        return fnGetPrintInstructions(s, output.data(), &size, document);
    }
};

/// A call with sensible arguments, to be made under circumstances of the test's own.
struct Call {
    const char* name;
    std::function<ZentResult(Job&)> call;
    bool handsOut = false; // bytes, the same ones each time
};

/// Every kind of call there is.
std::vector<Call> allCalls();

} // namespace zent::test
