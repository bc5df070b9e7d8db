/*
 * zent27.h - job tickets for production printers: the public interface, in plain C.
 *
 * A job ticket is the set of a print job's instructions: copies, sides, media, finishing, covers,
 * page exceptions and so on, some 136 features named in the vocabulary of IPP attributes. A program
 * opens a session for a printer model, reads and writes features, imports and exports tickets, has
 * them checked against the printer, and gets the printing instructions that go with the job.
 *
 * Results. Every call returns one code; ZENT_OK (1) is success. Nothing is thrown across the
 * interface. Unless the session was opened silent, a failure is also shown to the user in a message
 * box (without a display: on the standard error stream).
 *
 * Handles. A ZentSessionType lives from fnOpenSession to fnCloseSession. A TarvoJtSettingsType is
 * either the session's own ticket (fnGetTarvoJtSettingsFromSession: lives as long as the session,
 * needs no release) or free-standing (fnCreateNewTarvoJtSettings,
 * fnCreateTarvoJtSettingsFromPageLevelFeature: the application's, until fnReleaseTarvoJtSettings;
 * it outlives the session it was made with and can be used with any other). A handle that is null
 * or points to memory that is not mapped or not writable gives ZENT_ERR_SESSION or
 * ZENT_ERR_SETTINGS; other wrong pointers are not detected.
 *
 * Threads. The calls take no lock: one session, and one settings handle, belongs to one thread at a
 * time. Different sessions may run on different threads. The library starts no thread. On Linux
 * dialogs and message boxes are Qt's: they belong to the thread of the application's QApplication,
 * or, if it has none, to the first thread that needs one; elsewhere it is as without a display.
 *
 * Loading. The library stays in the process once it is loaded: unloading it does nothing, and what
 * it keeps for later calls lasts until the process ends. A process may end, by exit() or a return
 * from main(), while other threads are in a call, once a first import or export has returned.
 *
 * Stack. A call takes at most 48 KiB of the thread's stack; one that shows a dialog or a message
 * box takes what the window system does besides.
 *
 * Text is zero-terminated and 16 bits wide (ZentChar: wchar_t on Windows, char16_t elsewhere), in
 * UTF-16. Feature names are IPP attribute names such as u"copies"; they compare exactly. A null
 * text counts as an empty one. A document name is narrow: the ANSI code page on Windows, UTF-8
 * elsewhere.
 *
 * Units. Lengths, media sizes and image shifts are in hundredths of a millimetre (A4 is
 * 21000 x 29700). Resolutions carry their own unit: 3 for dots per inch, 4 for dots per centimetre.
 *
 * Several values. A feature may hold a set of values; an index picks one, 0 being the first.
 * Setting an index beyond the last appends.
 *
 * Missing values are no failure: "found" and its kin are out arguments that receive 0 or 1.
 * Number, range and stock size arguments stay as they were if nothing is found.
 *
 * Buffers. Where a call has a buffer and a size in/out argument, the size counts ZentChar units
 * with the terminator for text, and bytes for everything else. The call always sets it to the size
 * required. With a null buffer it does no more and succeeds. With a buffer that is too small
 * nothing is copied and the result is ZENT_ERR_BUFFER_TOO_SMALL. So ask with null, allocate, ask
 * again.
 *
 * Bounds. Tickets are hostile until parsed: a document or blob of more than 64 MiB, or beyond one
 * of the bounds that docs/ordo.md lists, is refused, as a document with ZENT_ERR_XML_PARSE and as a
 * blob with ZENT_ERR_COMPRESSION. An export that an import would refuse fails as well.
 *
 * Other pointers. A null pointer that a call would have to read or write through gives
 * ZENT_ERR_UNKNOWN. The library keeps no pointer that it is given beyond the call, and hands out
 * none of its own but the handles.
 */
#ifndef ZENT27_H
#define ZENT27_H

#include <stddef.h>
#include <stdint.h>

#ifdef _WIN32
#include <wchar.h>
typedef wchar_t ZentChar;
#define ZENT_CALL __stdcall
#else
#ifndef __cplusplus
#include <uchar.h>
#endif
typedef char16_t ZentChar;
#define ZENT_CALL
#endif

/* The exports are named by a .def file and a version script; this only makes them visible. */
#if defined(ZENT_BUILDING_LIBRARY) && !defined(_WIN32)
#define ZENT_API __attribute__((visibility("default")))
#else
#define ZENT_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The version of this interface, for the first argument of fnOpenSession. */
#define ZENT_INTERFACE_VERSION 27u

/* A result code; see below. */
typedef uint32_t ZentResult;
/* A truth value of one byte: 0 or 1. */
typedef uint8_t ZentBool;
/* A window of the application (HWND on Windows, QWidget* of Qt 6 elsewhere), or null. */
typedef void* ZentWindow;

/* Opaque handles. */
typedef struct ZentSessionObject* ZentSessionType;
typedef struct ZentSettingsObject* TarvoJtSettingsType;

/* ---------------------------------------------------------------------------------------------
 * Result codes. Applications switch on these numbers; they never change.
 */
enum ZentResultCode {
    ZENT_OK = 1,                    /* success */
    ZENT_ERR_VERSION = 2,           /* the interface version isn't 27 */
    ZENT_ERR_TICKET_FORMAT = 3,     /* a ticket format other than 1 or 2 */
    ZENT_ERR_APPLY_MODE = 4,        /* an apply mode outside 1 to 5 */
    ZENT_ERR_DIALOG_KIND = 5,       /* a dialog kind outside 1 to 4 */
    ZENT_ERR_SESSION = 6,           /* the session handle isn't one */
    ZENT_ERR_SETTINGS = 7,          /* the settings handle isn't one */
    ZENT_ERR_BUFFER_TOO_SMALL = 8,  /* the size argument holds the size required */
    ZENT_ERR_DIALOG_START = 9,      /* the dialog can't start (no display, for instance) */
    ZENT_ERR_PREFERENCE_TYPE = 10,  /* a well-known preference has another type */
    ZENT_ERR_RESOURCE_LIBRARY = 11, /* zenres27.dll can't be loaded */
    ZENT_ERR_UNKNOWN_FEATURE = 12,  /* no such feature, or no such value of a feature */
    ZENT_ERR_ATTRIBUTE_TYPE = 13,   /* the value in the ticket is of another type */
    ZENT_ERR_XML_PARSE = 14,        /* the document isn't well-formed or valid, or is too large */
    ZENT_ERR_COMPRESSION = 15,      /* a state blob is damaged or too large */
    ZENT_ERR_ATTRIBUTE_ID = 16,     /* an attribute name is empty */
    ZENT_ERR_STATE_FORMAT = 17,     /* a state blob's header or data structure is wrong */
    ZENT_ERR_OUT_OF_MEMORY = 18,    /* memory ran out */
    ZENT_ERR_RESOURCE = 19,         /* a resource is missing in zenres27.dll */
    ZENT_ERR_CAPABILITY_DATA = 20,  /* the printer's capabilities lack an entry */
    ZENT_ERR_REGISTRY = 21,         /* the preference store failed */
    ZENT_ERR_DUPLICATE_VALUE = 22,  /* a feature value exists already */
    ZENT_ERR_FILE_OPEN_READ = 23,   /* a file can't be opened for reading */
    ZENT_ERR_FILE_OPEN_WRITE = 24,  /* a file can't be created or opened for writing */
    ZENT_ERR_FILE_READ = 25,        /* a file can't be read, or its content not be converted */
    ZENT_ERR_XML_GENERATE = 26,     /* a document can't be written */
    ZENT_ERR_USER_INFORMATION = 27, /* the user's profile can't be found */
    ZENT_ERR_XML_OTHER = 28,        /* any other failure with documents, such as empty input */
    ZENT_ERR_INTERNAL_INDEX = 29,   /* a value outside what a table or conversion knows */
    ZENT_ERR_INTERNAL_OTHER = 30,   /* any other internal failure */
    ZENT_ERR_STD_EXCEPTION = 31,    /* an exception of the language's library */
    ZENT_ERR_UNKNOWN = 32           /* anything else, such as a null pointer argument */
};

/* Ticket formats of fnImportJobTicket and fnExportJobTicket. */
enum ZentTicketFormat {
    ZENT_FORMAT_XML = 1,  /* the ordo document, XML text */
    ZENT_FORMAT_STATE = 2 /* the binary state blob */
};

/* How a ticket is checked against the printer, and what becomes of one with problems. */
enum ZentApplyMode {
    ZENT_APPLY_SILENT_REPAIR = 1, /* repaired */
    ZENT_APPLY_SILENT_KEEP = 2,   /* usable as it is */
    ZENT_APPLY_REPORT_REPAIR = 3, /* repaired, unless the user cancels or can't be asked */
    ZENT_APPLY_REPORT_KEEP = 4,   /* reported; stays as it is, and isn't usable */
    ZENT_APPLY_REPORT_CHOICE = 5  /* as ZENT_APPLY_REPORT_REPAIR */
};

/* Dialogs of fnInvokeTarvoJobTicketDialog. */
enum ZentDialogKind {
    ZENT_DIALOG_JOB_TICKET = 1,
    ZENT_DIALOG_EXCEPTION_PAGES = 2,
    ZENT_DIALOG_PAGE_INSERTS = 3,
    ZENT_DIALOG_JOB_NOTES = 4
};

/* Page description languages, for fnOpenSession. */
enum ZentPageLanguage {
    ZENT_PDL_POSTSCRIPT = 1,
    ZENT_PDL_MONOCHROME_PCL = 2, /* every model has it */
    ZENT_PDL_COLOR_PCL = 3
};

/* Forms of printing instructions, for fnOpenSession. */
enum ZentInstructionForm {
    ZENT_INSTRUCTIONS_XML = 1,     /* the ordo document */
    ZENT_INSTRUCTIONS_STREAM = 2,  /* comment lines in front of the print data */
    ZENT_INSTRUCTIONS_BY_MODEL = 3 /* what the model takes */
};

/* ---------------------------------------------------------------------------------------------
 * Sessions
 */

/* Opens a session for a printer. Its ticket holds the printer's defaults.
 *   version                ZENT_INTERFACE_VERSION; anything else gives ZENT_ERR_VERSION at once
 *   model                  the printer model, 1 to 51; docs/printers.md lists them. Any other
 *                          gives ZENT_ERR_INTERNAL_INDEX
 *   pdl                    a ZentPageLanguage. One that the model doesn't have is noticed only with
 *                          the preferences of the printer's driver: ZENT_ERR_INTERNAL_INDEX
 *   instructionForm        a ZentInstructionForm. Any other number gives the stream, and goes by
 *                          what the printer can do in the XML form: don't use one
 *   silent                 not 0: no failure is shown to the user
 *   preferencesName        the name of the preference set; with null or an empty name the next
 *                          argument decides
 *   useGenericPreferences  not 0: the set that all printers share; 0: that of the printer's driver
 *   session                receives the handle; untouched on failure
 * ZENT_ERR_RESOURCE_LIBRARY says that zenres27.dll isn't in the library's directory, and
 * ZENT_ERR_REGISTRY that another process keeps the user's preferences locked.
 */
ZENT_API ZentResult ZENT_CALL fnOpenSession(uint32_t version, uint32_t model, uint32_t pdl,
                                            uint32_t instructionForm, ZentBool silent,
                                            const ZentChar* preferencesName,
                                            ZentBool useGenericPreferences,
                                            ZentSessionType* session);

/* Closes a session, frees all it owns, and sets the variable to null. */
ZENT_API ZentResult ZENT_CALL fnCloseSession(ZentSessionType* session);

/* ---------------------------------------------------------------------------------------------
 * Settings handles
 */

/* Gives the handle of the session's own ticket. */
ZENT_API ZentResult ZENT_CALL fnGetTarvoJtSettingsFromSession(ZentSessionType session,
                                                              TarvoJtSettingsType* settings);

/* Makes an empty free-standing ticket. The handle is null, and the result ZENT_OK, if memory ran
 * out. */
ZENT_API ZentResult ZENT_CALL fnCreateNewTarvoJtSettings(ZentSessionType session,
                                                         TarvoJtSettingsType* settings);

/* Frees a free-standing ticket and sets the variable to null. The given session's own ticket is
 * left alone, and so is the variable; the handle of another session's ticket must not be given. */
ZENT_API ZentResult ZENT_CALL fnReleaseTarvoJtSettings(ZentSessionType session,
                                                       TarvoJtSettingsType* settings);

/* ---------------------------------------------------------------------------------------------
 * Reading features. An unknown feature name gives ZENT_ERR_UNKNOWN_FEATURE, a value of another type
 * than asked for ZENT_ERR_ATTRIBUTE_TYPE.
 */

/* Whether the ticket holds nothing at all. */
ZENT_API ZentResult ZENT_CALL fnIsEmpty(ZentSessionType session, TarvoJtSettingsType settings,
                                        ZentBool* empty);

/* Whether the feature has a value. */
ZENT_API ZentResult ZENT_CALL fnIsSpecified(ZentSessionType session, TarvoJtSettingsType settings,
                                            const ZentChar* feature, ZentBool* specified);

/* The number of values of the feature, 0 if it has none. */
ZENT_API ZentResult ZENT_CALL fnGetNumberOfValues(ZentSessionType session,
                                                  TarvoJtSettingsType settings,
                                                  const ZentChar* feature, uint32_t* count);

/* The value at an index as text: names, keywords, texts, URIs and MIME types. Integers, enums and
 * booleans are of another type. size counts ZentChar units, with the terminator. */
ZENT_API ZentResult ZENT_CALL fnGetStringValue(ZentSessionType session,
                                               TarvoJtSettingsType settings,
                                               const ZentChar* feature, ZentChar* buffer,
                                               uint32_t* size, uint32_t index, ZentBool* found);

/* The value at an index as a number: integers and enums. */
ZENT_API ZentResult ZENT_CALL fnGetNumberValue(ZentSessionType session,
                                               TarvoJtSettingsType settings,
                                               const ZentChar* feature, int32_t* number,
                                               uint32_t index, ZentBool* found);

/* The value at an index as a range, bounds inclusive. */
ZENT_API ZentResult ZENT_CALL fnGetRangeValues(ZentSessionType session,
                                               TarvoJtSettingsType settings,
                                               const ZentChar* feature, int32_t* lower,
                                               int32_t* upper, uint32_t index, ZentBool* found);

/* The value at an index as a resolution. The three numbers are zero if there is none. */
ZENT_API ZentResult ZENT_CALL fnGetResolutionValue(ZentSessionType session,
                                                   TarvoJtSettingsType settings,
                                                   const ZentChar* feature, int32_t* crossFeed,
                                                   int32_t* feed, int32_t* units, uint32_t index,
                                                   ZentBool* found);

/* The media size, in hundredths of a millimetre, turned to the orientation that the printer accepts
 * if only one of the two fits. */
ZENT_API ZentResult ZENT_CALL fnGetStockSizeValues(ZentSessionType session,
                                                   TarvoJtSettingsType settings, int32_t* width,
                                                   int32_t* height, ZentBool* found);

/* ---------------------------------------------------------------------------------------------
 * Writing features. On the session's own ticket these drop any result of fnExportJobTicket or
 * fnGetPrintInstructions that hasn't been fetched yet.
 */

/* Sets a value by text: a keyword, enum or other value that the feature knows, or else free text.
 */
ZENT_API ZentResult ZENT_CALL fnSetStringValue(ZentSessionType session,
                                               TarvoJtSettingsType settings,
                                               const ZentChar* feature, const ZentChar* value,
                                               uint32_t index);

ZENT_API ZentResult ZENT_CALL fnSetNumberValue(ZentSessionType session,
                                               TarvoJtSettingsType settings,
                                               const ZentChar* feature, int32_t number,
                                               uint32_t index);

ZENT_API ZentResult ZENT_CALL fnSetRangeValues(ZentSessionType session,
                                               TarvoJtSettingsType settings,
                                               const ZentChar* feature, int32_t lower,
                                               int32_t upper, uint32_t index);

ZENT_API ZentResult ZENT_CALL fnSetResolutionValue(ZentSessionType session,
                                                   TarvoJtSettingsType settings,
                                                   const ZentChar* feature, int32_t crossFeed,
                                                   int32_t feed, int32_t units, uint32_t index);

/* Sets the media size in hundredths of a millimetre; it is kept in portrait order. 0 and 0 remove
 * it. */
ZENT_API ZentResult ZENT_CALL fnSetStockSizeValues(ZentSessionType session,
                                                   TarvoJtSettingsType settings, int32_t width,
                                                   int32_t height);

/* Removes the first value of the feature, and every collection that this leaves empty. */
ZENT_API ZentResult ZENT_CALL fnUnspecifyFeature(ZentSessionType session,
                                                 TarvoJtSettingsType settings,
                                                 const ZentChar* feature);

/* Empties the ticket. */
ZENT_API ZentResult ZENT_CALL fnUnspecifyAllFeatures(ZentSessionType session,
                                                     TarvoJtSettingsType settings);

/* ---------------------------------------------------------------------------------------------
 * Page-level features: features whose values are tickets themselves, such as page-overrides,
 * insert-sheet, cover-front and cover-back.
 */

/* Gives a free-standing copy of the value at an index; an empty ticket if there is none. The handle
 * is null, and the result ZENT_OK, if memory ran out. */
ZENT_API ZentResult ZENT_CALL fnCreateTarvoJtSettingsFromPageLevelFeature(
    ZentSessionType session, TarvoJtSettingsType settings, const ZentChar* feature, uint32_t index,
    TarvoJtSettingsType* pageSettings);

/* Stores a copy of a ticket as the value at an index. For page-overrides the source is first given
 * the shape of a page exception: its document range (1 to 1 if it has none), then its page range,
 * in front. */
ZENT_API ZentResult ZENT_CALL fnSetPageLevelFeatureFromTarvoJtSettings(ZentSessionType session,
                                                                       TarvoJtSettingsType settings,
                                                                       const ZentChar* feature,
                                                                       uint32_t index,
                                                                       TarvoJtSettingsType source);

/* Removes the value at an index. */
ZENT_API ZentResult ZENT_CALL fnRemovePageLevelFeatureFromTarvoJtSettings(
    ZentSessionType session, TarvoJtSettingsType settings, const ZentChar* feature, uint32_t index);

/* ---------------------------------------------------------------------------------------------
 * Whole tickets
 */

/* Replaces the session's ticket by one that is read from data.
 *   format    a ZentTicketFormat, else ZENT_ERR_TICKET_FORMAT
 *   mode      a ZentApplyMode, else ZENT_ERR_APPLY_MODE
 *   owner, title  for the report of the modes 3 to 5, in which title mustn't be null; an empty one
 *             gives the default title
 *   problems  receives 1 if the ticket asked for what the printer lacks
 *   applied   receives 1 if the session now holds the ticket
 * On failure the session keeps what it held.
 */
ZENT_API ZentResult ZENT_CALL fnImportJobTicket(ZentSessionType session, const void* data,
                                                uint32_t length, uint32_t format, uint32_t mode,
                                                ZentWindow owner, const ZentChar* title,
                                                ZentBool* problems, ZentBool* applied);

/* Gives the session's ticket as bytes. A result that was only asked for its size is kept until it
 * is fetched or the ticket changes. */
ZENT_API ZentResult ZENT_CALL fnExportJobTicket(ZentSessionType session, void* buffer,
                                                uint32_t* size, uint32_t format);

/* Gives a state blob anew with the present user's name and preferences in it. The session's own
 * ticket isn't touched. The blob is trusted: its ticket is copied unread, and it must be of the
 * present form, else ZENT_ERR_STATE_FORMAT. */
ZENT_API ZentResult ZENT_CALL fnUpdateUserContextInformation(ZentSessionType session,
                                                             const void* blob, uint32_t blobLength,
                                                             void* buffer, uint32_t* size);

/* Gives the printing instructions for a document of the job, in the session's instruction form.
 * documentName may be null. Fetch what was generated before asking for another document. */
ZENT_API ZentResult ZENT_CALL fnGetPrintInstructions(ZentSessionType session, void* buffer,
                                                     uint32_t* size, const char* documentName);

/* Checks the session's ticket against the printer and repairs it.
 *   mode      a ZentApplyMode, else ZENT_ERR_APPLY_MODE
 *   owner, title  as for fnImportJobTicket
 *   problems  receives 1 if the ticket asked for what the printer lacks
 *   usable    receives 0 if the user refuses the repair, or the mode does
 */
ZENT_API ZentResult ZENT_CALL fnApplyPrinterCapabilitiesToSettings(ZentSessionType session,
                                                                   uint32_t mode, ZentWindow owner,
                                                                   const ZentChar* title,
                                                                   ZentBool* problems,
                                                                   ZentBool* usable);

/* Lets the user edit the session's ticket in a dialog, by a ZentDialogKind. Cancelling is no
 * failure. The last argument is ignored. */
ZENT_API ZentResult ZENT_CALL fnInvokeTarvoJobTicketDialog(ZentSessionType session, uint32_t kind,
                                                           ZentWindow owner, uint32_t reserved);

/* ---------------------------------------------------------------------------------------------
 * Preferences of the user, by name, in the set that the session was opened with. Getters give the
 * default where nothing is stored, or the store can't be used; setters give ZENT_ERR_REGISTRY then.
 *
 * The library knows these names, and goes by the value after each where nothing is stored; to ask
 * for one as another type gives ZENT_ERR_PREFERENCE_TYPE. docs/preferences.md tells what they mean.
 *   Boolean   JOB_NAME_PREFERENCE 1, ACCOUNT_REQUIRED_PREFERENCE 0, ACCT_NUMBER_IN_JT_PREFERENCE 0,
 *             USE_LOGON_NAME_PREFERENCE 1, USE_LOGON_NAME_PREFERENCE_RECIPIENT 1,
 *             GENERIC_JT_PREFERENCE 1
 *   number    TOOL_BAR_PREFERENCE 1; CUSTOM_PAPER_SIZE_PREFERENCE, IMAGE_SHIFT_UNIT_PREFERENCE:
 *             1 inches, 2 metric, by the user's locale
 *   text      PREFERRED_JOB_TICKET, empty
 * Any other name is the application's own, of any type.
 */

ZENT_API ZentResult ZENT_CALL fnGetPreferenceBoolValue(ZentSessionType session,
                                                       const ZentChar* name, ZentBool* value,
                                                       ZentBool defaultValue);
ZENT_API ZentResult ZENT_CALL fnGetPreferenceNumberValue(ZentSessionType session,
                                                         const ZentChar* name, int32_t* value,
                                                         int32_t defaultValue);
/* size counts ZentChar units, with the terminator; a null defaultValue gives an empty text. */
ZENT_API ZentResult ZENT_CALL fnGetPreferenceStringValue(ZentSessionType session,
                                                         const ZentChar* name, ZentChar* buffer,
                                                         uint32_t* size,
                                                         const ZentChar* defaultValue);
ZENT_API ZentResult ZENT_CALL fnGetPreferenceDataValue(ZentSessionType session,
                                                       const ZentChar* name, void* buffer,
                                                       uint32_t* size, const void* defaultData,
                                                       uint32_t defaultLength);
ZENT_API ZentResult ZENT_CALL fnSetPreferenceBoolValue(ZentSessionType session,
                                                       const ZentChar* name, ZentBool value);
ZENT_API ZentResult ZENT_CALL fnSetPreferenceNumberValue(ZentSessionType session,
                                                         const ZentChar* name, int32_t value);
ZENT_API ZentResult ZENT_CALL fnSetPreferenceStringValue(ZentSessionType session,
                                                         const ZentChar* name,
                                                         const ZentChar* value);
ZENT_API ZentResult ZENT_CALL fnSetPreferenceDataValue(ZentSessionType session,
                                                       const ZentChar* name, const void* data,
                                                       uint32_t length);

#ifdef __cplusplus
}
#endif

#endif
