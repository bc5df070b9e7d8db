// Hostile capability documents: Capabilities from a source of their own, all queries, and a ticket
// that is validated and repaired by what they say.
//
// Input: a byte each for the printer's model, its page description language and the instruction
// form, then the document.

#include <cstdint>

#include "SameList.h"
#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Capabilities/CapabilitySource.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/Printer/PrinterDefaults.h"
#include "ocore/Repair/TicketRepair.h"
#include "ocore/Stock/StockList.h"
#include "zent27.h"

namespace {

using namespace zent;
using zent::fuzz::require;

constexpr std::uint32_t models = 51;
constexpr std::uint32_t languages = 3;

class InputSource final : public CapabilitySource {
public:
    explicit InputSource(const ByteBuffer& document) : m_document(document) {}
    void getDocument(ByteBuffer& document) const override { document = m_document; }

private:
    const ByteBuffer& m_document;
};

/// Opens a session, by which the library learns where its files lie.
void openSessionOnce() {
    static const ZentSessionType session = [] {
        ZentSessionType opened = nullptr;
        require(fnOpenSession(ZENT_INTERFACE_VERSION, 1, 1, ZENT_INSTRUCTIONS_XML, 1, nullptr, 0,
                              &opened) == ZENT_OK);
        return opened;
    }();
    require(session != nullptr);
}

/// Runs a query that may raise: where data are missing, of another type, or of no known value.
template <typename Query>
void ask(const Query& query) {
    try {
        query();
    } catch (const MissingCapabilityDataException&) {
    } catch (const AttributeTypeMismatchException&) {
    } catch (const UnknownFeatureRequestException&) {
    }
}

void askAbout(const Capabilities& capabilities, const _FI& feature) {
    const auto mayHave = [&](CapabilityType type) {
        return _CI::hasCapability(feature.getFeature(), type);
    };
    for (const bool flag : {false, true}) {
        capabilities.isPrinterDefaultAvailable(feature, flag);
    }
    ask([&] { capabilities.isFeatureSupported(feature); });
    ask([&] { capabilities.isUserDefinable(feature); });
    ask([&] { capabilities.allowsEmbeddedSpaces(feature); });
    if (mayHave(CAPTYPE_INT_UPPER_LIMIT)) {
        ask([&] { capabilities.getUpperLimit(feature); });
    }
    if (mayHave(CAPTYPE_PRECISION)) {
        ask([&] { capabilities.getPrecision(feature); });
    }
    if (mayHave(CAPTYPE_CHAR_RESTRICTION)) {
        ask([&] { capabilities.getCharacterSetRestriction(feature); });
    }
    if (mayHave(CAPTYPE_INT_RANGE)) {
        std::int32_t lower = 0;
        std::int32_t upper = 0;
        ask([&] { capabilities.getFeatureCapabilities(feature, lower, upper); });
    }
    if (mayHave(CAPTYPE_SUPPORTED_VALUES)) {
        ask([&] { capabilities.getFeatureCapabilities(feature, false); });
    }
    if (mayHave(CAPTYPE_SUPPORTED_FEATURES)) {
        ask([&] { capabilities.getMemberFeatures(feature); });
    }
    for (const _FI& container : capabilities.getCollectionFeatures()) {
        ask([&] { capabilities.isMemberOf(container, feature); });
    }
}

void askAll(const Capabilities& capabilities) {
    for (FeatureEnum feature = feature::first; feature <= feature::last; ++feature) {
        askAbout(capabilities, _FI(feature));
    }
    ask([&] { capabilities.getResolutionValues(true); });
    ask([&] { require(!capabilities.getStockSizeValues().empty()); });
    ask([&] { StockList::createFromCapabilities(capabilities); });
    ask([&] { capabilities.isSeparateCoversCapable(); });
    ask([&] { capabilities.isInsertMultipleMediaCapable(); });
    ask([&] { capabilities.isTiffPrintSaveCapable(); });
    ask([&] { capabilities.getAjtPrinterTraits(); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t choices = 3;
    if (size < choices) {
        return 0;
    }
    openSessionOnce();
    const PrinterModel model(data[0] % models + 1, data[1] % languages + 1);
    const std::uint32_t form = data[2] % 2 + 1;
    const ByteBuffer document(data + choices, size - choices);
    std::unique_ptr<const Capabilities> capabilities;
    try {
        capabilities = std::make_unique<Capabilities>(model, form, InputSource(document));
    } catch (const TarvoException&) {
        return 0;
    }
    askAll(*capabilities);

    const PrinterDefaults defaults(model, form);
    FeatureSettings ticket = defaults.getSettings();
    bool hadProblems = false;
    ask([&] {
        applyCapabilitiesToJobTicket(*capabilities, ticket, defaults.getSettings(), hadProblems,
                                     SilentReporter(problemPolicy::repair));
    });
    return 0;
}
