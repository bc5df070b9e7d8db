#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>
#include <vector>

namespace zent::test {

/// Builds the bytes of a dialog template in the standard form.
class TemplateBuilder {
public:
    struct Place {
        std::int16_t x = 0;
        std::int16_t y = 0;
        std::int16_t width = 0;
        std::int16_t height = 0;
    };
    /// A text, or a number.
    using Name = std::variant<std::u16string_view, std::uint16_t>;

    // The numbers of the classes that have one, and what is common to styles.
    static constexpr std::uint16_t button = 0x80;
    static constexpr std::uint16_t edit = 0x81;
    static constexpr std::uint16_t label = 0x82;
    static constexpr std::uint16_t listBox = 0x83;
    static constexpr std::uint16_t scrollBar = 0x84;
    static constexpr std::uint16_t comboBox = 0x85;
    static constexpr std::uint32_t visible = 0x10000000;
    static constexpr std::uint32_t disabled = 0x08000000;
    static constexpr std::uint32_t group = 0x00020000;
    static constexpr std::uint32_t tabStop = 0x00010000;

    explicit TemplateBuilder(std::u16string_view title, Place place = {0, 0, 200, 100});

    TemplateBuilder& add(std::uint16_t id, Name windowClass, std::uint32_t style, Place place,
                         Name title = {}, const std::vector<std::uint8_t>& creationData = {});

    std::vector<std::byte> build() const;

private:
    std::vector<std::uint8_t> m_bytes;
};

} // namespace zent::test
