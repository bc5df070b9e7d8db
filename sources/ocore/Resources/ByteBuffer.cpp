// Numbers are little-endian on every system, since the bytes go into state blobs and preferences
// that travel between systems.

#include "ocore/Resources/ByteBuffer.h"

#include <bit>
#include <cstring>
#include <functional>
#include <limits>
#include <new>

#include "ocore/Faults/Exceptions.h"

namespace zent {

static_assert(std::endian::native == std::endian::little, "texts go in and out as they lie");

ByteBuffer::ByteBuffer(const void* data, std::size_t length) { append(data, length); }

ByteBuffer ByteBuffer::fromBool(bool value) {
    const auto byte = static_cast<std::byte>(value ? 1 : 0);
    return {&byte, 1};
}

ByteBuffer ByteBuffer::fromLong(std::int32_t value) { return {&value, sizeof(value)}; }

ByteBuffer ByteBuffer::fromString(const CXString& text) {
    ByteBuffer buffer;
    buffer.append(text);
    return buffer;
}

void ByteBuffer::assign(const void* data, std::size_t length) {
    // The copy is made first, since the new content may be a part of the old one.
    ByteBuffer content(data, length);
    swap(content);
}

void ByteBuffer::append(const void* data, std::size_t length) {
    if (length == 0) {
        return;
    }
    const auto* source = static_cast<const std::byte*>(data);
    const std::size_t oldSize = size();
    const std::byte* begin = m_bytes.data();
    const bool isOwnPart =
        std::less_equal<>()(begin, source) && std::less<>()(source, begin + oldSize);
    const std::size_t offset = isOwnPart ? static_cast<std::size_t>(source - begin) : 0;
    if (length > m_bytes.max_size() - oldSize) {
        throw std::bad_alloc();
    }
    m_bytes.resize(oldSize + length);
    // Growing may have moved the bytes.
    std::memcpy(m_bytes.data() + oldSize, isOwnPart ? m_bytes.data() + offset : source, length);
}

void ByteBuffer::append(const CXString& text) {
    append(text.c_str(), text.view().size() * sizeof(char16_t));
}

void ByteBuffer::clear() {
    ByteBuffer empty;
    swap(empty);
}

std::int32_t ByteBuffer::getAsLongValue() const {
    std::int32_t value = 0;
    if (size() < sizeof(value)) {
        Raise<NotEnoughBytesForDesiredDataTypeException>()(
            "ByteBuffer::getAsLongValue(): Cannot convert to the desired data type because the "
            "size of the source buffer is too small (%ld bytes)! It needs to be at least %ld "
            "bytes.\r\n",
            size(), sizeof(value));
    }
    std::memcpy(&value, data(), sizeof(value));
    return value;
}

bool ByteBuffer::getAsBoolValue() const {
    if (isEmpty()) {
        Raise<NotEnoughBytesForDesiredDataTypeException>()(
            "ByteBuffer::getAsBoolValue(): Cannot convert to the desired data type because the "
            "size of the source buffer is too small (%ld bytes)! It needs to be at least %ld "
            "bytes.\r\n",
            size(), std::size_t{1});
    }
    return m_bytes.front() != std::byte{0};
}

CXString ByteBuffer::getAsString() const {
    const std::size_t length = size() / sizeof(char16_t);
    if (length > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
        throw std::bad_alloc();
    }
    CXString text;
    if (length > 0) {
        const auto count = static_cast<std::int32_t>(length);
        std::memcpy(text.getBuffer(count), data(), length * sizeof(char16_t));
        text.releaseBuffer(count);
    }
    return text;
}

} // namespace zent
