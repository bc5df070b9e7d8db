#pragma once

#include <string_view>

namespace zent {

/// The two groups that the top-level attributes of an ordo document stand in, as in the requests of
/// the Internet Printing Protocol.
enum class OrdoCategory {
    none,
    operation,
    jobTemplate,
};

/// The category that an attribute is written to; none for one that the document format doesn't
/// list.
OrdoCategory findOrdoCategory(std::u16string_view attribute);

/// The element that stands for a category other than none.
std::u16string_view nameOf(OrdoCategory category);

} // namespace zent
