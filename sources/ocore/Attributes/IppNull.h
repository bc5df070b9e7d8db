#pragma once

#include "ocore/Attributes/AttrValue.h"

namespace zent {

/// A value of a syntax that isn't known: the keyword survives, the content doesn't.
class IppNull : public AttrValue {
public:
    explicit IppNull(const CXString& syntax) : AttrValue(AVTE_NULL), m_syntax(syntax) {}

    const CXString& getIppSyntax() const override { return m_syntax; }
    CXString getIppValue() const override { return {}; }
    void setIppValue(const CXString& /*text*/) override {}
    std::unique_ptr<AttrValue> clone() const override;
    bool isEqual(const AttrValue& other) const override;

private:
    CXString m_syntax;
};

} // namespace zent
