#pragma once

#include "ocore/Resources/ByteBuffer.h"
#include "ocore/Text/CXString.h"
#include "zent27.h"

namespace zent {

/// Raised for a null pointer that a call would have to go through. It is no library exception, so
/// that it ends in the frame's catch-all, as a processor fault does where those can be caught.
struct NullArgument {};

/// What a pointer argument points to.
template <typename T>
T& required(T* argument) {
    if (argument == nullptr) {
        throw NullArgument();
    }
    return *argument;
}

/// A text argument; null gives the empty string.
CXString textOf(const ZentChar* argument);

/// The bytes of a data argument, which may be null only without a length.
ByteBuffer bytesOf(const void* data, std::uint32_t length);

/// The buffer protocol for text: sets the size to what is required, terminator included, and copies
/// if there is a buffer that is large enough. Otherwise ZENT_OK without a buffer, and
/// ZENT_ERR_BUFFER_TOO_SMALL with one that is too small.
ZentResult handOutText(const CXString& text, ZentChar* buffer, std::uint32_t& size);

} // namespace zent
