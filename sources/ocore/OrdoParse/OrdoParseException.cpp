#include "ocore/OrdoParse/OrdoParseException.h"

#include <array>

#include "resources/ids.h"

namespace zent {

namespace {

struct CodeInfo {
    const char16_t* name;
    ResultCode resultCode;
};

// The rows are in the order of their codes. Names and results are as applications know them,
// misspelt names included: the failures of document conversion count as failures to read, and two
// names lack a letter.
// clang-format off
constexpr std::array<CodeInfo, 24> codes = {{
    {u"ILLEGAL_ORDOPARSE_EXCEPTION_CODE",          ZENT_ERR_INTERNAL_INDEX},
    {u"XMLEXCEPTION_RAISED_DURING_PARSE",          ZENT_ERR_XML_PARSE},
    {u"ERROR_REPORTED_DURING_PARSE",               ZENT_ERR_XML_PARSE},
    {u"XMLEXCEPTION_RAISED_DURING_XML_GENERATION", ZENT_ERR_XML_GENERATE},
    {u"HANDLEOUTPUT_METHOD_FAILED_IN_WRITECHARS",  ZENT_ERR_XML_GENERATE},
    {u"DOMEXCEPTION_DURING_NODE_CONVERSION",       ZENT_ERR_FILE_READ},
    {u"DOMEXCEPTION_DURING_NODE_CREATION",         ZENT_ERR_XML_GENERATE},
    {u"NO_CATEGORY_FOR_ORDO_ATTRIBUTE",            ZENT_ERR_XML_GENERATE},
    {u"NO_XML_SOURCE_BUFFER_SPECIFIED",            ZENT_ERR_XML_OTHER},
    {u"NO_XML_OUTPUT_RECEIVER_SPECIFIED",          ZENT_ERR_XML_OTHER},
    {u"REQUIRED_DTD_NOT_SPECIFIED",                ZENT_ERR_XML_OTHER},
    {u"TYPE_OF_XML_DATA_NOT_SPECIFIED",            ZENT_ERR_XML_OTHER},
    {u"READFILE_FAILED",                           ZENT_ERR_FILE_READ},
    {u"FAILED_ALLOCATION_OF_XML_FILE_BUFFER",      ZENT_ERR_FILE_READ},
    {u"FAILED_GETFILESIZE_DURING_READ",            ZENT_ERR_FILE_READ},
    {u"FAILED_CREATFILE_DURING_READ",              ZENT_ERR_FILE_OPEN_READ},
    {u"FILE_TO_READ_NOT_SPECIFIED",                ZENT_ERR_FILE_OPEN_READ},
    {u"FAILED_CREATFILE_DURING_WRITE",             ZENT_ERR_FILE_OPEN_WRITE},
    {u"FILE_TO_WRITE_NOT_SPECIFIED",               ZENT_ERR_FILE_OPEN_WRITE},
    {u"WRITEFILE_FAILED",                          ZENT_ERR_XML_GENERATE},
    {u"ATTEMPT_TO_INIT_ZNXML_AFTER_TERMINATION",   ZENT_ERR_XML_OTHER},
    {u"MULTIPLE_TERMINATION_OF_ZNXML",             ZENT_ERR_XML_OTHER},
    {u"XMLEXCEPTION_DURING_ZNXML_INITIALIZATION",  ZENT_ERR_XML_OTHER},
    {u"NULL_DOMDOC_OBJECT_RETURNED",               ZENT_ERR_XML_OTHER},
}};
// clang-format on

const CodeInfo& getCodeInfo(std::int32_t code) {
    static constexpr CodeInfo unknown = {u"", ZENT_ERR_XML_OTHER};
    const auto index = static_cast<std::uint32_t>(code);
    return index < codes.size() ? codes[index] : unknown;
}

} // namespace

CXString OrdoParseException::getCodeName() const { return getCodeInfo(m_errorCode).name; }

ReportTexts OrdoParseException::getReportTexts() const {
    return {IDS_TICKET_FAILURE, IDS_TICKET_FAILURE_ADVICE};
}

ResultCode OrdoParseException::getResultCode() const { return getCodeInfo(m_errorCode).resultCode; }

CXString OrdoParseException::getErrorId() const { return formatText("001:%03d", m_errorCode); }

} // namespace zent
