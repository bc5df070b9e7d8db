#include "platform/DialogTemplate.h"

#include <algorithm>

namespace zent::platform {

namespace {

/// Reads one field after the other. Past the end it gives zeros, and says that it has got there.
class Cursor {
public:
    explicit Cursor(Bytes bytes) : m_bytes(bytes) {}

    bool isPastEnd() const { return m_isPastEnd; }

    std::uint16_t take16() { return take<std::uint16_t>(); }
    std::uint32_t take32() { return take<std::uint32_t>(); }

    std::u16string takeText() {
        std::u16string text;
        while (const std::uint16_t unit = take16()) {
            text += static_cast<char16_t>(unit);
        }
        return text;
    }

    DialogTemplate::Name takeName() {
        constexpr std::uint16_t numberFollows = 0xFFFF;
        if (read16(m_bytes, m_offset) != numberFollows) {
            return takeText();
        }
        take16();
        return take16();
    }

    DialogTemplate::Place takePlace() {
        DialogTemplate::Place place;
        for (std::int16_t* number : {&place.x, &place.y, &place.width, &place.height}) {
            *number = static_cast<std::int16_t>(take16());
        }
        return place;
    }

    /// Passes over creation data. Its length counts the length field too, unless it is zero and
    /// there are no data.
    void skipCreationData() {
        const std::uint64_t start = m_offset;
        const std::uint16_t length = take16();
        m_offset = std::max(m_offset, start + length);
        m_isPastEnd = m_isPastEnd || m_offset > m_bytes.size();
    }

    void alignTo4() { m_offset = (m_offset + 3) & ~std::uint64_t{3}; }
    std::size_t getOffset() const { return static_cast<std::size_t>(m_offset); }

private:
    template <typename T>
    T take() {
        const auto number = readNumber<T>(m_bytes, m_offset);
        m_isPastEnd = m_isPastEnd || !number;
        m_offset += sizeof(T);
        return number.value_or(T{0});
    }

    Bytes m_bytes;
    std::uint64_t m_offset = 0;
    bool m_isPastEnd = false;
};

bool isExtended(Bytes bytes) {
    constexpr std::uint32_t extendedForm = 0xFFFF0001;
    return read32(bytes, 0) == extendedForm;
}

DialogTemplate::Item takeItem(Cursor& cursor) {
    DialogTemplate::Item item;
    const std::size_t start = cursor.getOffset();
    item.style = cursor.take32();
    item.extendedStyle = cursor.take32();
    item.place = cursor.takePlace();
    item.id = cursor.take16();
    item.windowClass = cursor.takeName();
    item.title = cursor.takeName();
    cursor.skipCreationData();
    cursor.alignTo4();
    item.size = cursor.getOffset() - start;
    return item;
}

} // namespace

std::optional<DialogTemplate> DialogTemplate::read(Bytes bytes) {
    constexpr std::uint32_t namesFont = 0x40; // DS_SETFONT
    if (isExtended(bytes)) {
        return std::nullopt;
    }
    Cursor cursor(bytes);
    DialogTemplate result;
    result.style = cursor.take32();
    result.extendedStyle = cursor.take32();
    const std::uint16_t count = cursor.take16();
    result.place = cursor.takePlace();
    result.menu = cursor.takeName();
    result.windowClass = cursor.takeName();
    result.title = cursor.takeText();
    if ((result.style & namesFont) != 0) {
        result.pointSize = cursor.take16();
        result.typeface = cursor.takeText();
    }
    cursor.alignTo4();
    result.headerSize = cursor.getOffset();
    for (std::uint16_t i = 0; i < count && !cursor.isPastEnd(); ++i) {
        result.items.push_back(takeItem(cursor));
    }
    return cursor.isPastEnd() ? std::nullopt : std::optional(std::move(result));
}

} // namespace zent::platform
