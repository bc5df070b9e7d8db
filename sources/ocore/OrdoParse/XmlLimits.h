#pragma once

#include <cstddef>
#include <cstdint>

/// What the XML layer takes from outside. Documents are hostile until parsed: a document beyond one
/// of these bounds is refused, as if it were malformed.
namespace zent::xmlLimits {

constexpr std::size_t documentBytes = std::size_t{64} * 1024 * 1024;
/// Units of text and of attribute values, entities expanded and defaults filled in.
constexpr std::size_t textUnits = documentBytes;
/// Elements inside elements. All that walks a document or a list recurses.
constexpr std::uint32_t depth = 100;
constexpr std::uint32_t elements = 1'000'000;
constexpr std::size_t attributesOfElement = 1'000;
/// References to entities in a document, and units in the text of one entity.
constexpr std::uint32_t entityExpansions = 1'000;
constexpr std::size_t entityUnits = std::size_t{64} * 1024;
/// Faults that are told before the parser gives up.
constexpr std::uint32_t reports = 1'000;
/// Bytes of a document that a message quotes.
constexpr std::size_t quotedBytes = std::size_t{4} * 1024;

} // namespace zent::xmlLimits
