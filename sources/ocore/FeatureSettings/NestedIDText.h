#pragma once

#include "ocore/Attributes/NestedAttrID.h"

namespace zent {

/// Makes the place of an attribute from the form in which the tables are authored: the leaf's name,
/// and the parents from the outermost inwards, separated by slashes, each with ":c" for a
/// collection or ":s" for a set, and "!" after it if it names the attribute, with the given role.
NestedAttrID makeNestedAttrID(const char16_t* leaf, const char16_t* parents,
                              std::uint32_t namingRole);

} // namespace zent
