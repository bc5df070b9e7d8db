#include "ocore/AnlXlate/XmlForms.h"

#include "ocore/AnlXlate/OrdoDtd.h"
#include "ocore/OrdoParse/OrdoCategories.h"
#include "ocore/OrdoParse/OrdoParseException.h"

namespace zent {

namespace {

XmlNode& findCategory(XmlDocument& document, XmlNode& root, const AttrNode& node) {
    const OrdoCategory category = findOrdoCategory(node.getName().view());
    if (category == OrdoCategory::none) {
        raiseOrdoParse(ordoParseCode::noCategory,
                       "OrdoDomDoc::getParentNode(): No ORDO category for %s!\r\n", node.getName());
    }
    for (XmlNode* child = root.getFirstChild(); child != nullptr; child = child->getNextSibling()) {
        if (child->getName() == nameOf(category)) {
            return *child;
        }
    }
    return document.appendElement(root, nameOf(category));
}

/// A document is valid only if each attribute has a syntax, so that an element without one is the
/// root or a category.
bool isCategory(const XmlNode& element) {
    if (element.getParent()->getParent()->isElement()) {
        raiseOrdoParse(ordoParseCode::errorReportedInParse,
                       "OrdoDomDoc::isContainerNode(): %s can't stand in %s!\r\n",
                       CXString(element.getName()), CXString(element.getParent()->getName()));
    }
    return element.getName() == nameOf(OrdoCategory::operation) ||
           element.getName() == nameOf(OrdoCategory::jobTemplate);
}

} // namespace

constinit const XmlForm xmlForm::ordo{
    .skeleton = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
                "<!DOCTYPE ordo SYSTEM \"ordo-v02025.dtd\">\r\n"
                "<ordo version=\"1.0\" krss-version=\"2.01\" xml:lang=\"en-US\"></ordo>",
    .findDtdPath = ordoDtd::findPath,
    .findParent = findCategory,
    .isContainer = isCategory};

constinit const XmlForm xmlForm::ocap{
    .skeleton = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                "<ocap version=\"1.0\" krss-version=\"2.01\" xml:lang=\"en-US\"> </ocap>"};

constinit const XmlForm xmlForm::mediaPreference{
    .skeleton =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
        "<omediapref version=\"1.0\" krss-version=\"2.01\" xml:lang=\"en-US\"> </omediapref>"};

} // namespace zent
