#pragma once

#include "ocore/OrdoParse/TarvoDomDoc.h"

namespace zent {

/// The ordo document: a job ticket under the attribute names and syntaxes of the Internet Printing
/// Protocol, validated against its document type definition. The root holds at most two category
/// elements, each made when the first attribute goes into it, and those hold the attributes.
///
/// Writing an attribute that no category lists raises OrdoParseException (code 7). Reading takes an
/// attribute wherever it stands.
class OrdoDomDoc final : public TarvoDomDoc {
public:
    OrdoDomDoc(const CXString& streamName, bool validate) { createParser(streamName, validate); }

protected:
    std::string_view getSkeletonDocument() const override;
    XmlNode& getParentNode(XmlDocument& document, XmlNode& root, const AttrNode& node) override;
    bool isContainerNode(const XmlNode& element) const override;

private:
    // Null until the first attribute of the category.
    XmlNode* m_operationCategory = nullptr;
    XmlNode* m_jobTemplateCategory = nullptr;
};

} // namespace zent
