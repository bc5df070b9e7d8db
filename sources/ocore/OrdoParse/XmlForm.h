#pragma once

#include <optional>
#include <string_view>

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/OrdoParse/XmlDocument.h"
#include "ocore/OrdoParse/XmlLimits.h"
#include "ocore/Text/CXString.h"

namespace zent {

/// One XML form of a node list: all that tells it from the other forms. Where an operation is null
/// the form does nothing of the kind.
struct XmlForm {
    /// The empty document, a literal of the program.
    std::string_view skeleton;
    /// The path of the document type definition, nothing if there is none to be had. A form that
    /// has one is always validated.
    std::optional<CXString> (*findDtdPath)() = nullptr;
    /// The attribute that carries a value's syntax, and how a syntax stands there.
    std::u16string_view syntaxAttribute = u"syntax";
    CXString (*syntaxToDocument)(const CXString& syntax) = nullptr;
    CXString (*syntaxFromDocument)(const CXString& text) = nullptr;
    /// The element that a top-level node goes under, if that isn't the root.
    XmlNode& (*findParent)(XmlDocument& document, XmlNode& root, const AttrNode& node) = nullptr;
    /// Whether an element without a syntax attribute is walked into, adding no level to the list.
    bool (*isContainer)(const XmlNode& element) = nullptr;
    /// These change a list before it is written, and back once it is read.
    void (*encode)(AttrNodeList& list) = nullptr;
    void (*decode)(AttrNodeList& list) = nullptr;
    /// Where documents in buffers come from.
    XmlOrigin origin = XmlOrigin::document;
    /// Whether documents are laid out with line breaks and tabs.
    bool isFormatted = true;
};

} // namespace zent
