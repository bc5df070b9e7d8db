#pragma once

#include <optional>

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/Text/CXString.h"

/// The document type definition of the ordo document, "ordo-v02025.dtd".
namespace zent::ordoDtd {

/// Says, for the whole process, where it lies: the directory with its trailing separator. Until
/// then it is looked for where driver files lie.
void setDirectory(const CXString& directory);
/// The path; nothing if no directory could be had.
std::optional<CXString> findPath();

/// Raises OrdoParseException unless what is written of a list can be read again: a list that comes
/// from elsewhere may hold members that the document type doesn't declare.
void requireReadable(const AttrNodeList& list);

} // namespace zent::ordoDtd
