#include "ocore/Resources/ResourceLibrary.h"

#include "resources/ids.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

constexpr std::uint32_t versionType = 16;
const char16_t* const missing = u"no such library.dll";

class ResourceLibraryTest : public testing::Test {
protected:
    void SetUp() override { useResourceLibrary(); }
    void TearDown() override { useResourceLibrary(); }
};

TEST_F(ResourceLibraryTest, IsLoadedOnceAndFreedWithItsLastObject) {
    auto first = std::make_unique<ResourceLibrary>();
    const platform::ResourceModule* module = &first->getModule();
    ResourceLibrary::setPath(missing);
    auto second = std::make_unique<ResourceLibrary>(); // of no use if it were loaded anew
    EXPECT_EQ(&second->getModule(), module);
    first.reset();
    EXPECT_EQ(second->getString(IDS_CALL_TITLE), u"Tarvo job ticket");
    second.reset();
    EXPECT_THROW(ResourceLibrary(), ResourceLibraryConstructionException);
}

TEST_F(ResourceLibraryTest, SaysWhichLibraryIsMissingOrNone) {
    ResourceLibrary::setPath(missing);
    const std::string message =
        raised<ResourceLibraryConstructionException>([] { const ResourceLibrary library; });
    EXPECT_TRUE(message.starts_with("ResourceLibrary ctor failed during LoadLibrary of 'no such "
                                    "library.dll'. Last Error: ") &&
                message.ends_with(".\r\n"))
        << message;
    useResourceLibrary(u"ordo-v02025.dtd");
    EXPECT_THROW(ResourceLibrary(), ResourceLibraryConstructionException);
    ResourceLibrary::setPath(u"zenres27.dll"); // as where the library's own folder isn't known
    EXPECT_THROW(ResourceLibrary(), ResourceLibraryConstructionException);
    useResourceLibrary();
    EXPECT_NO_THROW(ResourceLibrary());
}

TEST_F(ResourceLibraryTest, CutsStringsToTheBuffer) {
    char16_t buffer[8] = u"xxxxxxx";
    EXPECT_EQ(ResourceLibrary().getString(IDS_CALL_TITLE, buffer, 6), 5);
    EXPECT_EQ(std::u16string_view(buffer), u"Tarvo");
    EXPECT_EQ(buffer[6], u'x');
}

TEST_F(ResourceLibraryTest, SaysWhatItDoesNotHold) {
    const ResourceLibrary library;
    const auto messageOf = [](const auto& action) {
        return raised<ResourceAcquisitionException>(action);
    };
    const std::string notFound = "ResourceLibrary::loadResData() failed in ::FindResource()\r\n";
    EXPECT_EQ(messageOf([&] { library.getString(IDS_CALL_TITLE + 65536); }),
              "ResourceLibrary::getString(77155) failed - LoadString returned ZERO.\r\n");
    EXPECT_EQ(messageOf([&] { library.getIconHandle(65000); }),
              "ResourceLibrary::getIconHandle() failed in ::LoadIcon(), returned NULL\r\n");
    EXPECT_EQ(messageOf([&] { library.loadRawData(0); }),
              "ResourceLibrary::loadResData() failed - ResourceID == 0\r\n");
    EXPECT_EQ(messageOf([&] { library.loadDialog(65000); }), notFound);
    EXPECT_EQ(messageOf([&] { library.loadResData(65537, versionType); }), notFound);
}

TEST_F(ResourceLibraryTest, CopiesResources) {
    ResourceData data = ResourceLibrary().loadResData(1, versionType);
    // A version resource starts with its own size, the size of its value, 0 and its key.
    ASSERT_GT(data.getSize(), 40U);
    EXPECT_EQ(data.getBytes().getAsLongValue() & 0xFFFF, static_cast<int>(data.getSize()));
    EXPECT_EQ(ByteBuffer(data.getResourceData() + 6, 30).getAsString(), u"VS_VERSION_INFO");
    EXPECT_EQ(raised<UnknownCaseException>([&] { data.setResourceType(versionType); }),
              "ResourceData::setResourceType() EXCEPTION - unknown switch (RT_) value\r\n");
    EXPECT_EQ(raised<ResourceAcquisitionException>([] { ResourceData().getResourceData(); }),
              "ResourceData::getResourceData() failed - ResourceData ByteBuffer EMPTY!\r\n");
}

} // namespace
} // namespace zent::test
