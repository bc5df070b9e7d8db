#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// What the XML layer takes from outside, and what it writes. Documents are hostile until parsed: a
/// document beyond one of these bounds is refused as soon as the bound is passed. What is written
/// keeps to them too, so that it can be read again.
namespace zent::xmlLimits {

constexpr std::size_t documentBytes = std::size_t{64} * 1024 * 1024;
/// How deep elements may nest, since all that walks a document or a list recurses.
constexpr std::uint32_t depth = 100;
/// Elements, attributes, texts, CDATA sections, comments and processing instructions together; and
/// those among them that stand in the text of entities, since a short document refers to it often.
constexpr std::uint32_t nodes = 1'000'000;
constexpr std::uint32_t entityNodes = 200'000;
constexpr std::size_t attributesOfElement = 1'000;
/// The sum of the squares of the numbers of attributes: the parser compares each attribute of an
/// element with the others.
constexpr std::uint64_t attributeComparisons = 20'000'000;
/// Names of elements, attributes and targets that differ, and units of each. Those that the parser
/// finds at one place of its table of names it compares one by one.
constexpr std::size_t names = 4'096;
constexpr std::size_t nameUnits = 255;
constexpr std::size_t namesOfOneHash = 64;
/// Units of a public or system identifier.
constexpr std::size_t identifierUnits = 4'096;
/// Entities and notations that a document declares, references to entities, units in the text of
/// one entity and of all that references bring in.
constexpr std::uint32_t declarations = 1'000;
constexpr std::uint32_t entityExpansions = 1'000;
constexpr std::size_t entityUnits = std::size_t{64} * 1024;
constexpr std::size_t expandedUnits = std::size_t{16} * 1024 * 1024;
/// Units of text and of attribute values in a state blob.
constexpr std::size_t blobUnits = std::size_t{8} * 1024 * 1024;
/// Blocks of memory that the parser asks for between one event and the next.
constexpr std::uint32_t blocksBetweenEvents = 32 * 1024;
/// Faults that are reported before the parser gives up.
constexpr std::uint32_t reports = 1'000;
/// Bytes of a document that a message quotes.
constexpr std::size_t quotedBytes = std::size_t{4} * 1024;

} // namespace zent::xmlLimits

namespace zent {

/// Where a document comes from.
enum class XmlOrigin : std::uint8_t {
    document,  // it comes as it is, so that its size says what it may cost
    stateBlob, // compressed, so that a few bytes can be a large document; it declares no entities
};

/// What depends on the origin.
struct XmlBounds {
    std::size_t textUnits;   // of text and of attribute values, entities expanded
    std::size_t parserBytes; // what the parser may have of memory at a time
    bool mayDeclareEntities;
};

constexpr XmlBounds boundsOf(XmlOrigin origin, std::size_t bytes) {
    constexpr std::size_t mebibyte = std::size_t{1024} * 1024;
    if (origin == XmlOrigin::stateBlob) {
        return {xmlLimits::blobUnits, 80 * mebibyte, false};
    }
    // A unit is at least a byte of the document, unless it comes from an entity.
    return {std::min(bytes + xmlLimits::expandedUnits, xmlLimits::documentBytes),
            100 * mebibyte + 8 * bytes, true};
}

} // namespace zent
