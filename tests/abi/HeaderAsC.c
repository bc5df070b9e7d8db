#include "HeaderAsC.h"

#include "ZentLiteral.h"
#include "zent27.h"

_Static_assert(sizeof(ZentChar) == 2, "text is 16 bits wide");
_Static_assert(sizeof(ZentBool) == 1 && sizeof(ZentResult) == 4, "the sizes of the interface");
_Static_assert(ZENT_INTERFACE_VERSION == 27 && ZENT_FORMAT_XML == 1 && ZENT_FORMAT_STATE == 2 &&
                   ZENT_APPLY_SILENT_REPAIR == 1 && ZENT_APPLY_SILENT_KEEP == 2 &&
                   ZENT_APPLY_REPORT_REPAIR == 3 && ZENT_APPLY_REPORT_KEEP == 4 &&
                   ZENT_APPLY_REPORT_CHOICE == 5 && ZENT_DIALOG_JOB_TICKET == 1 &&
                   ZENT_DIALOG_EXCEPTION_PAGES == 2 && ZENT_DIALOG_PAGE_INSERTS == 3 &&
                   ZENT_DIALOG_JOB_NOTES == 4 && ZENT_INSTRUCTIONS_XML == 1 &&
                   ZENT_INSTRUCTIONS_STREAM == 2 && ZENT_INSTRUCTIONS_BY_MODEL == 3,
               "applications were built with these numbers");

#define CALL(name)                                                                                 \
    { #name, (CallAddress)(name) }

const struct NamedCall callsInC[] = {
    CALL(fnOpenSession),
    CALL(fnCloseSession),
    CALL(fnInvokeTarvoJobTicketDialog),
    CALL(fnImportJobTicket),
    CALL(fnExportJobTicket),
    CALL(fnUpdateUserContextInformation),
    CALL(fnGetPrintInstructions),
    CALL(fnGetTarvoJtSettingsFromSession),
    CALL(fnCreateNewTarvoJtSettings),
    CALL(fnReleaseTarvoJtSettings),
    CALL(fnIsEmpty),
    CALL(fnIsSpecified),
    CALL(fnGetNumberOfValues),
    CALL(fnGetStringValue),
    CALL(fnGetNumberValue),
    CALL(fnGetRangeValues),
    CALL(fnGetResolutionValue),
    CALL(fnGetStockSizeValues),
    CALL(fnUnspecifyFeature),
    CALL(fnUnspecifyAllFeatures),
    CALL(fnSetStringValue),
    CALL(fnSetNumberValue),
    CALL(fnSetRangeValues),
    CALL(fnSetResolutionValue),
    CALL(fnSetStockSizeValues),
    CALL(fnCreateTarvoJtSettingsFromPageLevelFeature),
    CALL(fnSetPageLevelFeatureFromTarvoJtSettings),
    CALL(fnRemovePageLevelFeatureFromTarvoJtSettings),
    CALL(fnApplyPrinterCapabilitiesToSettings),
    CALL(fnGetPreferenceBoolValue),
    CALL(fnGetPreferenceNumberValue),
    CALL(fnGetPreferenceStringValue),
    CALL(fnGetPreferenceDataValue),
    CALL(fnSetPreferenceBoolValue),
    CALL(fnSetPreferenceNumberValue),
    CALL(fnSetPreferenceStringValue),
    CALL(fnSetPreferenceDataValue),
};
const size_t numberOfCallsInC = sizeof callsInC / sizeof callsInC[0];

const int resultCodesInC[] = {
    ZENT_OK,
    ZENT_ERR_VERSION,
    ZENT_ERR_TICKET_FORMAT,
    ZENT_ERR_APPLY_MODE,
    ZENT_ERR_DIALOG_KIND,
    ZENT_ERR_SESSION,
    ZENT_ERR_SETTINGS,
    ZENT_ERR_BUFFER_TOO_SMALL,
    ZENT_ERR_DIALOG_START,
    ZENT_ERR_PREFERENCE_TYPE,
    ZENT_ERR_RESOURCE_LIBRARY,
    ZENT_ERR_UNKNOWN_FEATURE,
    ZENT_ERR_ATTRIBUTE_TYPE,
    ZENT_ERR_XML_PARSE,
    ZENT_ERR_COMPRESSION,
    ZENT_ERR_ATTRIBUTE_ID,
    ZENT_ERR_STATE_FORMAT,
    ZENT_ERR_OUT_OF_MEMORY,
    ZENT_ERR_RESOURCE,
    ZENT_ERR_CAPABILITY_DATA,
    ZENT_ERR_REGISTRY,
    ZENT_ERR_DUPLICATE_VALUE,
    ZENT_ERR_FILE_OPEN_READ,
    ZENT_ERR_FILE_OPEN_WRITE,
    ZENT_ERR_FILE_READ,
    ZENT_ERR_XML_GENERATE,
    ZENT_ERR_USER_INFORMATION,
    ZENT_ERR_XML_OTHER,
    ZENT_ERR_INTERNAL_INDEX,
    ZENT_ERR_INTERNAL_OTHER,
    ZENT_ERR_STD_EXCEPTION,
    ZENT_ERR_UNKNOWN,
};
const size_t numberOfResultCodesInC = sizeof resultCodesInC / sizeof resultCodesInC[0];

int useLibraryInC(void) {
    ZentSessionType session = NULL;
    TarvoJtSettingsType ticket = NULL;
    int32_t copies = 0;
    ZentBool found = 0;
    if (fnOpenSession(ZENT_INTERFACE_VERSION, 1, 1, ZENT_INSTRUCTIONS_XML, 1, NULL, 0, &session) !=
        ZENT_OK) {
        return 1;
    }
    if (fnGetTarvoJtSettingsFromSession(session, &ticket) != ZENT_OK) {
        return 2;
    }
    if (fnSetNumberValue(session, ticket, ZT("copies"), 3, 0) != ZENT_OK) {
        return 3;
    }
    if (fnGetNumberValue(session, ticket, ZT("copies"), &copies, 0, &found) != ZENT_OK ||
        found != 1 || copies != 3) {
        return 4;
    }
    return fnCloseSession(&session) == ZENT_OK && session == NULL ? 0 : 5;
}
