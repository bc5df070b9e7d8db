// An import works on copies of the ticket and the state, which replace those of the session only
// when all has gone well. An export that is asked for its size first keeps the bytes for the second
// call.

#include <memory>
#include <optional>
#include <utility>

#include "ZENT_API/ApplyCapabilities.h"
#include "ZENT_API/Arguments.h"
#include "ZENT_API/CallFrame.h"
#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/AnlXlate/OrdoDtd.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/OrdoParse/OrdoParseException.h"

using namespace zent;

namespace {

/// Data that the library would refuse in any case isn't copied.
ByteBuffer documentOf(const void* data, uint32_t length) {
    if (length > xmlLimits::documentBytes) {
        raiseOrdoParse(ordoParseCode::errorReportedInParse,
                       "The document has %lu bytes; %lu are allowed\r\n", length,
                       xmlLimits::documentBytes);
    }
    return bytesOf(data, length);
}

ByteBuffer blobOf(const void* data, uint32_t length) {
    if (length > xmlLimits::documentBytes) {
        Raise<CompressionException>()("The blob has %lu bytes; %lu are allowed\r\n", length,
                                      xmlLimits::documentBytes);
    }
    return bytesOf(data, length);
}

/// Reads a ticket; nothing if the format is none. A blob is read into the state as well.
std::optional<FeatureSettings> readTicket(const void* data, uint32_t length, uint32_t format,
                                          PersistentSettings& state) {
    FeatureSettings ticket;
    switch (format) {
    case ZENT_FORMAT_XML:
        OrdoTranslator().anlFromBuffer(documentOf(data, length), ticket.getAttrNodeList());
        return ticket;
    case ZENT_FORMAT_STATE:
        state.importPersistentSettingsState(blobOf(data, length), false);
        state.toAttrNodeList(ticket.getAttrNodeList());
        return ticket;
    default:
        return std::nullopt;
    }
}

/// Appends the document to what the cache holds. A failure leaves the key, and what was written so
/// far.
void cacheXml(ZENTSession& session, CachedOutput& cache) {
    const AttrNodeList& list = *session.settings().getAttrNodeList();
    ordoDtd::requireReadable(list);
    cache.setKeyFromNumber(ZENT_FORMAT_XML);
    try {
        OrdoTranslator().anlToBuffer(list, &cache.buffer());
    } catch (const OrdoParseException&) {
        cache.buffer().clear(); // drops the beginning of a document that is too large
        throw;
    }
}

/// Puts the blob in the place of what the cache holds, but only once all of it is there.
void cacheState(ZENTSession& session, CachedOutput& cache) {
    PersistentSettings& state = session.currentState();
    session.updateUserContext(state);
    ByteBuffer blob = state.getBuffer();
    cache.setKeyFromNumber(ZENT_FORMAT_STATE);
    cache.buffer().swap(blob);
}

} // namespace

extern "C" {

ZentResult ZENT_CALL fnImportJobTicket(ZentSessionType session, const void* data, uint32_t length,
                                       uint32_t format, uint32_t mode, ZentWindow owner,
                                       const ZentChar* title, ZentBool* problems,
                                       ZentBool* applied) {
    return inSession(session, __func__, [&](ZENTSession& opened) -> ZentResult {
        PersistentSettings state = opened.copyState();
        std::optional<FeatureSettings> ticket = readTicket(data, length, format, state);
        if (!ticket) {
            return ZENT_ERR_TICKET_FORMAT;
        }
        ZentBool& hasProblems = required(problems);
        ZentBool& isApplied = required(applied);
        bool usable = false;
        const ZentResult result =
            applyCapabilities(opened, *ticket, {mode, owner, title}, hasProblems, usable);
        isApplied = result == ZENT_OK && usable;
        if (isApplied != 0) {
            opened.replaceTicket(std::move(*ticket), state);
        }
        return result;
    });
}

ZentResult ZENT_CALL fnExportJobTicket(ZentSessionType session, void* buffer, uint32_t* size,
                                       uint32_t format) {
    return inSession(session, __func__, [&](ZENTSession& opened) -> ZentResult {
        if (format != ZENT_FORMAT_XML && format != ZENT_FORMAT_STATE) {
            return ZENT_ERR_TICKET_FORMAT;
        }
        uint32_t& bytes = required(size);
        CachedOutput& cache = opened.exportCache();
        if (!cache.isFor(format)) {
            const auto generate = format == ZENT_FORMAT_XML ? cacheXml : cacheState;
            generate(opened, cache);
        }
        return cache.handOut(buffer, bytes);
    });
}

ZentResult ZENT_CALL fnUpdateUserContextInformation(ZentSessionType session, const void* blob,
                                                    uint32_t blobLength, void* buffer,
                                                    uint32_t* size) {
    return inSession(session, __func__, [&](ZENTSession& opened) -> ZentResult {
        uint32_t& bytes = required(size);
        PersistentSettings state(blobOf(blob, blobLength), true);
        opened.updateUserContext(state);
        return handOutBytes(state.getBuffer(), buffer, bytes);
    });
}

// The name in the report differs from the call's; support staff know it by that.
ZentResult ZENT_CALL fnApplyPrinterCapabilitiesToSettings(ZentSessionType session, uint32_t mode,
                                                          ZentWindow owner, const ZentChar* title,
                                                          ZentBool* problems, ZentBool* usable) {
    return inSession(session, "fnApplyPrinterCapabilitiesToSettingsSilently",
                     [&](ZENTSession& opened) -> ZentResult {
                         ZentBool& hasProblems = required(problems);
                         ZentBool& isUsable = required(usable);
                         bool mayBeUsed = false;
                         const ZentResult result =
                             applyCapabilities(opened, opened.settings(), {mode, owner, title},
                                               hasProblems, mayBeUsed);
                         if (result == ZENT_OK) {
                             isUsable = mayBeUsed;
                         }
                         return result;
                     });
}

ZentResult ZENT_CALL fnCreateTarvoJtSettingsFromPageLevelFeature(
    ZentSessionType session, TarvoJtSettingsType settings, const ZentChar* feature, uint32_t index,
    TarvoJtSettingsType* pageSettings) {
    return withSettings(session, settings, __func__,
                        [&](ZENTSession& /*opened*/, FeatureSettings& ticket) -> ZentResult {
                            TarvoJtSettingsType& handle = required(pageSettings);
                            const _FI id(textOf(feature));
                            try {
                                auto made = std::make_unique<FeatureSettings>();
                                ticket.getNestedSettingsCopy(made.get(), id, index);
                                handle = ZENTSession::getHandleOf(made.release());
                            } catch (const std::bad_alloc&) {
                                handle = nullptr;
                            }
                            ticket.removeEmptyLists();
                            return ZENT_OK;
                        });
}

} // extern "C"
