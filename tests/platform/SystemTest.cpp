#include "platform/System.h"

#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using namespace platform;

TEST(System, ReadsIntegersFromProfileFiles) {
    const std::filesystem::path path =
        (std::filesystem::path(testing::TempDir()) / "SystemTest.ini").make_preferred();
    std::ofstream(path) << "outside=1\n"
                           "[debug]\n"
                           "Errors=5\n"
                           "Errors=6\n"
                           "  spaced  =  17  \n"
                           "negative=-3\n"
                           "mixed=12abc\n"
                           "word=abc\n"
                           "empty=\n"
                           "[other]\n"
                           "infra=9\n"
                           "[Debug2]\n"
                           "thread=4\n";
    const CXString file(path.string().c_str());
    for (const auto& [section, key, value] : Rows<const char16_t*, const char16_t*, std::int32_t>{
             {u"debug", u"Errors", 5},
             {u"DEBUG", u"eRRORS", 5},
             {u"debug", u"spaced", 17},
             {u"debug", u"negative", -3},
             {u"debug", u"mixed", 12},
             {u"debug", u"word", 0},
             {u"debug", u"empty", 77},
             {u"debug", u"infra", 77},
             {u"debug", u"thread", 77},
             {u"other", u"infra", 9},
             {u"debug", u"outside", 77},
             {u"none", u"Errors", 77},
         }) {
        EXPECT_EQ(getProfileInteger(section, key, 77, file), value) << CXString(key).toNarrow();
    }
    std::filesystem::remove(path);
    EXPECT_EQ(getProfileInteger(u"debug", u"Errors", 77, file), 77);
}

} // namespace
} // namespace zent::test
