#include "ocore/User.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "ocore/FeatureSettings/StockSize.h"
#include "platform/Files.h"
#include "resources/UseResourceLibrary.h"

namespace zent {
namespace {

// What the answers are is for each system's own tests to say.

TEST(UserTest, HasProfileDirectory) {
    const CXString path = User::getProfileDirectoryPath();
    EXPECT_TRUE(std::filesystem::is_directory(std::u16string(path.view()))) << path.toNarrow();
    EXPECT_NE(path.right(1), CXString() + platform::pathSeparator);
}

TEST(UserTest, HasPaperOfKnownSize) {
    test::useResourceLibrary();
    const StockSize size(User::getDefaultStockSize());
    EXPECT_FALSE(size.isUnspecified());
    EXPECT_GT(size.getWidth(), 0);
}

} // namespace
} // namespace zent
