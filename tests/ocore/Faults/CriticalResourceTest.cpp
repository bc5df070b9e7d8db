#include "ocore/Faults/OwnedCriticalResource.h"

#include <thread>

#include "ocore/Faults/Trace.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

std::vector<std::u16string> traced;

/// Gathers what is traced while it lives.
class TraceCapture {
public:
    TraceCapture() {
        traced.clear();
        trace::setOutput([](std::u16string_view text) noexcept { traced.emplace_back(text); });
    }
    ~TraceCapture() { trace::setOutput(nullptr); }
    TraceCapture(const TraceCapture&) = delete;
    TraceCapture& operator=(const TraceCapture&) = delete;

    /// The resource names traced since the last call; each must follow "0x<thread>:".
    static std::u16string takeNames() {
        std::u16string names;
        for (const std::u16string& text : traced) {
            const auto colon = text.find(u':');
            if (colon != std::u16string::npos && text.starts_with(u"0x")) {
                names += text.substr(colon + 1);
            }
        }
        traced.clear();
        return names;
    }
};

TEST(CriticalResource, SerialisesThreads) {
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

TEST(CriticalResource, RecordsHoldsInOrderOfTaking) {
    CriticalResource a(u"A");
    CriticalResource b(u"B");
    CriticalResource c(u"C");
    const TraceCapture capture;
    auto first = std::make_unique<OwnedCriticalResource>(a);
    EXPECT_EQ(TraceCapture::takeNames(), u"AA"); // all holds, then this thread's
    auto second = std::make_unique<OwnedCriticalResource>(b);
    EXPECT_EQ(TraceCapture::takeNames(), u"ABAB");
    std::thread([&c] {
        const OwnedCriticalResource other(c);
        EXPECT_EQ(TraceCapture::takeNames(), u"ABCC");
        EXPECT_EQ(OwnedCriticalResource::getRecordedCount(), 3U);
    }).join();
    first.reset();
    first = std::make_unique<OwnedCriticalResource>(c);
    EXPECT_EQ(TraceCapture::takeNames(), u"BCBC");
    second.reset();
    first.reset();
    EXPECT_EQ(OwnedCriticalResource::getRecordedCount(), 0U);
}

TEST(Trace, TakesWhatExceptionsSay) {
    const TraceCapture capture;
    setExceptionLocation(u"a.cpp", 5);
    traced.clear();
    const InvalidZentSessionException exception(u"message\r\n");
    ASSERT_GE(traced.size(), 2U);
    EXPECT_EQ(traced[traced.size() - 2], u"a.cpp, line 5\r\n");
    EXPECT_EQ(traced.back(), u"message\r\n");
}

} // namespace
} // namespace zent::test
