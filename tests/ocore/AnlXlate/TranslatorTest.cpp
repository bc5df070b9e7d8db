#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ocore/AnlXlate/AnlDealer.h"
#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/AnlXlate/OrdoTranslator.h"
#include "ocore/OrdoParse/TarvoXmlFile.h"
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
    void write(const ByteBuffer& bytes) override {
        ++count;
        text += textOf(bytes);
    }
    int count = 0;
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
    EXPECT_TRUE(translator == OrdoTranslator()) << "no state that matters";
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

/// Renames on the way out and in.
class RenamingTranslator : public AnlTranslatorForXml {
public:
    int finished = 0;

protected:
    bool prepareForOutput(const AttrNodeList& source, AttrNodeList* target) override {
        *target = source;
        target->addInteger(1, AttrID(u"copies"));
        return source.getNumberOfNodes() > 1;
    }
    void finishAfterInput(AttrNodeList* list) override {
        ++finished;
        list->removeNode(AttrID(u"copies"));
    }
    std::unique_ptr<TarvoXmlFile> createFileStream(const CXString& fileName) override {
        return std::make_unique<TarvoXmlFile>(XmlDataType::ordo, fileName,
                                              programFolder() + u"ordo-v02025.dtd");
    }
    std::unique_ptr<TarvoXmlDataStream> createDataStream() override {
        return std::make_unique<TarvoXmlDataStream>(XmlDataType::ordo,
                                                    programFolder() + u"ordo-v02025.dtd");
    }
};

TEST(AnlTranslatorForXmlTest, FormsMayChangeListsOnTheirWay) {
    useOrdoDtd();
    const ScratchFolder folder;
    RenamingTranslator translator;
    const AttrNodeList one = listOf("sides=a");
    const AttrNodeList two = listOf("sides=a media=b");

    ByteBuffer buffer;
    translator.anlToBuffer(one, &buffer);
    EXPECT_EQ(textOfList(readOrdo(textOf(buffer))), "sides=a");
    buffer.clear();
    translator.anlToBuffer(two, &buffer);
    EXPECT_EQ(textOfList(readOrdo(textOf(buffer))), "sides=a media=b copies=1");
    EXPECT_EQ(textOfList(two), "sides=a media=b");
    Pieces pieces;
    translator.translate(two, pieces);
    EXPECT_EQ(pieces.text, textOf(buffer));
    translator.anlToFile(two, folder.file("a.xml"));
    EXPECT_EQ(folder.read("a.xml"), textOf(buffer));

    AttrNodeList read;
    translator.anlFromBuffer(buffer, &read);
    EXPECT_EQ(textOfList(read), "sides=a media=b");
    read.removeAllNodes();
    translator.anlFromFile(folder.file("a.xml"), &read);
    EXPECT_EQ(textOfList(read), "sides=a media=b");
    EXPECT_EQ(translator.finished, 2);
    EXPECT_THROW(translator.anlFromBuffer(bytesOf("<"), &read), OrdoParseException);
    EXPECT_EQ(translator.finished, 2) << "not after a failure";
}

/// Holds a list as the text that the tests write lists in.
class TextDealer : public AnlDealer {
public:
    std::unique_ptr<AnlDealer> clone() const override {
        return std::make_unique<TextDealer>(*this);
    }
    bool isEqual(const AnlDealer& other) const override {
        return dynamic_cast<const TextDealer*>(&other) != nullptr && *this == other;
    }
    void anlFromBuffer(const ByteBuffer& source, AttrNodeList* target) override {
        *target = listOf(textOf(source));
    }
    void anlToBuffer(const AttrNodeList& source, ByteBuffer* target) override {
        target->append(bytesOf(textOfList(source)));
    }
    void anlFromFile(const CXString&, AttrNodeList*) override {}
    void anlToFile(const AttrNodeList&, const CXString&) override {}

    std::vector<std::string> noted;

protected:
    void noteNewBuffer(const ByteBuffer& buffer) override {
        noted.push_back(textOf(getBuffer()) + "|" + textOf(buffer));
    }
};

TEST(AnlDealerTest, KeepsAListAsBytes) {
    TextDealer dealer;
    EXPECT_EQ(dealer.size(), 0U);
    dealer.setFromAttrNodeList(listOf("copies=2"));
    dealer.setFromAttrNodeList(listOf("copies=3"));
    EXPECT_EQ(textOf(dealer.getBuffer()), "copies=3") << "replaced, not appended";
    EXPECT_EQ(dealer.noted, (std::vector<std::string>{"|copies=2", "copies=2|copies=3"}));
    EXPECT_EQ(textOfList(*dealer.toNewAttrNodeList()), "copies=3");
    AttrNodeList list;
    dealer.toAttrNodeList(&list);
    EXPECT_EQ(textOfList(list), "copies=3");

    const auto copy = dealer.clone();
    EXPECT_TRUE(copy->isEqual(dealer));
    copy->setBuffer(bytesOf("copies=4"));
    EXPECT_FALSE(copy->isEqual(dealer));
    EXPECT_EQ(dealer.size(), 8U);
}

} // namespace
} // namespace zent::test
