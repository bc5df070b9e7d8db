#include <memory>
#include <optional>
#include <utility>

#include "ZENT_API/Arguments.h"
#include "ZENT_API/CallFrame.h"
#include "ZENT_API/UnavailableCall.h"
#include "ocore/AnlXlate/OrdoTranslator.h"

using namespace zent;

namespace {

/// Reads a ticket; nothing if the format is none.
std::optional<FeatureSettings> readTicket(const ByteBuffer& data, uint32_t format) {
    FeatureSettings ticket;
    switch (format) {
    case ZENT_FORMAT_XML:
        OrdoTranslator().anlFromBuffer(data, ticket.getAttrNodeList());
        return ticket;
    case ZENT_FORMAT_STATE:
        throw UnavailableCall();
    default:
        return std::nullopt;
    }
}

/// Brings a ticket into the form that is checked against the printer. As yet there is no printer,
/// so there are no problems, and every ticket can be used.
ZentResult apply(FeatureSettings& ticket, uint32_t mode, ZentBool& problems, bool& usable) {
    ticket.normalizePageOverrides();
    ticket.normalizeImageShift();
    if (mode < ZENT_APPLY_SILENT_REPAIR || mode > ZENT_APPLY_REPORT_CHOICE) {
        return ZENT_ERR_APPLY_MODE;
    }
    problems = 0;
    usable = true;
    return ZENT_OK;
}

ByteBuffer bytesOf(const void* data, uint32_t length) {
    if (data == nullptr && length != 0) {
        throw NullArgument();
    }
    return {data, length};
}

} // namespace

extern "C" {

ZentResult ZENT_CALL fnImportJobTicket(ZentSessionType session, const void* data, uint32_t length,
                                       uint32_t format, uint32_t mode, ZentWindow /*owner*/,
                                       const ZentChar* /*title*/, ZentBool* problems,
                                       ZentBool* applied) {
    return inSession(session, u"ZENT::fnImportJobTicket()", [&](ZENTSession& opened) -> ZentResult {
        std::optional<FeatureSettings> ticket = readTicket(bytesOf(data, length), format);
        if (!ticket) {
            return ZENT_ERR_TICKET_FORMAT;
        }
        ZentBool& hasProblems = required(problems);
        ZentBool& isApplied = required(applied);
        bool usable = false;
        const ZentResult result = apply(*ticket, mode, hasProblems, usable);
        isApplied = result == ZENT_OK && usable;
        if (isApplied != 0) {
            // The caches stay: a result that waits to be fetched is served as it is.
            opened.settings() = std::move(*ticket);
        }
        return result;
    });
}

ZentResult ZENT_CALL fnExportJobTicket(ZentSessionType session, void* buffer, uint32_t* size,
                                       uint32_t format) {
    return inSession(session, u"ZENT::fnExportJobTicket()", [&](ZENTSession& opened) -> ZentResult {
        CachedOutput& cache = opened.exportCache();
        switch (format) {
        case ZENT_FORMAT_XML: {
            uint32_t& bytes = required(size);
            if (!cache.isFor(format)) {
                cache.setKeyFromNumber(format);
                OrdoTranslator().anlToBuffer(*opened.settings().getAttrNodeList(), &cache.buffer());
            }
            return cache.handOut(buffer, bytes);
        }
        case ZENT_FORMAT_STATE:
            throw UnavailableCall();
        default:
            return ZENT_ERR_TICKET_FORMAT;
        }
    });
}

ZentResult ZENT_CALL fnCreateTarvoJtSettingsFromPageLevelFeature(
    ZentSessionType session, TarvoJtSettingsType settings, const ZentChar* feature, uint32_t index,
    TarvoJtSettingsType* pageSettings) {
    return withSettings(session, settings, u"ZENT::fnCreateTarvoJtSettingsFromPageLevelFeature()",
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
