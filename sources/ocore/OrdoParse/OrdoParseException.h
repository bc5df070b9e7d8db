#pragma once

#include <cstdint>

#include "ocore/Faults/TarvoException.h"

namespace zent {

/// What went wrong in the XML layer. Applications and service staff know the numbers, so none may
/// change.
namespace ordoParseCode {
constexpr std::int16_t illegalCode = 0;
constexpr std::int16_t xmlExceptionInParse = 1;
constexpr std::int16_t errorReportedInParse = 2;
constexpr std::int16_t xmlExceptionInGeneration = 3;
constexpr std::int16_t outputFailed = 4;
constexpr std::int16_t domExceptionInConversion = 5;
constexpr std::int16_t domExceptionInCreation = 6;
constexpr std::int16_t noCategory = 7;
constexpr std::int16_t noSourceBuffer = 8;
constexpr std::int16_t noOutputReceiver = 9;
constexpr std::int16_t noDtd = 10;
constexpr std::int16_t noDataType = 11;
constexpr std::int16_t readFileFailed = 12;
constexpr std::int16_t fileBufferAllocationFailed = 13;
constexpr std::int16_t fileSizeFailed = 14;
constexpr std::int16_t openForReadingFailed = 15;
constexpr std::int16_t noFileToRead = 16;
constexpr std::int16_t openForWritingFailed = 17;
constexpr std::int16_t noFileToWrite = 18;
constexpr std::int16_t writeFileFailed = 19;
constexpr std::int16_t startAfterTermination = 20;
constexpr std::int16_t terminatedTwice = 21;
constexpr std::int16_t xmlExceptionInStart = 22;
constexpr std::int16_t noDocument = 23;
} // namespace ordoParseCode

/// A failure of the XML layer: reading, building or writing a document.
class OrdoParseException : public TarvoException {
public:
    OrdoParseException(std::int16_t errorCode, const CXString& message)
        : TarvoException(message), m_errorCode(errorCode) {}

    std::int32_t getErrorCode() const { return m_errorCode; }
    /// The code's name, such as "READFILE_FAILED"; empty for a code that isn't in use.
    CXString getCodeName() const;

    ResultCode getResultCode() const override;
    CXString getErrorId() const override;
    ReportTexts getReportTexts() const override;
    CXString getErrorType() const override { return getCodeName(); }

private:
    std::int32_t m_errorCode;
};

/// A document that passes one of the bounds on documents, whatever else may be wrong with it.
class XmlBoundException final : public OrdoParseException {
public:
    using OrdoParseException::OrdoParseException;
};

/// A format together with the place in the source where it stands as an argument.
struct PlacedFormat {
    const char* text;
    SourcePlace place;
    PlacedFormat(const char* format, SourcePlace here = SourcePlace::here()) // NOLINT: implicit
        : text(format), place(here) {}
};

/// Raises an OrdoParseException with a formatted message, as Raise<> does for other classes.
template <typename Exception = OrdoParseException, typename... Args>
[[noreturn]] void raiseOrdoParse(std::int16_t errorCode, PlacedFormat format, const Args&... args) {
    const CXString message = formatText(format.text, args...);
    noteRaise(format.place, traceLevel::xmlLayer);
    throw Exception(errorCode, message);
}

} // namespace zent
