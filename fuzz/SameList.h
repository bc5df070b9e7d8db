#pragma once

// Compares a list with what was written of it as a document and read again.

#include <algorithm>
#include <cstdlib>

#include "ocore/Attributes/IppList.h"

namespace zent::fuzz {

inline void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

inline const AttrNodeList& listOf(const AttrValue& value) {
    return static_cast<const IppList&>(value).getAttrNodeList();
}

inline CXString trimmed(CXString text) {
    text.trim();
    return text;
}

/// A value without text and a list without members are written, but not read back.
inline bool isReadBack(const AttrValue& value) {
    return value.isList() ? listOf(value).getNumberOfNodes() != 0 : !value.getIppValue().isEmpty();
}

/// A document of XML 1.1 can hold characters that can't be written; they become others.
inline bool isWritable(char16_t unit) {
    const bool isWhiteSpace = unit == u'\t' || unit == u'\n' || unit == u'\r';
    return isWhiteSpace || (unit >= u' ' && unit < 0xFFFE);
}

/// Texts keep their white space only as names and texts; a text that is nothing else is read as a
/// list.
inline void requireSameText(const AttrValue& written, const AttrValue& read) {
    const CXString text = written.getIppValue();
    const bool isWrittenAsItIs = std::ranges::all_of(text.view(), isWritable);
    if (isWrittenAsItIs && !written.isSpacePreserved() && trimmed(text).isEmpty()) {
        require(read.isList() && listOf(read).getNumberOfNodes() == 0);
        return;
    }
    require(read.getAttrValueType() == written.getAttrValueType());
    require(read.getIppSyntax() == written.getIppSyntax());
    const auto isKept = [](char16_t unit) { return unit >= u' ' && isWritable(unit); };
    if (!std::ranges::all_of(text.view(), isKept)) { // ends of lines become others as well
        return;
    }
    require(written.isSpacePreserved() ? read.getIppValue() == text
                                       : read.getIppValue() == trimmed(text));
}

inline void requireSameList(const AttrNodeList& written, const AttrNodeList& read) {
    std::uint32_t place = 0;
    for (std::uint32_t i = 0; i < written.getNumberOfNodes(); ++i) {
        const AttrNode& node = written.getNodeAt(i);
        const AttrValue& value = node.getAttrValue();
        if (!isReadBack(value)) {
            continue;
        }
        require(place < read.getNumberOfNodes());
        const AttrNode& other = read.getNodeAt(place++);
        require(other.getName() == node.getName());
        if (value.isList()) {
            require(other.getAttrValue().isList());
            requireSameList(listOf(value), listOf(other.getAttrValue()));
        } else {
            requireSameText(value, other.getAttrValue());
        }
    }
    require(place == read.getNumberOfNodes());
}

/// For what never left the memory: all is the same, private nodes as well.
inline void requireUnchanged(const AttrNodeList& before, const AttrNodeList& after) {
    require(before.getNumberOfNodes() == after.getNumberOfNodes());
    for (std::uint32_t i = 0; i < before.getNumberOfNodes(); ++i) {
        const AttrNode& node = before.getNodeAt(i);
        require(node == after.getNodeAt(i));
        if (node.getAttrValue().isList()) {
            requireUnchanged(listOf(node.getAttrValue()),
                             listOf(after.getNodeAt(i).getAttrValue()));
        }
    }
}

} // namespace zent::fuzz
