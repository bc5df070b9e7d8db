#include <stdexcept>
#include <thread>

#include "ocore/Faults/OwnedCriticalResource.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "support/LibraryTesting.h"
#include "support/TraceCapture.h"

namespace zent::test {
namespace {

TEST(CriticalResourceTest, SerialisesThreads) {
    CriticalResource resource(u"test");
    constexpr int rounds = 20'000;
    int entered = 0;
    const auto work = [&] {
        for (int i = 0; i < rounds; ++i) {
            const OwnedCriticalResource hold(resource);
            const OwnedCriticalResource again(resource);
            ++entered;
        }
    };
    std::thread other(work);
    work();
    other.join();
    EXPECT_EQ(entered, 2 * rounds);
    EXPECT_EQ(OwnedCriticalResource::getRecordedCount(), 0U);
}

TEST(CriticalResourceTest, RecordsHoldsUntilTheyEnd) {
    CriticalResource a(u"<A>");
    CriticalResource b(u"<B>");
    const OwnedCriticalResource first(a);
    const TraceCapture trace;
    std::thread([&b] { const OwnedCriticalResource second(b); }).join();
    std::string names = TraceCapture::text();
    std::erase_if(names, [](char c) { return c != 'A' && c != 'B'; });
    EXPECT_EQ(names, "ABB"); // all holds, then those of the thread
    EXPECT_EQ(OwnedCriticalResource::getRecordedCount(), 1U);
}

/// Where an exception was raised, at which trace level, and what it says.
std::string described(const TarvoException& exception) {
    return formatText("%s:%d at %d: %s", exception.getLocationFile(), exception.getLocationLine(),
                      exception.getTraceLevel(), exception.getMessage())
        .toNarrow();
}

TEST(TarvoExceptionTest, TakesTheNotedLocationOnce) {
    setExceptionLocation(u"a.cpp", 674);
    setExceptionLevel(traceLevel::handleCheck);
    const InvalidZentSessionException first(1, u"text");
    const InvalidZentSessionException second;
    setExceptionLocation(u"b.cpp", 2);
    const InvalidZentSessionException copy(first); // NOLINT(performance-*): the copy is the point
    EXPECT_EQ(described(first), "a.cpp:674 at 32768: text");
    EXPECT_EQ(described(copy), described(first));
    EXPECT_EQ(described(second), ":0 at 1024: ");
    EXPECT_EQ(InvalidZentSessionException().getLocationLine(), 2); // copying left it alone
}

TEST(TarvoExceptionTest, IsRaisedWithTheRaiseSitesPlace) {
    std::int32_t line = 0;
    try {
        line = __LINE__ + 1;
        raiseOrdoParse(ordoParseCode::readFileFailed, "read %s, %ld bytes\r\n", u"a.xml", 7);
    } catch (const TarvoException& exception) {
        EXPECT_EQ(described(exception),
                  "FaultsTest.cpp:" + std::to_string(line) + " at 8192: read a.xml, 7 bytes\r\n");
    }
}

TEST(TarvoExceptionTest, ErrorNumberNamesIdAndLine) {
    for (const auto& [line, number] : Rows<std::int32_t, const char16_t*>{
             {0, u"025:000:0000"}, {5, u"025:000:0005"}, {12345, u"025:000:12345"}}) {
        setExceptionLocation(u"a.cpp", line);
        EXPECT_EQ(getErrorNumberText(InvalidZentSessionException()), number);
    }
    setExceptionLocation(u"a.cpp", 200);
    EXPECT_EQ(getErrorNumberText(OrdoParseException(12, u"")), u"001:012:0200");
    EXPECT_EQ(getErrorNumberText(std::runtime_error("other")), u"000:000:000");
}

} // namespace
} // namespace zent::test
