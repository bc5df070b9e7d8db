#pragma once

#include <cstdint>
#include <memory>

#include "ocore/AnlXlate/AnlToStreamTranslator.h"

namespace zent {

class Capabilities;

/// The translator of printing instructions: of the ordo document for form 1, of the stream of
/// comment lines for any other number, as the printer of the capabilities takes it.
std::unique_ptr<AnlToStreamTranslator> createStreamTranslator(const Capabilities& capabilities,
                                                              std::uint32_t instructionForm);

} // namespace zent
