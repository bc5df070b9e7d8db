#include "ocore/ExceptionReport.h"

#include <memory>
#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include "PrintText.h"
#include "ocore/BoxCapture.h"
#include "ocore/Exceptions.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "resources/UseResourceLibrary.h"

namespace zent {
namespace {

using test::BoxCapture;
using test::resourceText;

/// A class of those that other drivers raise.
template <typename Base>
class Foreign : public Base {
public:
    using Base::Base;
    ResultCode getResultCode() const override { return 99; }
    CXString getErrorId() const override { return u"099:000"; }
};

constexpr std::uint32_t boxTitle = 11619;
const char16_t* const call = u"ZENT::fnSomething()";
int anything = 0;
const platform::WindowHandle someWindow = &anything;

class ExceptionReportTest : public testing::Test {
protected:
    void SetUp() override { test::useResourceLibrary(); }
    void TearDown() override { test::useResourceLibrary(); }

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
};

TEST_F(ExceptionReportTest, ChoosesTextsByClass) {
    const struct {
        void (*report)(std::uint32_t);
        std::uint32_t first;
        std::uint32_t second;
        const char16_t* number;
    } rows[] = {
        {[](std::uint32_t x) { report(Foreign<DevModeOverflowException>(), x); }, 11608, 11609,
         u"099:000:0000"},
        {[](std::uint32_t x) { report(ResourceAcquisitionException(), x); }, 11610, 11611,
         u"005:000:0000"},
        {[](std::uint32_t x) { report(Foreign<SpoolDataException>(), x); }, 11612, 11613,
         u"099:000:0000"},
        {[](std::uint32_t x) { report(RegistryRequestException(), x); }, 11614, 11602,
         u"020:000:0000"},
        {[](std::uint32_t x) { report(OrdoParseException(2, u""), x); }, 11615, 11616,
         u"001:002:0000"},
        {[](std::uint32_t x) { report(CreateFileForReadingException(), x); }, 11617, 11618,
         u"022:001:0000"},
        {[](std::uint32_t x) { report(ReadFileException(), x); }, 11617, 11618, u"022:002:0000"},
        {[](std::uint32_t x) { report(InvalidZentSessionException(), x); }, 11601, 11602,
         u"025:000:0000"},
        {[](std::uint32_t x) { report(std::runtime_error("other"), x); }, 11601, 11602,
         u"000:000:000"},
    };
    for (const auto& row : rows) {
        const CXString texts =
            resourceText(row.first) + u"\r\n\r\n" + resourceText(row.second) + u"\r\n\r\n";
        const BoxCapture boxes;
        row.report(0);
        row.report(11603);
        ASSERT_EQ(boxes.shown().size(), 2U) << CXString(row.number).toNarrow();
        EXPECT_EQ(boxes.shown()[0].title, resourceText(boxTitle));
        EXPECT_EQ(boxes.shown()[0].body, texts + row.number);
        EXPECT_EQ(boxes.shown()[0].flags, 16U | 8192U);
        EXPECT_EQ(boxes.shown()[1].body, texts + resourceText(11603) + u"\r\n\r\n" + row.number);
    }
}

TEST_F(ExceptionReportTest, AllocationFailureHasItsOwnBox) {
    const BoxCapture boxes;
    report(std::bad_alloc());
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].title, resourceText(11606));
    EXPECT_EQ(boxes.shown()[0].body, resourceText(11607));
}

TEST_F(ExceptionReportTest, TitleIsANumberATextOrTheLibrarysOwn) {
    const InvalidZentSessionException exception;
    const BoxCapture boxes;
    reportException(exception, u"Ready", call, 0, u"");
    reportException(exception, 0, call, 0, u"");
    reportException(nullptr, exception, 11604, call, 0, u"");
    reportException(nullptr, exception, u"", call, 0, u"");
    ASSERT_EQ(boxes.shown().size(), 4U);
    EXPECT_EQ(boxes.shown()[0].title, u"Ready");
    EXPECT_EQ(boxes.shown()[1].title, resourceText(11606));
    EXPECT_EQ(boxes.shown()[2].title, resourceText(11604));
    EXPECT_EQ(boxes.shown()[3].title, resourceText(11606));
}

TEST_F(ExceptionReportTest, OwnerOwnsTheBox) {
    const BoxCapture boxes;
    reportException(someWindow, InvalidZentSessionException(), boxTitle, call, 0, u"");
    EXPECT_FALSE(reportUnknownException(someWindow, boxTitle, call, 0, u""));
    ASSERT_EQ(boxes.shown().size(), 2U);
    EXPECT_EQ(boxes.shown()[0].owner, someWindow);
    EXPECT_EQ(boxes.shown()[0].flags, 16U);
    EXPECT_EQ(boxes.shown()[1].owner, someWindow);
    EXPECT_EQ(boxes.shown()[1].flags, 16U | 1U);
}

TEST_F(ExceptionReportTest, MissingLibraryIsToldInFixedText) {
    loseResources();
    const BoxCapture boxes;
    try {
        const ResourceLibrary library;
        FAIL();
    } catch (const ResourceLibraryConstructionException& exception) {
        reportException(someWindow, exception, boxTitle, call, 0, u"");
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_EQ(boxes.shown()[0].owner, nullptr);
        EXPECT_EQ(boxes.shown()[0].title, u"Tarvo Printer Driver");
        EXPECT_EQ(boxes.shown()[0].body,
                  u"Could not load the resource DLL. It's probably missing. Translated strings are "
                  u"not available. Please reinstall the driver.\r\n\r\n" +
                      getErrorNumberText(exception));
        EXPECT_EQ(boxes.shown()[0].flags, 16U | 8192U);
    }
}

TEST_F(ExceptionReportTest, OwnFailuresStayInside) {
    loseResources();
    const BoxCapture boxes;
    EXPECT_NO_THROW(report(InvalidZentSessionException()));
    EXPECT_NO_THROW(report(std::bad_alloc()));
    EXPECT_TRUE(reportUnknownException(boxTitle, call, 0, u""));
    test::useResourceLibrary();
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
}

TEST_F(ExceptionReportTest, UnknownFailureOffersToStop) {
    const CXString texts = resourceText(11601) + u"\r\n\r\n" + resourceText(11621);
    const CXString stopping = u"\r\n\r\n" + resourceText(11620);
    {
        const BoxCapture boxes(messageAnswer::ok);
        EXPECT_FALSE(reportUnknownException(boxTitle, call, 0, u""));
        EXPECT_FALSE(reportUnknownException(u"Ready", call, 11603, u"more"));
        ASSERT_EQ(boxes.shown().size(), 2U);
        EXPECT_EQ(boxes.shown()[0].title, resourceText(boxTitle));
        EXPECT_EQ(boxes.shown()[0].body, texts + stopping);
        EXPECT_EQ(boxes.shown()[0].flags, 16U | 8192U | 1U);
        EXPECT_EQ(boxes.shown()[1].title, u"Ready");
        EXPECT_EQ(boxes.shown()[1].body, texts + u"\r\n\r\n" + resourceText(11603) + stopping);
    }
    const BoxCapture boxes(messageAnswer::cancel);
    EXPECT_TRUE(reportUnknownException(boxTitle, call, 0, u""));
}

TEST_F(ExceptionReportTest, DetailsTellTypeLocationAndMessage) {
    setExceptionLocation(u"a.cpp", 12);
    EXPECT_EQ(getDetailsReport(OrdoParseException(12, u"text\r\n")),
              u"zent::OrdoParseException\r\n\tError Type: READFILE_FAILED\r\n"
              u"Location: a.cpp, line 12\r\nMessage is:\r\n\ttext\r\n");
    EXPECT_EQ(getDetailsReport(InvalidZentSessionException(u"text\r\n")),
              u"zent::InvalidZentSessionException\r\nLocation: , line 0\r\n"
              u"Message is:\r\n\ttext\r\n");
    EXPECT_EQ(getDetailsReport(std::runtime_error("other")),
              u"std::runtime_error\r\nNo additional information available.\r\n");
}

TEST_F(ExceptionReportTest, ResultCodes) {
    EXPECT_EQ(resultCodeOf(InvalidZentSessionException()), 6U);
    EXPECT_EQ(resultCodeOf(OrdoParseException(12, u"")), 25U);
    EXPECT_EQ(resultCodeOf(std::bad_alloc()), 18U);
    EXPECT_EQ(resultCodeOf(std::bad_array_new_length()), 18U);
    EXPECT_EQ(resultCodeOf(std::runtime_error("other")), 31U);
}

} // namespace
} // namespace zent
