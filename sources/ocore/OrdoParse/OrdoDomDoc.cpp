#include "ocore/OrdoParse/OrdoDomDoc.h"

#include "ocore/OrdoParse/OrdoCategories.h"
#include "ocore/OrdoParse/OrdoParseException.h"

namespace zent {

std::string_view OrdoDomDoc::getSkeletonDocument() const {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
           "<!DOCTYPE ordo SYSTEM \"ordo-v02025.dtd\">\r\n"
           "<ordo version=\"1.0\" krss-version=\"2.01\" xml:lang=\"en-US\"></ordo>";
}

XmlNode& OrdoDomDoc::getParentNode(XmlDocument& document, XmlNode& root, const AttrNode& node) {
    const OrdoCategory category = findOrdoCategory(node.getName().view());
    if (category == OrdoCategory::none) {
        raiseOrdoParse(ordoParseCode::noCategory,
                       "OrdoDomDoc::getParentNode(): No ORDO category for %s!\r\n", node.getName());
    }
    XmlNode*& element =
        category == OrdoCategory::operation ? m_operationCategory : m_jobTemplateCategory;
    if (element == nullptr) {
        element = &document.appendElement(root, nameOf(category));
    }
    return *element;
}

/// Each attribute has a syntax, or the document wouldn't be valid: without one are the root and the
/// categories alone.
bool OrdoDomDoc::isContainerNode(const XmlNode& element) const {
    if (element.getParent()->getParent()->isElement()) {
        raiseOrdoParse(ordoParseCode::errorReportedInParse,
                       "OrdoDomDoc::isContainerNode(): %s can't stand in %s!\r\n",
                       CXString(element.getName()), CXString(element.getParent()->getName()));
    }
    return element.getName() == nameOf(OrdoCategory::operation) ||
           element.getName() == nameOf(OrdoCategory::jobTemplate);
}

} // namespace zent
