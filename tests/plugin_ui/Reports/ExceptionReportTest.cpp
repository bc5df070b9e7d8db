#include "plugin_ui/Reports/ExceptionReport.h"

#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "plugin_ui/Reports/BoxCapture.h"
#include "resources/UseResourceLibrary.h"
#include "support/Rows.h"

namespace zent::test {
namespace {

/// A class of those that other drivers raise.
template <typename Base>
class Foreign : public Base {
public:
    using Base::Base;
    ResultCode getResultCode() const override { return 99; }
    CXString getErrorId() const override { return u"099:000"; }
};

class UnreadableDocument : public OrdoParseException {
public:
    UnreadableDocument() : OrdoParseException(2, u"") {}
};

using Boxes = std::vector<ShownBox>;

constexpr std::uint32_t boxTitle = 11619;
const char16_t* const call = u"ZENT::fnSomething()";
int anything = 0;
const platform::WindowHandle someWindow = &anything;

/// Resource strings and texts as paragraphs.
CXString body(std::initializer_list<std::uint32_t> ids, const CXString& last) {
    CXString text;
    for (const std::uint32_t id : ids) {
        text += resourceText(id) + u"\r\n\r\n";
    }
    return text + last;
}

class ExceptionReportTest : public testing::Test {
protected:
    ExceptionReportTest() { useResourceLibrary(); }
    ~ExceptionReportTest() override { useResourceLibrary(); }

    static void loseResources() { ResourceLibrary::setPath(u"no such library.dll"); }

    /// Reports from the exception's handler, as a call does.
    template <typename E>
    static void report(const E& exception, std::uint32_t extraMessageId = 0) {
        try {
            throw exception;
        } catch (const std::exception& caught) {
            reportException(caught, boxTitle, call, extraMessageId, u"");
        }
    }
    template <typename E>
    static void reportOf(std::uint32_t extraMessageId) {
        report(E(), extraMessageId);
    }
};

TEST_F(ExceptionReportTest, ChoosesTextsByClass) {
    const Rows<void (*)(std::uint32_t), std::uint32_t, std::uint32_t, const char16_t*> rows{
        {reportOf<Foreign<DevModeOverflowException>>, 11608, 11609, u"099:000:0000"},
        {reportOf<ResourceAcquisitionException>, 11610, 11611, u"005:000:0000"},
        {reportOf<Foreign<SpoolDataException>>, 11612, 11613, u"099:000:0000"},
        {reportOf<RegistryRequestException>, 11614, 11602, u"020:000:0000"},
        {reportOf<UnreadableDocument>, 11615, 11616, u"001:002:0000"},
        {reportOf<CreateFileForReadingException>, 11617, 11618, u"022:001:0000"},
        {reportOf<InvalidZentSessionException>, 11601, 11602, u"025:000:0000"},
        {reportOf<std::exception>, 11601, 11602, u"000:000:000"},
    };
    for (const auto& [reportIt, first, second, number] : rows) {
        const BoxCapture boxes;
        reportIt(0);
        reportIt(11603);
        const CXString title = resourceText(boxTitle);
        EXPECT_EQ(boxes.shown(),
                  (Boxes{{nullptr, body({first, second}, number), title, 16U | 8192U},
                         {nullptr, body({first, second, 11603}, number), title, 16U | 8192U}}))
            << CXString(number).toNarrow();
    }
    const BoxCapture boxes;
    report(std::bad_alloc());
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].title, resourceText(11606));
    EXPECT_EQ(boxes.shown()[0].body, resourceText(11607));
}

TEST_F(ExceptionReportTest, TitleAndOwnerAreTheCallers) {
    const InvalidZentSessionException exception;
    const BoxCapture boxes;
    reportException(exception, u"Ready", call, 0, u"");
    reportException(exception, 0, call, 0, u"");
    reportException(someWindow, exception, 11604, call, 0, u"");
    reportException(nullptr, exception, u"", call, 0, u"");
    EXPECT_FALSE(reportUnknownException(someWindow, boxTitle, call, 0, u""));
    const CXString text = body({11601, 11602}, u"025:000:0000");
    EXPECT_EQ(boxes.shown(), (Boxes{{nullptr, text, u"Ready", 16U | 8192U},
                                    {nullptr, text, resourceText(11606), 16U | 8192U},
                                    {someWindow, text, resourceText(11604), 16U},
                                    {nullptr, text, resourceText(11606), 16U | 8192U},
                                    {someWindow, body({11601, 11621}, resourceText(11620)),
                                     resourceText(boxTitle), 16U | 1U}}));
}

TEST_F(ExceptionReportTest, MissingLibraryIsToldInFixedText) {
    loseResources();
    const BoxCapture boxes;
    try {
        const ResourceLibrary library;
        FAIL();
    } catch (const ResourceLibraryConstructionException& exception) {
        reportException(someWindow, exception, boxTitle, call, 0, u"");
        EXPECT_EQ(boxes.shown(),
                  (Boxes{{nullptr,
                          u"Could not load the resource DLL. It's probably missing. Translated "
                          u"strings are not available. Please reinstall the driver.\r\n\r\n" +
                              getErrorNumberText(exception),
                          u"Tarvo Printer Driver", 16U | 8192U}}));
    }
}

TEST_F(ExceptionReportTest, OwnFailuresStayInside) {
    loseResources();
    const BoxCapture boxes;
    EXPECT_NO_THROW(report(InvalidZentSessionException()));
    EXPECT_NO_THROW(report(std::bad_alloc()));
    EXPECT_TRUE(reportUnknownException(boxTitle, call, 0, u""));
    useResourceLibrary();
    EXPECT_NO_THROW(report(InvalidZentSessionException(), 65000)); // no such text
    EXPECT_TRUE(boxes.shown().empty());

    UserMessage::setPresenter(
        [](platform::WindowHandle, const CXString&, const CXString&,
           std::uint32_t) -> std::int32_t { throw std::runtime_error("no display"); });
    EXPECT_NO_THROW(report(InvalidZentSessionException()));
    EXPECT_TRUE(reportUnknownException(boxTitle, call, 0, u""));
}

TEST_F(ExceptionReportTest, CancelLetsTheExceptionGoOn) {
    if (platform::isDebuggerPresent()) {
        GTEST_SKIP() << "would stop in the debugger";
    }
    const BoxCapture boxes(messageAnswer::cancel);
    EXPECT_THROW(report(InvalidAttributeIdException(u"x")), InvalidAttributeIdException);
    EXPECT_NO_THROW(report(std::bad_alloc())); // its box offers nothing to choose
    EXPECT_TRUE(reportUnknownException(u"Ready", call, 11603, u"more"));
    ASSERT_EQ(boxes.shown().size(), 3U);
    EXPECT_EQ(boxes.shown()[2], (ShownBox{nullptr, body({11601, 11621, 11603}, resourceText(11620)),
                                          u"Ready", 16U | 8192U | 1U}));
}

TEST_F(ExceptionReportTest, DetailsTellTypeLocationAndMessage) {
    setExceptionLocation(u"a.cpp", 12);
    EXPECT_EQ(getDetailsReport(OrdoParseException(12, u"text\r\n")),
              u"zent::OrdoParseException\r\n\tError Type: READFILE_FAILED\r\n"
              u"Location: a.cpp, line 12\r\nMessage is:\r\n\ttext\r\n");
    EXPECT_EQ(getDetailsReport(std::runtime_error("other")),
              u"std::runtime_error\r\nNo additional information available.\r\n");
}

TEST_F(ExceptionReportTest, ResultCodes) {
    EXPECT_EQ(resultCodeOf(InvalidZentSessionException()), 6U);
    EXPECT_EQ(resultCodeOf(std::bad_array_new_length()), 18U);
    EXPECT_EQ(resultCodeOf(std::runtime_error("other")), 31U);
}

} // namespace
} // namespace zent::test
