#pragma once

#include "ocore/OrdoParse/OrdoParseException.h"
#include "support/LibraryTesting.h"

namespace zent::test {

/// Points the ordo translator to the document type definition beside the test program.
void useOrdoDtd();

/// A ticket around what stands in the root, or in its job template category.
std::string ordoDocument(std::string_view content);
std::string ordoTicket(std::string_view attributes);

/// Through the ordo translator.
AttrNodeList readOrdo(std::string_view document);
std::string writeOrdo(const AttrNodeList& list);

/// "2: message" of the failure of the XML layer that an operation raises.
template <typename Operation>
std::string ordoFailure(const Operation& operation) {
    try {
        operation();
    } catch (const OrdoParseException& exception) {
        return std::to_string(exception.getErrorCode()) + ": " + exception.getMessage().toNarrow();
    }
    return "nothing was raised";
}

} // namespace zent::test
