// Both directions follow the form's description (XmlForm) alone: no form has code of its own here.

#include "ocore/OrdoParse/TarvoDomDoc.h"

#include <array>

#include <xercesc/dom/DOMException.hpp>

#include "ocore/Attributes/AttrValueFactory.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/OrdoParse/SharedTexts.h"
#include "ocore/OrdoParse/TarvoXmlParser.h"
#include "ocore/OrdoParse/ZNXMLInterface.h"

namespace zent {

namespace {

constexpr std::u16string_view spaceAttribute = u"xml:space";
constexpr std::u16string_view preserve = u"preserve";

const char16_t* domExceptionText(short code) {
    static constexpr std::array<const char16_t*, 16> texts = {
        nullptr,
        u"INDEX_SIZE_ERR",
        u"DOMSTRING_SIZE_ERR",
        u"HIERARCHY_REQUEST_ERR",
        u"WRONG_DOCUMENT_ERR",
        u"INVALID_CHARACTER_ERR",
        u"NO_DATA_ALLOWED_ERR",
        u"NO_MODIFICATION_ALLOWED_ERR",
        u"NOT_FOUND_ERR",
        nullptr,
        u"INUSE_ATTRIBUTE_ERR",
        u"INVALID_STATE_ERR",
        u"SYNTAX_ERR",
        u"INVALID_MODIFICATION_ERR",
        u"NAMESPACE_ERR",
        u"INVALID_ACCESS_ERR",
    };
    const auto index = static_cast<unsigned short>(code);
    const char16_t* const text = index < texts.size() ? texts[index] : nullptr;
    return text != nullptr ? text : u"Unknown_DOMException_Code!";
}

bool isSpacePreserved(const XmlNode& element) {
    const XmlAttribute* const space = element.findAttribute(spaceAttribute);
    return space != nullptr && space->value == preserve;
}

} // namespace

TarvoDomDoc::TarvoDomDoc(const XmlForm& form, XmlOrigin origin, const CXString& streamName,
                         bool validate)
    : m_form(form) {
    ZNXMLInterface::Instance();
    m_parser = std::make_unique<TarvoXmlParser>(streamName, validate);
    m_parser->setOrigin(origin);
}

TarvoDomDoc::~TarvoDomDoc() = default;

void TarvoDomDoc::parse(std::span<const std::byte> bytes) { m_parser->parse(bytes); }

void TarvoDomDoc::toXmlStream(Stream& output, bool formatted) {
    m_parser->convertToXmlStream(output, formatted);
}

// From tree to list

void TarvoDomDoc::toAttrNodeList(AttrNodeList* list) {
    const XmlNode* const root = m_parser->getDocument().getDocumentElement();
    if (root == nullptr) {
        return;
    }
    try {
        SharedTexts texts;
        walk(*root, *list, texts);
    } catch (const xercesc::DOMException& exception) {
        raiseOrdoParse(ordoParseCode::domExceptionInConversion,
                       "TarvoDomDoc::addDomNodeToAttrNodeList(): DOM_DOMException exception during "
                       "DOM tree parsing. Exception code is %s.\r\n",
                       domExceptionText(exception.code));
    }
}

void TarvoDomDoc::walk(const XmlNode& parent, AttrNodeList& list, SharedTexts& texts) const {
    for (const XmlNode* child = parent.getFirstChild(); child != nullptr;
         child = child->getNextSibling()) {
        if (!child->isElement()) {
            continue;
        }
        if (const XmlAttribute* const syntax = child->findAttribute(m_form.syntaxAttribute)) {
            addDomNodeToAttrNodeList(*child, *syntax, list, texts);
        } else if (m_form.isContainer != nullptr && m_form.isContainer(*child)) {
            walk(*child, list, texts);
        }
    }
}

void TarvoDomDoc::addDomNodeToAttrNodeList(const XmlNode& element, const XmlAttribute& syntax,
                                           AttrNodeList& list, SharedTexts& texts) const {
    const XmlNode* const first = element.getFirstChild();
    if (first == nullptr) {
        return;
    }
    const AttrID id(texts.trimmed(element.getName()));
    CXString keyword = texts.trimmed(syntax.value);
    if (m_form.syntaxFromDocument != nullptr) {
        keyword = m_form.syntaxFromDocument(keyword);
    }
    // An element has no value of its own, so one that comes first makes a list.
    const CXString text =
        isSpacePreserved(element) ? CXString(first->getValue()) : texts.trimmed(first->getValue());
    if (!text.isEmpty()) {
        list.addNode(AttrNode(id, AttrValueFactory::createAttrValue(keyword, text), false));
        return;
    }
    AttrNodeList members;
    walk(element, members, texts);
    list.addNode(AttrNode(id, std::make_unique<IppList>(std::move(members), keyword), false));
}

// From list to tree

void TarvoDomDoc::fromAttrNodeList(const AttrNodeList& list) {
    m_parser->parseSkeleton(m_form.skeleton);
    XmlDocument& document = m_parser->getDocument();
    XmlNode& root = *document.getDocumentElement();
    try {
        for (std::uint32_t i = 0; i < list.getNumberOfNodes(); ++i) {
            const AttrNode& node = list.getNodeAt(i);
            if (!node.isPrivate()) {
                XmlNode& parent =
                    m_form.findParent != nullptr ? m_form.findParent(document, root, node) : root;
                addAttrNodeToDOMTree(document, parent, node);
            }
        }
    } catch (const xercesc::DOMException& exception) {
        raiseOrdoParse(ordoParseCode::domExceptionInCreation,
                       "TarvoDomDoc::addAttrNodeToDOMTree(): DOM_DOMException exception during DOM "
                       "node creation. Exception code is %s.\r\n",
                       domExceptionText(exception.code));
    }
}

void TarvoDomDoc::addAttrNodeToDOMTree(XmlDocument& document, XmlNode& parent,
                                       const AttrNode& node) const {
    const AttrValue& value = node.getAttrValue();
    XmlNode& element = document.appendElement(parent, node.getName().view());
    const CXString& keyword = value.getIppSyntax();
    const CXString syntax =
        m_form.syntaxToDocument != nullptr ? m_form.syntaxToDocument(keyword) : keyword;
    document.addAttribute(element, m_form.syntaxAttribute, document.store(syntax.view()));
    if (value.isSpacePreserved()) {
        document.addAttribute(element, spaceAttribute, preserve);
    }
    if (value.isList()) {
        const AttrNodeList& members = static_cast<const IppList&>(value).getAttrNodeList();
        for (std::uint32_t i = 0; i < members.getNumberOfNodes(); ++i) {
            if (const AttrNode& member = members.getNodeAt(i); !member.isPrivate()) {
                addAttrNodeToDOMTree(document, element, member);
            }
        }
        return;
    }
    const CXString text = value.getIppValue();
    document.append(element, XmlNodeKind::text, {}, document.store(text.view()));
}

} // namespace zent
