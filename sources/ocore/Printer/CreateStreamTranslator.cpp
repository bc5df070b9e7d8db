#include "ocore/Printer/CreateStreamTranslator.h"

#include "ocore/Ajt/TarvoAjtTranslator.h"
#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/Capabilities/Capabilities.h"

namespace zent {

std::unique_ptr<AnlToStreamTranslator> createStreamTranslator(const Capabilities& capabilities,
                                                              std::uint32_t instructionForm) {
    constexpr std::uint32_t ordoForm = 1;
    if (instructionForm == ordoForm) {
        return std::make_unique<OrdoTranslator>();
    }
    return std::make_unique<TarvoAjtTranslator>(capabilities.getAjtPrinterTraits());
}

} // namespace zent
