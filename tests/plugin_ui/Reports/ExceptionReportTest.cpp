#include "plugin_ui/Reports/ExceptionReport.h"

#include <new>
#include <stdexcept>

#include "ocore/OrdoParse/OrdoParseException.h"
#include "plugin_ui/Reports/BoxCapture.h"
#include "resources/ids.h"
#include "support/LibraryTesting.h"

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

constexpr std::uint32_t boxTitle = IDS_CALL_TITLE;
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
        {reportOf<Foreign<DevModeOverflowException>>, IDS_TICKET_TOO_LARGE,
         IDS_TICKET_TOO_LARGE_ADVICE, u"099:000:0000"},
        {reportOf<ResourceAcquisitionException>, IDS_RESOURCE_MISSING, IDS_RESOURCE_MISSING_ADVICE,
         u"005:000:0000"},
        {reportOf<Foreign<SpoolDataException>>, IDS_SPOOL_FAILURE, IDS_SPOOL_FAILURE_ADVICE,
         u"099:000:0000"},
        {reportOf<RegistryRequestException>, IDS_PREFERENCES_FAILURE, IDS_FAILURE_ADVICE,
         u"020:000:0000"},
        {reportOf<UnreadableDocument>, IDS_TICKET_FAILURE, IDS_TICKET_FAILURE_ADVICE,
         u"001:002:0000"},
        {reportOf<CreateFileForReadingException>, IDS_FILE_FAILURE, IDS_FILE_FAILURE_ADVICE,
         u"022:001:0000"},
        {reportOf<InvalidZentSessionException>, IDS_FAILURE, IDS_FAILURE_ADVICE, u"025:000:0000"},
        {reportOf<std::exception>, IDS_FAILURE, IDS_FAILURE_ADVICE, u"000:000:000"},
    };
    for (const auto& [reportIt, first, second, number] : rows) {
        const BoxCapture boxes;
        reportIt(0);
        reportIt(IDS_INFORMATION_TITLE);
        const CXString title = resourceText(boxTitle);
        EXPECT_EQ(boxes.shown(),
                  (Boxes{{nullptr, body({first, second}, number), title, 16U | 8192U},
                         {nullptr, body({first, second, IDS_INFORMATION_TITLE}, number), title,
                          16U | 8192U}}))
            << CXString(number).toNarrow();
    }
    const BoxCapture boxes;
    report(std::bad_alloc());
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].title, resourceText(IDS_ERROR_TITLE));
    EXPECT_EQ(boxes.shown()[0].body, resourceText(IDS_OUT_OF_MEMORY));
}

TEST_F(ExceptionReportTest, TitleAndOwnerAreTheCallers) {
    const InvalidZentSessionException exception;
    const BoxCapture boxes;
    reportException(exception, u"Ready", call, 0, u"");
    reportException(exception, 0, call, 0, u"");
    reportException(someWindow, exception, IDS_WARNING_TITLE, call, 0, u"");
    reportException(nullptr, exception, u"", call, 0, u"");
    EXPECT_FALSE(reportUnknownException(someWindow, boxTitle, call, 0, u""));
    const CXString text = body({IDS_FAILURE, IDS_FAILURE_ADVICE}, u"025:000:0000");
    EXPECT_EQ(boxes.shown(),
              (Boxes{{nullptr, text, u"Ready", 16U | 8192U},
                     {nullptr, text, resourceText(IDS_ERROR_TITLE), 16U | 8192U},
                     {someWindow, text, resourceText(IDS_WARNING_TITLE), 16U},
                     {nullptr, text, resourceText(IDS_ERROR_TITLE), 16U | 8192U},
                     {someWindow,
                      body({IDS_FAILURE, IDS_UNKNOWN_FAILURE_ADVICE}, resourceText(IDS_STOP_OFFER)),
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
        [](platform::WindowHandle, std::u16string_view, std::u16string_view,
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
    EXPECT_TRUE(reportUnknownException(u"Ready", call, IDS_INFORMATION_TITLE, u"more"));
    ASSERT_EQ(boxes.shown().size(), 3U);
    EXPECT_EQ(boxes.shown()[2],
              (ShownBox{nullptr,
                        body({IDS_FAILURE, IDS_UNKNOWN_FAILURE_ADVICE, IDS_INFORMATION_TITLE},
                             resourceText(IDS_STOP_OFFER)),
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

} // namespace
} // namespace zent::test
