#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/BoundedBytes.h"

namespace zent::platform {

/// A dialog template, read from its bytes: DLGTEMPLATE and its DLGITEMTEMPLATEs in the standard,
/// not the extended form.
struct DialogTemplate {
    /// A class, title or menu: a text, or the number of a system class or resource.
    using Name = std::variant<std::u16string, std::uint16_t>;

    /// A place in dialog units: these are a quarter of an average character wide, and an eighth
    /// high.
    struct Place {
        std::int16_t x = 0;
        std::int16_t y = 0;
        std::int16_t width = 0;
        std::int16_t height = 0;
    };

    struct Item {
        std::uint32_t style = 0;
        std::uint32_t extendedStyle = 0;
        Place place;
        std::uint16_t id = 0;
        Name windowClass;
        Name title;
        /// The size in bytes, up to where the next item begins; the padding of the last one may be
        /// missing.
        std::size_t size = 0;
    };

    std::uint32_t style = 0;
    std::uint32_t extendedStyle = 0;
    Place place;
    Name menu;
    Name windowClass;
    std::u16string title;
    std::uint16_t pointSize = 0; // 0 where the template names no font
    std::u16string typeface;
    std::size_t headerSize = 0; // in bytes, up to where the first item begins
    std::vector<Item> items;

    /// Nothing if the bytes are in the extended form, or end before the template does.
    static std::optional<DialogTemplate> read(Bytes bytes);
};

} // namespace zent::platform
