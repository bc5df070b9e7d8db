#include <string>

#include <gtest/gtest.h>

#include "ocore/AnlXlate/OrdoTranslator.h"
#include "support/ListText.h"
#include "support/OrdoDocument.h"
#include "support/Rows.h"
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

TEST(OrdoTranslatorTest, ListsWhoseDocumentCannotBeReadAreKnown) {
    useOrdoDtd();
    const auto nested = [](std::size_t levels) {
        std::string list = "copies=1";
        for (std::size_t level = 1; level < levels; ++level) {
            list = "media-col{" + list + "}";
        }
        return list;
    };
    const Rows<std::string, std::string> rows{
        {"copies=1 !nobody-knows=1 media-col{!nobody-knows{copies=1} media-color=a}", ""},
        {"media-col{nobody-knows=1}", "7: OrdoTranslator::requireReadable(): The document type "
                                      "doesn't declare nobody-knows!\r\n"},
        {nested(98), ""}, // within root and category
        {nested(99), "4: OrdoTranslator::requireReadable(): Elements would be nested deeper than "
                     "100 levels.\r\n"},
    };
    const std::string fine = "nothing was raised";
    for (const auto& [text, failure] : rows) {
        const AttrNodeList list = listOf(text);
        EXPECT_EQ(ordoFailure([&] { OrdoTranslator::requireReadable(list); }),
                  failure.empty() ? fine : failure);
        const std::string document = writeOrdo(list);
        EXPECT_EQ(ordoFailure([&] { readOrdo(document); }) == fine, failure.empty()) << text;
    }
}

} // namespace
} // namespace zent::test
