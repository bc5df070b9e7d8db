#include <string>

#include <gtest/gtest.h>

#include "ocore/AnlXlate/OrdoTranslator.h"
#include "support/ListText.h"
#include "support/OrdoDocument.h"
#include "support/ScratchFolder.h"

namespace zent::test {
namespace {

ByteBuffer bytesOf(std::string_view text) { return {text.data(), text.size()}; }

class Pieces : public Stream {
public:
    void write(const ByteBuffer& piece) override { bytes.append(piece); }
    ByteBuffer bytes;
};

TEST(OrdoTranslatorTest, AllWaysGiveTheSameDocument) {
    useOrdoDtd();
    const ScratchFolder folder;
    const AttrNodeList list = listOf("copies=2 job-name=name:x");
    OrdoTranslator translator;
    const std::string document = writeOrdo(list);

    ByteBuffer buffer = bytesOf("before");
    translator.anlToBuffer(list, &buffer);
    EXPECT_EQ(buffer, bytesOf("before" + document)) << "appends";
    Pieces pieces;
    translator.translate(list, pieces);
    EXPECT_EQ(pieces.bytes, bytesOf(document));
    folder.write("a.xml", std::string(10'000, 'x'));
    translator.anlToFile(list, folder.file("a.xml"));
    EXPECT_EQ(folder.read("a.xml"), document) << "replaces";
    AttrNodeList read;
    translator.anlFromFile(folder.file("a.xml"), &read);
    EXPECT_EQ(textOfList(read), textOfList(list));

    translator.setFormatted(false);
    translator.anlToFile(list, folder.file("a.xml"));
    const std::string compact = folder.read("a.xml");
    EXPECT_EQ(compact.find('\t'), std::string::npos);
    EXPECT_EQ(textOfList(readOrdo(compact)), textOfList(list));
}

TEST(OrdoTranslatorTest, FailuresLeaveWhatWasThere) {
    useOrdoDtd();
    ByteBuffer buffer = bytesOf("before");
    EXPECT_THROW(OrdoTranslator().anlToBuffer(listOf("copies=1 nobody-knows=2"), &buffer),
                 OrdoParseException);
    EXPECT_EQ(buffer, bytesOf("before"));
}

} // namespace
} // namespace zent::test
