#include "ocore/Faults/Exceptions.h"

#include "resources/ids.h"

namespace zent {

ReportTexts FileException::getReportTexts() const {
    return {IDS_FILE_FAILURE, IDS_FILE_FAILURE_ADVICE};
}

ReportTexts ResourceAcquisitionException::getReportTexts() const {
    return {IDS_RESOURCE_MISSING, IDS_RESOURCE_MISSING_ADVICE};
}

ReportTexts RegistryRequestException::getReportTexts() const {
    return {IDS_PREFERENCES_FAILURE, IDS_FAILURE_ADVICE};
}

ReportTexts DevModeOverflowException::getReportTexts() const {
    return {IDS_TICKET_TOO_LARGE, IDS_TICKET_TOO_LARGE_ADVICE};
}

ReportTexts SpoolDataException::getReportTexts() const {
    return {IDS_SPOOL_FAILURE, IDS_SPOOL_FAILURE_ADVICE};
}

CXString RegistryRequestException::getExplanation() const {
    const CXString& message = getMessage();
    const std::int32_t end = message.find(u"\r\n");
    CXString line = end < 0 ? CXString() : message.mid(end);
    line.trim();
    return line;
}

} // namespace zent
