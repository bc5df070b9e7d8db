#pragma once

#include "ocore/Attributes/AttrValue.h"

namespace zent {

/// "true" or "false".
class IppBoolean : public AttrValue {
public:
    explicit IppBoolean(bool value = false) : AttrValue(AVTE_BOOLEAN), m_value(value) {}
    /// More lenient than setIppValue(): "true", "yes" and "1" are true, all other text is false, so
    /// that reading a document can't fail on a bad boolean.
    explicit IppBoolean(const CXString& text);
    /// A literal would otherwise be taken for a true pointer.
    explicit IppBoolean(const char16_t* text) : IppBoolean(CXString(text)) {}

    const CXString& getIppSyntax() const override { return syntax::boolean; }
    CXString getIppValue() const override;
    /// Takes "true" and "false"; raises UnknownCaseException on any other text and keeps the value.
    void setIppValue(const CXString& text) override;
    std::unique_ptr<AttrValue> clone() const override;
    bool isEqual(const AttrValue& other) const override;

    bool getValue() const { return m_value; }
    void setValue(bool value) { m_value = value; }

private:
    bool m_value;
};

} // namespace zent
