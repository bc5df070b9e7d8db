#pragma once

#include <string>
#include <string_view>

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/OrdoParse/OrdoParseException.h"

namespace zent::test {

/// The folder of the test program, where the document type definition lies too; with a separator.
CXString programFolder();
/// Points the ordo translator there.
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
