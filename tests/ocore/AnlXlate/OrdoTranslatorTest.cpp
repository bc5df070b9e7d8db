#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/AnlXlate/OrdoDtd.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

TEST(OrdoTranslatorTest, NamesThatTheDocumentTypeDoesNotDeclareAreFound) {
    useOrdoDtd();
    const auto failureOf = [](const char* list) {
        return ordoFailure([&] { ordoDtd::requireReadable(listOf(list)); });
    };
    EXPECT_EQ(
        failureOf("copies=1 !nobody-knows=1 media-col{!nobody-knows{copies=1} media-color=a}"),
        "nothing was raised");
    EXPECT_EQ(failureOf("media-col{nobody-knows=1}"),
              "7: OrdoTranslator::requireReadable(): The document type doesn't declare "
              "nobody-knows!\r\n");
}

/// A set of integers, nested in others.
AttrNodeList setOf(std::uint32_t members, std::uint32_t levels) {
    AttrNodeList list;
    AttrNodeList* inner = list.addSetOf(AttrID(u"finishings"));
    for (std::uint32_t level = 2; level < levels; ++level) {
        inner = inner->addSetOf(AttrID(u"value"));
    }
    for (std::uint32_t i = 0; i < members; ++i) {
        inner->addInteger(1, AttrID(u"value"));
    }
    return list;
}

AttrNodeList textOf(char16_t unit, std::size_t length) {
    AttrNodeList list;
    list.addValue(syntax::name, CXString(std::u16string(length, unit)), AttrID(u"job-name"));
    return list;
}

/// How the writing of a list, and then the reading of its document, fail.
template <typename Translator>
std::string failureOf(const AttrNodeList& list) {
    return ordoFailure([&] {
        ByteBuffer document;
        AttrNodeList read;
        Translator translator;
        translator.anlToBuffer(list, &document);
        translator.anlFromBuffer(document, &read);
    });
}

std::string unreadable(const std::string& reason) {
    return "4: XmlWriter::write(): The document would have more " + reason +
           ", and couldn't be read again!\r\n";
}

TEST(OrdoTranslatorTest, WhatCannotBeReadAgainIsNotWritten) {
    useOrdoDtd();
    const std::string fine = "nothing was raised";
    const std::string levels = unreadable("levels than 100");
    EXPECT_EQ(failureOf<OrdoTranslator>(setOf(1, 98)), fine); // within root and category
    EXPECT_EQ(failureOf<OrdoTranslator>(setOf(1, 99)), levels);
    EXPECT_EQ(failureOf<SmallOrdoTranslator>(setOf(1, 99)), fine);
    EXPECT_EQ(failureOf<SmallOrdoTranslator>(setOf(1, 100)), levels);
    // A member is an element, its syntax and text, and in a document laid out the line break too.
    const std::string nodes = unreadable("nodes than 1000000");
    EXPECT_EQ(failureOf<OrdoTranslator>(setOf(249'990, 2)), fine);
    EXPECT_EQ(failureOf<OrdoTranslator>(setOf(250'000, 2)), nodes);
    EXPECT_EQ(failureOf<SmallOrdoTranslator>(setOf(333'340, 2)), nodes);
    // A blob is small, whatever it holds: so its bound is narrower.
    EXPECT_EQ(failureOf<OrdoTranslator>(textOf(u'a', 8'388'700)), fine);
    EXPECT_EQ(failureOf<SmallOrdoTranslator>(textOf(u'a', 8'388'500)), fine);
    EXPECT_EQ(failureOf<SmallOrdoTranslator>(textOf(u'a', 8'388'700)),
              unreadable("characters of text than 8388608"));
}

} // namespace
} // namespace zent::test
