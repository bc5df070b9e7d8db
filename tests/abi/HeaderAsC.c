
#include "ZentLiteral.h"
#include "zent27.h"

_Static_assert(sizeof(ZentChar) == 2, "text is 16 bits wide");
_Static_assert(sizeof(ZentBool) == 1 && sizeof(ZentResult) == 4, "the sizes of the interface");
_Static_assert(ZENT_INTERFACE_VERSION == 27 && ZENT_OK == 1 && ZENT_ERR_UNKNOWN == 32 &&
                   ZENT_FORMAT_XML == 1 && ZENT_FORMAT_STATE == 2 &&
                   ZENT_APPLY_SILENT_REPAIR == 1 && ZENT_APPLY_SILENT_KEEP == 2 &&
                   ZENT_APPLY_REPORT_REPAIR == 3 && ZENT_APPLY_REPORT_KEEP == 4 &&
                   ZENT_APPLY_REPORT_CHOICE == 5 && ZENT_DIALOG_JOB_TICKET == 1 &&
                   ZENT_DIALOG_EXCEPTION_PAGES == 2 && ZENT_DIALOG_PAGE_INSERTS == 3 &&
                   ZENT_DIALOG_JOB_NOTES == 4 && ZENT_INSTRUCTIONS_XML == 1 &&
                   ZENT_INSTRUCTIONS_STREAM == 2 && ZENT_INSTRUCTIONS_BY_MODEL == 3,
               "applications were built with these numbers");

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
