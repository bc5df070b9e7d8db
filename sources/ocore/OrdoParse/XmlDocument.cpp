// All nodes, attributes and stored texts come from one memory resource, which gives everything back
// at once when the document goes. That is why nodes must not need a destructor.

#include "ocore/OrdoParse/XmlDocument.h"

#include <algorithm>
#include <new>
#include <type_traits>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLChar.hpp>

namespace zent {

namespace {

[[noreturn]] void raiseDomException(xercesc::DOMException::ExceptionCode code) {
    throw xercesc::DOMException(static_cast<short>(code), 0,
                                xercesc::XMLPlatformUtils::fgMemoryManager);
}

} // namespace

const XmlAttribute* XmlNode::findAttribute(std::u16string_view name) const {
    const XmlAttribute* attribute = m_firstAttribute;
    while (attribute != nullptr && attribute->name != name) {
        attribute = attribute->next;
    }
    return attribute;
}

template <typename T, typename... Args>
T* XmlDocument::make(Args... args) {
    static_assert(std::is_trivially_destructible_v<T>, "the memory goes without its nodes");
    return new (m_memory.allocate(sizeof(T), alignof(T))) T{args...};
}

XmlNode* XmlDocument::getDocumentElement() const {
    XmlNode* child = m_node.getFirstChild();
    while (child != nullptr && !child->isElement()) {
        child = child->getNextSibling();
    }
    return child;
}

XmlNode& XmlDocument::append(XmlNode& parent, XmlNodeKind kind, std::u16string_view name,
                             std::u16string_view value) {
    auto* const node =
        new (m_memory.allocate(sizeof(XmlNode), alignof(XmlNode))) XmlNode(kind, name, value);
    node->m_parent = &parent;
    (parent.m_lastChild == nullptr ? parent.m_firstChild : parent.m_lastChild->m_nextSibling) =
        node;
    parent.m_lastChild = node;
    return *node;
}

XmlNode& XmlDocument::appendElement(XmlNode& parent, std::u16string_view name) {
    if (!xercesc::XMLChar1_0::isValidName(name.data(), name.size())) {
        raiseDomException(xercesc::DOMException::INVALID_CHARACTER_ERR);
    }
    return append(parent, XmlNodeKind::element, name, {});
}

void XmlDocument::addAttribute(XmlNode& node, std::u16string_view name, std::u16string_view value) {
    XmlAttribute** place = &node.m_firstAttribute;
    while (*place != nullptr && (*place)->name < name) {
        place = &(*place)->next;
    }
    if (*place != nullptr && (*place)->name == name) {
        raiseDomException(xercesc::DOMException::INUSE_ATTRIBUTE_ERR);
    }
    *place = make<XmlAttribute>(name, value, *place);
}

void XmlDocument::copyChildren(const XmlNode& from, XmlNode& to) {
    for (const XmlNode* child = from.getFirstChild(); child != nullptr;
         child = child->getNextSibling()) {
        XmlNode& copy =
            append(to, child->getKind(), store(child->getName()), store(child->getValue()));
        for (const XmlAttribute* attribute = child->getFirstAttribute(); attribute != nullptr;
             attribute = attribute->next) {
            addAttribute(copy, store(attribute->name), store(attribute->value));
        }
        copyChildren(*child, copy);
    }
}

std::u16string_view XmlDocument::store(std::u16string_view text) {
    if (text.empty()) {
        return {};
    }
    auto* const units = static_cast<char16_t*>(
        m_memory.allocate(text.size() * sizeof(char16_t), alignof(char16_t)));
    std::ranges::copy(text, units);
    return {units, text.size()};
}

} // namespace zent
