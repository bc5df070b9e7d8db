#include "support/TemplateBuilder.h"

#include <span>

#include "platform/PeImage.h"

namespace zent::test {

namespace {

using Bytes = std::vector<std::uint8_t>;

void add16(Bytes& bytes, std::uint32_t value) {
    bytes.resize(bytes.size() + 2);
    put16(bytes, bytes.size() - 2, value);
}

void add32(Bytes& bytes, std::uint32_t value) {
    bytes.resize(bytes.size() + 4);
    put32(bytes, bytes.size() - 4, value);
}

void addName(Bytes& bytes, const TemplateBuilder::Name& name) {
    if (const auto* const number = std::get_if<std::uint16_t>(&name)) {
        add16(bytes, 0xFFFF);
        add16(bytes, *number);
        return;
    }
    for (const char16_t unit : std::get<std::u16string_view>(name)) {
        add16(bytes, unit);
    }
    add16(bytes, 0);
}

void addPlace(Bytes& bytes, const TemplateBuilder::Place& place) {
    for (const std::int16_t number : {place.x, place.y, place.width, place.height}) {
        add16(bytes, static_cast<std::uint16_t>(number));
    }
}

void alignTo4(Bytes& bytes) { bytes.resize((bytes.size() + 3) / 4 * 4); }

constexpr std::size_t countPlace = 8;

} // namespace

TemplateBuilder::TemplateBuilder(std::u16string_view title, Place place) {
    constexpr std::uint32_t popupWithCaptionAndFont = 0x80C800C0;
    constexpr std::uint32_t pointSize = 8;
    add32(m_bytes, popupWithCaptionAndFont);
    add32(m_bytes, 0);
    add16(m_bytes, 0);
    addPlace(m_bytes, place);
    addName(m_bytes, u"");
    addName(m_bytes, u"");
    addName(m_bytes, title);
    add16(m_bytes, pointSize);
    addName(m_bytes, u"MS Shell Dlg");
}

TemplateBuilder& TemplateBuilder::add(std::uint16_t id, Name windowClass, std::uint32_t style,
                                      Place place, Name title, const Bytes& creationData) {
    constexpr std::uint32_t child = 0x40000000;
    alignTo4(m_bytes);
    add32(m_bytes, style | child);
    add32(m_bytes, 0);
    addPlace(m_bytes, place);
    add16(m_bytes, id);
    addName(m_bytes, windowClass);
    addName(m_bytes, title);
    const std::size_t length = creationData.empty() ? 0 : creationData.size() + 2;
    add16(m_bytes, static_cast<std::uint32_t>(length));
    m_bytes.insert(m_bytes.end(), creationData.begin(), creationData.end());
    put16(m_bytes, countPlace, m_bytes[countPlace] + m_bytes[countPlace + 1] * 256U + 1);
    return *this;
}

std::vector<std::byte> TemplateBuilder::build() const {
    const auto bytes = std::as_bytes(std::span(m_bytes));
    return {bytes.begin(), bytes.end()};
}

} // namespace zent::test
