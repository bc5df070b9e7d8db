#pragma once

#include <cstdint>
#include <string>

#include "LibraryError.h"

namespace jobticket {

/// What an exported call hands out in a buffer: it is asked first for the size and then for the
/// content. `call` takes the buffer and the size; `name` and `subject` are for messages.
template <typename Content, typename Call>
Content fetch(const char* name, const std::string& subject, const Call& call) {
    std::uint32_t size = 0;
    check(call(nullptr, &size), name, subject);
    Content content(size, typename Content::value_type());
    check(call(content.data(), &size), name, subject);
    return content;
}

} // namespace jobticket
