#include "Errors.h"

#include <array>

namespace jobticket {

namespace {

struct ResultText {
    const char* name;
    const char* meaning;
};

// The texts are in the order of the results' numbers, from 1 on.
constexpr std::array<ResultText, 32> resultTexts = {{
    {"ZENT_OK", "success"},
    {"ZENT_ERR_VERSION", "the library has another version than the program"},
    {"ZENT_ERR_TICKET_FORMAT", "the ticket format isn't known"},
    {"ZENT_ERR_APPLY_MODE", "the apply mode isn't known"},
    {"ZENT_ERR_DIALOG_KIND", "the dialog isn't known"},
    {"ZENT_ERR_SESSION", "the session isn't one"},
    {"ZENT_ERR_SETTINGS", "the ticket isn't one"},
    {"ZENT_ERR_BUFFER_TOO_SMALL", "the buffer is too small"},
    {"ZENT_ERR_DIALOG_START", "the dialog can't start"},
    {"ZENT_ERR_PREFERENCE_TYPE", "the preference has another type"},
    {"ZENT_ERR_RESOURCE_LIBRARY", "zenres27.dll can't be loaded; it belongs beside the program"},
    {"ZENT_ERR_UNKNOWN_FEATURE", "there is no such feature, or no such value of it"},
    {"ZENT_ERR_ATTRIBUTE_TYPE", "what the ticket holds there is of another type"},
    {"ZENT_ERR_XML_PARSE", "the document isn't well-formed, or isn't a valid ticket"},
    {"ZENT_ERR_COMPRESSION", "the compressed part of the state blob is damaged"},
    {"ZENT_ERR_ATTRIBUTE_ID", "the name of an attribute is empty"},
    {"ZENT_ERR_STATE_FORMAT", "it is no state blob, or one of a version that isn't known"},
    {"ZENT_ERR_OUT_OF_MEMORY", "memory ran out"},
    {"ZENT_ERR_RESOURCE", "zenres27.dll lacks a resource"},
    {"ZENT_ERR_CAPABILITY_DATA", "the printer's capabilities lack an entry"},
    {"ZENT_ERR_REGISTRY", "the preference store failed"},
    {"ZENT_ERR_DUPLICATE_VALUE", "the value exists already, or no more can be added"},
    {"ZENT_ERR_FILE_OPEN_READ", "a file can't be opened for reading"},
    {"ZENT_ERR_FILE_OPEN_WRITE", "a file can't be opened for writing"},
    {"ZENT_ERR_FILE_READ", "a file can't be read, or its content not be converted"},
    {"ZENT_ERR_XML_GENERATE", "the document can't be written"},
    {"ZENT_ERR_USER_INFORMATION", "the user's profile can't be found"},
    {"ZENT_ERR_XML_OTHER", "the document is empty, or no ticket at all"},
    {"ZENT_ERR_INTERNAL_INDEX", "a value lies outside what a table or conversion knows"},
    {"ZENT_ERR_INTERNAL_OTHER", "internal failure"},
    {"ZENT_ERR_STD_EXCEPTION", "internal failure"},
    {"ZENT_ERR_UNKNOWN", "unknown failure"},
}};

ResultText textOf(ZentResult result) {
    const bool isKnown = result >= 1 && result <= resultTexts.size();
    return isKnown ? resultTexts[result - 1] : ResultText{"?", "a result that isn't known"};
}

ExitStatus statusOf(ZentResult result) {
    switch (result) {
    case ZENT_ERR_UNKNOWN_FEATURE:
    case ZENT_ERR_PREFERENCE_TYPE:
        return ExitStatus::badValue;
    case ZENT_ERR_ATTRIBUTE_TYPE:
    case ZENT_ERR_XML_PARSE:
    case ZENT_ERR_XML_OTHER:
    case ZENT_ERR_COMPRESSION:
    case ZENT_ERR_STATE_FORMAT:
        return ExitStatus::invalidTicket;
    default:
        return ExitStatus::libraryFailure;
    }
}

std::string messageOf(ZentResult result, const char* call, const std::string& subject) {
    const ResultText text = textOf(result);
    return (subject.empty() ? "" : subject + ": ") + text.meaning + " (" + call + " gave " +
           text.name + ", " + std::to_string(result) + ")";
}

} // namespace

LibraryError::LibraryError(ZentResult result, const char* call, const std::string& subject)
    : ProgramError(statusOf(result), messageOf(result, call, subject)), m_result(result) {}

void check(ZentResult result, const char* call, const std::string& subject) {
    if (result != ZENT_OK) {
        throw LibraryError(result, call, subject);
    }
}

} // namespace jobticket
