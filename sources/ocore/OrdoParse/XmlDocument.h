#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <string_view>

namespace zent {

/// The numbers of the Document Object Model; 13 is the XML declaration's, from its first drafts.
enum class XmlNodeKind : std::uint8_t {
    element = 1,
    text = 3,
    cdataSection = 4,
    entityReference = 5,
    entity = 6,
    processingInstruction = 7,
    comment = 8,
    document = 9,
    documentType = 10,
    xmlDeclaration = 13,
};

struct XmlAttribute {
    std::u16string_view name;
    std::u16string_view value;
    XmlAttribute* next;
};

/// A node of an XmlDocument.
///
/// | kind                  | name   | value           | attributes                    |
/// |-----------------------|--------|-----------------|-------------------------------|
/// | element               | name   |                 | its own                       |
/// | text, CDATA, comment  |        | the text        |                               |
/// | processingInstruction | target | data            |                               |
/// | documentType          | root   | internal subset | PUBLIC, SYSTEM                |
/// | entity                | name   |                 | PUBLIC, SYSTEM, NDATA         |
/// | xmlDeclaration        |        |                 | version, encoding, standalone |
class XmlNode {
public:
    XmlNodeKind getKind() const { return m_kind; }
    bool isElement() const { return m_kind == XmlNodeKind::element; }
    std::u16string_view getName() const { return m_name; }
    std::u16string_view getValue() const { return m_value; }

    /// These are null where there is no such node.
    XmlNode* getParent() const { return m_parent; }
    XmlNode* getFirstChild() const { return m_firstChild; }
    XmlNode* getNextSibling() const { return m_nextSibling; }

    /// The attributes in order of their names' code units; null at the end.
    const XmlAttribute* getFirstAttribute() const { return m_firstAttribute; }
    const XmlAttribute* findAttribute(std::u16string_view name) const;

private:
    friend class XmlDocument;
    XmlNode(XmlNodeKind kind, std::u16string_view name, std::u16string_view value)
        : m_name(name), m_value(value), m_kind(kind) {}

    std::u16string_view m_name;
    std::u16string_view m_value;
    XmlNode* m_parent = nullptr;
    XmlNode* m_firstChild = nullptr;
    XmlNode* m_lastChild = nullptr;
    XmlNode* m_nextSibling = nullptr;
    XmlAttribute* m_firstAttribute = nullptr;
    XmlNodeKind m_kind;
};

/// A document as a tree: what is between a node list and the bytes of an XML form.
///
/// The parser library has a tree of its own, which the first version of this layer used. Each node
/// that joins it costs some ten dynamic casts: reading a long ticket took five times as long as the
/// parser's events do, and building one ten times as long as writing it. A ticket's tree is built
/// once, walked once and dropped. So this one only grows, out of one block of memory, and goes as a
/// whole.
///
/// Texts are referred to, not copied: what is passed in must live as long as the document. store()
/// makes it so.
class XmlDocument {
public:
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the block of memory needs no zeros
    XmlDocument() : m_node(XmlNodeKind::document, {}, {}) {}
    XmlDocument(const XmlDocument&) = delete;
    XmlDocument& operator=(const XmlDocument&) = delete;

    /// The node that holds all others: declaration, document type, root element and what lies
    /// between.
    XmlNode& getNode() { return m_node; }
    const XmlNode& getNode() const { return m_node; }
    /// The root element; null if there is none.
    XmlNode* getDocumentElement() const;

    XmlNode& append(XmlNode& parent, XmlNodeKind kind, std::u16string_view name,
                    std::u16string_view value);
    /// Raises the library's DOMException (INVALID_CHARACTER_ERR) unless `name` is one that XML
    /// allows.
    XmlNode& appendElement(XmlNode& parent, std::u16string_view name);
    /// Raises DOMException if there is an attribute of that name.
    void addAttribute(XmlNode& node, std::u16string_view name, std::u16string_view value);
    void setValue(XmlNode& node, std::u16string_view value) { node.m_value = value; }
    /// Appends copies of all that `other` holds, texts included.
    void appendCopy(const XmlDocument& other) { copyChildren(other.m_node, m_node); }

    /// Copies a text, so that it lives as long as the document.
    std::u16string_view store(std::u16string_view text);

private:
    template <typename T, typename... Args>
    T* make(Args... args);
    void copyChildren(const XmlNode& from, XmlNode& to);

    static constexpr std::size_t firstBlock = std::size_t{8} * 1024;

    std::array<std::byte, firstBlock> m_firstBlock;
    std::pmr::monotonic_buffer_resource m_memory{m_firstBlock.data(), m_firstBlock.size()};
    XmlNode m_node;
};

} // namespace zent
