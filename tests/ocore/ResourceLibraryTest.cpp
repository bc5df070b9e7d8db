#include "ocore/ResourceLibrary.h"

#include <memory>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/Exceptions.h"
#include "resources/UseResourceLibrary.h"

namespace zent {
namespace {

constexpr std::uint32_t boxTitle = 11619;
constexpr std::uint32_t versionType = 16;
const char16_t* const missing = u"no such library.dll";

/// The message of the exception of class E that `action` raises.
template <typename E, typename Action>
CXString messageOf(const Action& action) {
    try {
        action();
    } catch (const E& exception) {
        return exception.getMessage();
    }
    return u"(nothing was raised)";
}

class ResourceLibraryTest : public testing::Test {
protected:
    void SetUp() override { test::useResourceLibrary(); }
    void TearDown() override { test::useResourceLibrary(); }
};

TEST_F(ResourceLibraryTest, IsLoadedOnceAndFreedWithItsLastObject) {
    auto first = std::make_unique<ResourceLibrary>();
    const platform::ResourceModule* module = &first->getModule();
    ResourceLibrary::setPath(missing);
    auto second = std::make_unique<ResourceLibrary>(); // of no use if it were loaded anew
    EXPECT_EQ(&second->getModule(), module);
    first.reset();
    EXPECT_EQ(second->getString(boxTitle), u"Tarvo job ticket");
    second.reset();
    EXPECT_THROW(ResourceLibrary(), ResourceLibraryConstructionException);
}

TEST_F(ResourceLibraryTest, SaysWhichLibraryIsMissing) {
    ResourceLibrary::setPath(missing);
    const CXString message =
        messageOf<ResourceLibraryConstructionException>([] { const ResourceLibrary library; });
    EXPECT_EQ(message.view().find(u"ResourceLibrary ctor failed during LoadLibrary of 'no such "
                                  u"library.dll'. Last Error: "),
              0U)
        << message.toNarrow();
    EXPECT_EQ(message.right(3), u".\r\n");
    test::useResourceLibrary();
    EXPECT_NO_THROW(ResourceLibrary());
}

TEST_F(ResourceLibraryTest, RefusesFilesThatAreNoLibrary) {
    ResourceLibrary::setPath(u"");
    test::useResourceLibrary(u"ordo-v02025.dtd");
    EXPECT_THROW(ResourceLibrary(), ResourceLibraryConstructionException);
}

TEST_F(ResourceLibraryTest, CutsStringsToTheBuffer) {
    const ResourceLibrary library;
    char16_t buffer[8] = u"xxxxxxx";
    EXPECT_EQ(library.getString(boxTitle, buffer, 6), 5);
    EXPECT_EQ(std::u16string_view(buffer), u"Tarvo");
    EXPECT_EQ(buffer[6], u'x');
}

TEST_F(ResourceLibraryTest, SaysWhatItDoesNotHold) {
    const ResourceLibrary library;
    const struct {
        CXString message;
        const char16_t* expected;
    } rows[] = {
        {messageOf<ResourceAcquisitionException>([&] { library.getString(65000); }),
         u"ResourceLibrary::getString(65000) failed - LoadString returned ZERO.\r\n"},
        {messageOf<ResourceAcquisitionException>([&] { library.getString(boxTitle + 65536); }),
         u"ResourceLibrary::getString(77155) failed - LoadString returned ZERO.\r\n"},
        {messageOf<ResourceAcquisitionException>([&] { library.getIconHandle(65000); }),
         u"ResourceLibrary::getIconHandle() failed in ::LoadIcon(), returned NULL\r\n"},
        {messageOf<ResourceAcquisitionException>([&] { library.loadRawData(0); }),
         u"ResourceLibrary::loadResData() failed - ResourceID == 0\r\n"},
        {messageOf<ResourceAcquisitionException>([&] { library.loadDialog(65000); }),
         u"ResourceLibrary::loadResData() failed in ::FindResource()\r\n"},
        {messageOf<ResourceAcquisitionException>([&] { library.loadResData(65537, versionType); }),
         u"ResourceLibrary::loadResData() failed in ::FindResource()\r\n"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.message, row.expected);
    }
}

TEST_F(ResourceLibraryTest, CopiesResources) {
    ResourceData data = ResourceLibrary().loadResData(1, versionType);
    EXPECT_EQ(data.getResourceId(), 1U);
    EXPECT_EQ(data.getResourceType(), versionType);
    // A version resource starts with its own size, the size of its value, 0 and its key.
    ASSERT_GT(data.getSize(), 40U);
    EXPECT_EQ(data.getBytes().getAsLongValue() & 0xFFFF, static_cast<int>(data.getSize()));
    EXPECT_EQ(ByteBuffer(data.getResourceData() + 6, 30).getAsString(), u"VS_VERSION_INFO");
}

TEST_F(ResourceLibraryTest, ResourceDataChecksItsContentAndType) {
    ResourceData data;
    EXPECT_EQ(messageOf<ResourceAcquisitionException>([&] { data.getResourceData(); }),
              u"ResourceData::getResourceData() failed - ResourceData ByteBuffer EMPTY!\r\n");
    data.setResourceId(7);
    EXPECT_EQ(data.getResourceId(), 7U);
    for (const std::uint32_t type : {1U, 2U, 3U, 5U, 10U}) {
        data.setResourceType(type);
        EXPECT_EQ(data.getResourceType(), type);
    }
    EXPECT_EQ(messageOf<UnknownCaseException>([&] { data.setResourceType(versionType); }),
              u"ResourceData::setResourceType() EXCEPTION - unknown switch (RT_) value\r\n");
    EXPECT_EQ(data.getResourceType(), 10U);
}

} // namespace
} // namespace zent
