#include "ocore/TarvoException.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/Exceptions.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "support/Rows.h"

namespace zent::test {
namespace {

TEST(OrdoParseException, ItsCodesHaveNamesAndResultCodes) {
    // The first and the last of each run of codes that share a result code.
    const Rows<std::int16_t, const char16_t*, ResultCode> rows{
        {0, u"ILLEGAL_ORDOPARSE_EXCEPTION_CODE", 29},
        {1, u"XMLEXCEPTION_RAISED_DURING_PARSE", 14},
        {2, u"ERROR_REPORTED_DURING_PARSE", 14},
        {3, u"XMLEXCEPTION_RAISED_DURING_XML_GENERATION", 26},
        {4, u"HANDLEOUTPUT_METHOD_FAILED_IN_WRITECHARS", 26},
        {5, u"DOMEXCEPTION_DURING_NODE_CONVERSION", 25},
        {6, u"DOMEXCEPTION_DURING_NODE_CREATION", 26},
        {7, u"NO_CATEGORY_FOR_ORDO_ATTRIBUTE", 26},
        {8, u"NO_XML_SOURCE_BUFFER_SPECIFIED", 28},
        {11, u"TYPE_OF_XML_DATA_NOT_SPECIFIED", 28},
        {12, u"READFILE_FAILED", 25},
        {14, u"FAILED_GETFILESIZE_DURING_READ", 25},
        {15, u"FAILED_CREATFILE_DURING_READ", 23},
        {16, u"FILE_TO_READ_NOT_SPECIFIED", 23},
        {17, u"FAILED_CREATFILE_DURING_WRITE", 24},
        {18, u"FILE_TO_WRITE_NOT_SPECIFIED", 24},
        {19, u"WRITEFILE_FAILED", 26},
        {20, u"ATTEMPT_TO_INIT_ZNXML_AFTER_TERMINATION", 28},
        {23, u"NULL_DOMDOC_OBJECT_RETURNED", 28},
        {24, u"", 28},
        {-1, u"", 28},
    };
    for (const auto& [code, name, result] : rows) {
        const OrdoParseException exception(code, u"");
        EXPECT_EQ(exception.getCodeName(), name);
        EXPECT_EQ(exception.getResultCode(), result) << code;
    }
}

/// Where an exception was raised, at which trace level, and what it says.
std::string described(const TarvoException& exception) {
    return formatText("%s:%d at %d: %s", exception.getLocationFile(), exception.getLocationLine(),
                      exception.getTraceLevel(), exception.getMessage())
        .toNarrow();
}

TEST(TarvoException, TakesTheNotedLocationOnce) {
    setExceptionLocation(u"a.cpp", 674);
    setExceptionLevel(traceLevel::handleCheck);
    const InvalidZentSessionException first(1, u"text");
    const InvalidZentSessionException second;
    setExceptionLocation(u"b.cpp", 2);
    const InvalidZentSessionException copy(first); // NOLINT(performance-*): the copy is the point
    EXPECT_EQ(described(first), "a.cpp:674 at 32768: text");
    EXPECT_EQ(described(copy), described(first));
    EXPECT_EQ(described(second), ":0 at 1024: ");
    EXPECT_EQ(InvalidZentSessionException().getLocationLine(), 2); // copying left it alone
}

TEST(TarvoException, IsRaisedWithTheRaiseSitesPlace) {
    std::int32_t line = 0;
    const auto raisedBy = [](const auto& raise) -> std::string {
        try {
            raise();
        } catch (const TarvoException& exception) {
            return described(exception);
        }
        return "nothing was raised";
    };
    const auto here = [&](const char* rest) {
        return "TarvoExceptionTest.cpp:" + std::to_string(line) + rest;
    };
    const std::string first = raisedBy([&] {
        line = __LINE__ + 1;
        Raise<InvalidAttributeIdException>{traceLevel::xmlLayer}("value '%s' of %d\r\n", u"x", 3);
    });
    EXPECT_EQ(first, here(" at 8192: value 'x' of 3\r\n"));
    const std::string second = raisedBy([&] {
        line = __LINE__ + 1;
        raiseOrdoParse(ordoParseCode::readFileFailed, "read %s, %ld bytes\r\n", u"a.xml", 7);
    });
    EXPECT_EQ(second, here(" at 8192: read a.xml, 7 bytes\r\n"));
}

TEST(TarvoException, ErrorNumberNamesIdAndLine) {
    for (const auto& [line, number] : Rows<std::int32_t, const char16_t*>{
             {0, u"025:000:0000"}, {5, u"025:000:0005"}, {12345, u"025:000:12345"}}) {
        setExceptionLocation(u"a.cpp", line);
        EXPECT_EQ(getErrorNumberText(InvalidZentSessionException()), number);
    }
    setExceptionLocation(u"a.cpp", 200);
    EXPECT_EQ(getErrorNumberText(OrdoParseException(12, u"")), u"001:012:0200");
    EXPECT_EQ(getErrorNumberText(std::runtime_error("other")), u"000:000:000");
}

} // namespace
} // namespace zent::test
