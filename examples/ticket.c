/*
 * Makes a job ticket: opens a session, sets some features, reads one back, exports the ticket as
 * XML and writes it to a file.
 *
 * Linux:    cc -std=c11 ticket.c -lzent27 -o ticket
 * Windows:  x86_64-w64-mingw32-gcc ticket.c ZENT27.dll -o ticket.exe
 */
#include <stdio.h>
#include <stdlib.h>

#include "zent27.h"

/* Text is UTF-16: wide literals on Windows, u literals elsewhere. */
#ifdef _WIN32
#define TEXT16(text) L##text
#else
#define TEXT16(text) u##text
#endif

/* Ends the program when a call fails. */
static void check(ZentResult result, const char* call) {
    if (result != ZENT_OK) {
        fprintf(stderr, "%s failed: %u\n", call, (unsigned)result);
        exit(EXIT_FAILURE);
    }
}
#define CHECK(call, ...) check(call(__VA_ARGS__), #call)

/* Writes bytes to a file; 0 if that fails. */
static int writeFile(const char* name, const char* bytes, size_t size) {
    FILE* file = fopen(name, "wb");
    const int written = file != NULL && fwrite(bytes, 1, size, file) == size;
    return (file == NULL || fclose(file) == 0) && written;
}

int main(int argc, char** argv) {
    const char* fileName = argc > 1 ? argv[1] : "ticket.xml";
    ZentSessionType session = NULL;
    TarvoJtSettingsType ticket = NULL;

    /* Printer model 1, monochrome PCL; failures are not shown in a message box. */
    CHECK(fnOpenSession, ZENT_INTERFACE_VERSION, 1, ZENT_PDL_MONOCHROME_PCL, ZENT_INSTRUCTIONS_XML,
          1, NULL, 1, &session);
    CHECK(fnGetTarvoJtSettingsFromSession, session, &ticket);

    CHECK(fnSetStringValue, session, ticket, TEXT16("job-name"), TEXT16("Quarterly report"), 0);
    CHECK(fnSetNumberValue, session, ticket, TEXT16("copies"), 25, 0);
    CHECK(fnSetStringValue, session, ticket, TEXT16("sides"), TEXT16("two-sided-long-edge"), 0);
    CHECK(fnSetRangeValues, session, ticket, TEXT16("page-ranges"), 1, 5, 0);
    CHECK(fnSetRangeValues, session, ticket, TEXT16("page-ranges"), 8, 9, 1);
    CHECK(fnSetStockSizeValues, session, ticket, 21000, 29700); /* A4, in 1/100 mm */

    int32_t copies = 0;
    ZentBool found = 0;
    CHECK(fnGetNumberValue, session, ticket, TEXT16("copies"), &copies, 0, &found);

    /* First the size, then the bytes. */
    uint32_t size = 0;
    CHECK(fnExportJobTicket, session, NULL, &size, ZENT_FORMAT_XML);
    char* document = malloc(size);
    if (document == NULL) {
        return EXIT_FAILURE;
    }
    CHECK(fnExportJobTicket, session, document, &size, ZENT_FORMAT_XML);
    const int written = writeFile(fileName, document, size);
    free(document);
    CHECK(fnCloseSession, &session);

    printf("%d copies, %u bytes in %s\n", found ? (int)copies : 0, (unsigned)size, fileName);
    return written ? EXIT_SUCCESS : EXIT_FAILURE;
}
