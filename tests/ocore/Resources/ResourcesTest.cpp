#include "ocore/Resources/ByteBuffer.h"
#include "resources/ids.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

ByteBuffer bytes(const std::string& content) { return {content.data(), content.size()}; }

TEST(ByteBufferTest, TakesPartsOfItself) {
    ByteBuffer buffer = bytes("abc");
    for (int i = 0; i < 5; ++i) {
        buffer.append(buffer);
    }
    EXPECT_EQ(buffer.size(), 96U);
    buffer.append(buffer.data() + 95, 1);
    buffer.assign(buffer.data() + 94, 3);
    EXPECT_EQ(buffer, bytes("bcc"));
}

constexpr std::uint32_t versionType = 16;

class ResourceLibraryTest : public testing::Test {
protected:
    void SetUp() override { useResourceLibrary(); }
    void TearDown() override { useResourceLibrary(); }
};

TEST_F(ResourceLibraryTest, IsLoadedOnceAndFreedWithItsLastObject) {
    auto first = std::make_unique<ResourceLibrary>();
    const platform::ResourceModule* module = &first->getModule();
    ResourceLibrary::setPath(u"no such library.dll");
    auto second = std::make_unique<ResourceLibrary>(); // of no use if it were loaded anew
    EXPECT_EQ(&second->getModule(), module);
    first.reset();
    EXPECT_EQ(second->getString(IDS_CALL_TITLE), u"Tarvo job ticket");
    second.reset();
    EXPECT_TRUE(raised<ResourceLibraryConstructionException>([] { const ResourceLibrary none; })
                    .starts_with("ResourceLibrary ctor failed during LoadLibrary of 'no such "
                                 "library.dll'. Last Error: "));
    useResourceLibrary(u"ordo-v02025.dtd");
    EXPECT_THROW(ResourceLibrary(), ResourceLibraryConstructionException);
    ResourceLibrary::setPath(u"zenres27.dll"); // as where the library's own folder isn't known
    EXPECT_THROW(ResourceLibrary(), ResourceLibraryConstructionException);
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
    EXPECT_EQ(messageOf([&] { library.getString(IDS_CALL_TITLE + 65536); }),
              "ResourceLibrary::getString(77155) failed - LoadString returned ZERO.\r\n");
    EXPECT_EQ(messageOf([&] { library.getIconHandle(65000); }),
              "ResourceLibrary::getIconHandle() failed in ::LoadIcon(), returned NULL\r\n");
    EXPECT_EQ(messageOf([&] { library.loadRawData(0); }),
              "ResourceLibrary::loadResData() failed - ResourceID == 0\r\n");
    EXPECT_EQ(messageOf([&] { library.loadResData(65537, versionType); }),
              "ResourceLibrary::loadResData() failed in ::FindResource()\r\n");
    EXPECT_EQ(messageOf([] { ResourceData().getResourceData(); }),
              "ResourceData::getResourceData() failed - ResourceData ByteBuffer EMPTY!\r\n");
    ResourceData data = library.loadResData(1, versionType);
    EXPECT_EQ(ByteBuffer(data.getResourceData() + 6, 30).getAsString(), u"VS_VERSION_INFO");
    EXPECT_THROW(data.setResourceType(versionType), UnknownCaseException);
}

} // namespace
} // namespace zent::test
