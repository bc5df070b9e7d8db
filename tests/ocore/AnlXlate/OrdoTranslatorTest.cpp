#include <string>

#include <gtest/gtest.h>

#include "ocore/AnlXlate/OrdoTranslator.h"
#include "support/ListText.h"
#include "support/OrdoDocument.h"
#include "support/ScratchFolder.h"

namespace zent::test {
namespace {

ByteBuffer bytesOf(std::string_view text) { return {text.data(), text.size()}; }
std::string textOf(const ByteBuffer& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

class Pieces : public Stream {
public:
    void write(const ByteBuffer& bytes) override { text += textOf(bytes); }
    std::string text;
};

TEST(OrdoTranslatorTest, AllWaysGiveTheSameDocument) {
    useOrdoDtd();
    const ScratchFolder folder;
    const AttrNodeList list = listOf("copies=2 job-name=name:x");
    OrdoTranslator translator;
    const std::string document = writeOrdo(list);

    ByteBuffer buffer = bytesOf("before");
    translator.anlToBuffer(list, &buffer);
    EXPECT_EQ(textOf(buffer), "before" + document) << "appends";
    Pieces pieces;
    translator.translate(list, pieces);
    EXPECT_EQ(pieces.text, document);
    translator.anlToFile(list, folder.file("a.xml"));
    EXPECT_EQ(folder.read("a.xml"), document);

    AttrNodeList fromFile;
    translator.anlFromFile(folder.file("a.xml"), &fromFile);
    EXPECT_EQ(textOfList(fromFile), textOfList(list));

    translator.setFormatted(false);
    ByteBuffer compact;
    translator.anlToBuffer(list, &compact);
    EXPECT_EQ(textOf(compact).find('\t'), std::string::npos);
    EXPECT_EQ(textOfList(readOrdo(textOf(compact))), textOfList(list));
}

TEST(OrdoTranslatorTest, FailuresLeaveWhatWasThere) {
    useOrdoDtd();
    ByteBuffer buffer = bytesOf("before");
    EXPECT_THROW(OrdoTranslator().anlToBuffer(listOf("copies=1 nobody-knows=2"), &buffer),
                 OrdoParseException);
    EXPECT_EQ(textOf(buffer), "before");
    AttrNodeList list = listOf("sides=a");
    EXPECT_EQ(
        ordoFailure([&] { OrdoTranslator().anlFromBuffer(ByteBuffer(), &list); }).substr(0, 3),
        "8: ");
    EXPECT_EQ(textOfList(list), "sides=a");
}

} // namespace
} // namespace zent::test
