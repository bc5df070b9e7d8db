#include "ocore/Faults/TarvoException.h"

#include <stdexcept>

#include "ocore/OrdoParse/OrdoParseException.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

template <typename E>
std::unique_ptr<TarvoException> make() {
    return std::make_unique<E>(CXString(u"message\r\n"));
}

TEST(TarvoException, EachClassHasItsIdAndResultCode) {
    // clang-format off
    const Rows<std::unique_ptr<TarvoException> (*)(), const char*, ResultCode> rows{
        {make<ResourceAcquisitionException>,                  "005:000", 19},
        {make<ExceededNumberOfDlgItems>,                      "007:000", 30},
        {make<UnknownCaseException>,                          "008:000", 29},
        {make<AttributeTypeMismatchException>,                "009:000", 13},
        {make<NodeAccessOutOfBoundsException>,                "010:000", 29},
        {make<InvalidAttributeIdException>,                   "011:000", 16},
        {make<UnknownFeatureRequestException>,                "012:000", 12},
        {make<DuplicateFeatureValueDBEntryException>,         "013:000", 22},
        {make<MissingCapabilityDataException>,                "014:000", 20},
        {make<MissingOrBadCompressedBufferFooterException>,   "017:000", 15},
        {make<CompressionException>,                          "018:000", 15},
        {make<IndexOutOfBoundsException>,                     "019:000", 29},
        {make<RegistryRequestException>,                      "020:000", 21},
        {make<ResourceLibraryConstructionException>,          "021:000", 11},
        {make<CreateFileForReadingException>,                 "022:001", 23},
        {make<ReadFileException>,                             "022:002", 25},
        {make<ProcessTokenRequestException>,                  "023:000", 30},
        {make<UserInformationRequestException>,               "024:000", 27},
        {make<InvalidZentSessionException>,                   "025:000", 6},
        {make<InvalidTarvoJtSettingsException>,               "026:000", 7},
        {make<MissingOrBadPersistentSettingsFormatException>, "027:000", 17},
        {make<NotEnoughBytesForDesiredDataTypeException>,     "028:000", 30},
        {make<PreferenceDataTypeMismatchException>,           "029:000", 10},
    };
    // clang-format on
    for (const auto& [makeIt, id, code] : rows) {
        const auto exception = makeIt();
        EXPECT_EQ(exception->getErrorId().toNarrow(), id);
        EXPECT_EQ(exception->getResultCode(), code) << id;
        EXPECT_EQ(exception->getMessage(), u"message\r\n") << id;
        EXPECT_EQ(dynamic_cast<FileException*>(exception.get()) != nullptr,
                  std::string(id).starts_with("022:"));
    }
}

TEST(OrdoParseException, EachCodeHasItsNameAndResultCode) {
    // By their codes.
    const Rows<const char16_t*, ResultCode> rows{
        {u"ILLEGAL_ORDOPARSE_EXCEPTION_CODE", 29},
        {u"XMLEXCEPTION_RAISED_DURING_PARSE", 14},
        {u"ERROR_REPORTED_DURING_PARSE", 14},
        {u"XMLEXCEPTION_RAISED_DURING_XML_GENERATION", 26},
        {u"HANDLEOUTPUT_METHOD_FAILED_IN_WRITECHARS", 26},
        {u"DOMEXCEPTION_DURING_NODE_CONVERSION", 25},
        {u"DOMEXCEPTION_DURING_NODE_CREATION", 26},
        {u"NO_CATEGORY_FOR_ORDO_ATTRIBUTE", 26},
        {u"NO_XML_SOURCE_BUFFER_SPECIFIED", 28},
        {u"NO_XML_OUTPUT_RECEIVER_SPECIFIED", 28},
        {u"REQUIRED_DTD_NOT_SPECIFIED", 28},
        {u"TYPE_OF_XML_DATA_NOT_SPECIFIED", 28},
        {u"READFILE_FAILED", 25},
        {u"FAILED_ALLOCATION_OF_XML_FILE_BUFFER", 25},
        {u"FAILED_GETFILESIZE_DURING_READ", 25},
        {u"FAILED_CREATFILE_DURING_READ", 23},
        {u"FILE_TO_READ_NOT_SPECIFIED", 23},
        {u"FAILED_CREATFILE_DURING_WRITE", 24},
        {u"FILE_TO_WRITE_NOT_SPECIFIED", 24},
        {u"WRITEFILE_FAILED", 26},
        {u"ATTEMPT_TO_INIT_ZNXML_AFTER_TERMINATION", 28},
        {u"MULTIPLE_TERMINATION_OF_ZNXML", 28},
        {u"XMLEXCEPTION_DURING_ZNXML_INITIALIZATION", 28},
        {u"NULL_DOMDOC_OBJECT_RETURNED", 28},
        {u"", 28},
    };
    std::int16_t code = 0;
    for (const auto& [name, result] : rows) {
        const OrdoParseException exception(code, u"");
        EXPECT_EQ(exception.getCodeName(), name);
        EXPECT_EQ(exception.getResultCode(), result) << code;
        ++code;
    }
    EXPECT_EQ(OrdoParseException(-1, u"").getCodeName(), u"");
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
