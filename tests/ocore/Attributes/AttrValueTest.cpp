#include "ocore/Attributes/AttrValueFactory.h"
#include "ocore/Attributes/IppBoolean.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/Attributes/IppNull.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

TEST(AttrValueTest, IsMadeFromText) {
    const Rows<const char16_t*, const char16_t*, AVTE, const char16_t*> rows{
        {u"integer", u" \t\r\n-7abc", AVTE_INTEGER, u"-7"},
        {u"integer", u"+5", AVTE_INTEGER, u"5"},
        {u"integer", u"- 5", AVTE_INTEGER, u"0"},
        {u"integer", u"", AVTE_INTEGER, u"0"},
        {u"integer", u"2147483648", AVTE_INTEGER, u"2147483647"},
        {u"integer", u"-999999999999999999999999", AVTE_INTEGER, u"-2147483648"},
        {u"enum", u"50", AVTE_ENUM, u"50"},
        {u"keyword", u" a b ", AVTE_KEYWORD, u" a b "},
        {u"name", u"", AVTE_NAME, u""},
        {u"text", u"t", AVTE_TEXT, u"t"},
        {u"mimeMediaType", u"a/b", AVTE_MIMEMEDIA, u"a/b"},
        {u"uri", u"file:x", AVTE_URI, u"file:x"},
        {u"boolean", u"yes", AVTE_BOOLEAN, u"true"},
        {u"boolean", u"1", AVTE_BOOLEAN, u"true"},
        {u"boolean", u"TRUE", AVTE_BOOLEAN, u"false"},
        {u"octetString", u"lost", AVTE_NULL, u""},
        {u"Integer", u"1", AVTE_NULL, u""},
    };
    for (const auto& [syntax, text, type, expected] : rows) {
        SCOPED_TRACE(CXString(syntax).toNarrow() + " " + CXString(text).toNarrow());
        const auto value = AttrValueFactory::createAttrValue(syntax, text);
        EXPECT_EQ(value->getAttrValueType(), type);
        EXPECT_EQ(value->getIppSyntax(), syntax); // also of what isn't known
        EXPECT_EQ(value->getIppValue(), expected);
        EXPECT_EQ(value->isSpacePreserved(), type == AVTE_NAME || type == AVTE_TEXT);
    }
}

} // namespace
} // namespace zent::test
