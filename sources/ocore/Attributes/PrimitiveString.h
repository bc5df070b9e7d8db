#pragma once

#include "ocore/Attributes/AttrValue.h"

namespace zent {

/// A text, in one of five syntaxes.
class PrimitiveString : public AttrValue {
public:
    CXString getIppValue() const override { return m_value; }
    void setIppValue(const CXString& text) override { m_value = text; }
    bool isEqual(const AttrValue& other) const override;

    const CXString& getValue() const { return m_value; }
    void setValue(const CXString& value) { m_value = value; }
    void setValue(const char16_t* value) { m_value = value; }

protected:
    PrimitiveString(AVTE type, const CXString& value) : AttrValue(type), m_value(value) {}

private:
    CXString m_value;
};

class IppKeyword : public PrimitiveString {
public:
    explicit IppKeyword(const CXString& value = CXString())
        : PrimitiveString(AVTE_KEYWORD, value) {}
    const CXString& getIppSyntax() const override { return syntax::keyword; }
    std::unique_ptr<AttrValue> clone() const override;
};

/// White space counts in names and texts: users type them.
class IppName : public PrimitiveString {
public:
    explicit IppName(const CXString& value = CXString()) : PrimitiveString(AVTE_NAME, value) {}
    bool isSpacePreserved() const override { return true; }
    const CXString& getIppSyntax() const override { return syntax::name; }
    std::unique_ptr<AttrValue> clone() const override;
};

class IppText : public PrimitiveString {
public:
    explicit IppText(const CXString& value = CXString()) : PrimitiveString(AVTE_TEXT, value) {}
    bool isSpacePreserved() const override { return true; }
    const CXString& getIppSyntax() const override { return syntax::text; }
    std::unique_ptr<AttrValue> clone() const override;
};

class IppUri : public PrimitiveString {
public:
    explicit IppUri(const CXString& value = CXString()) : PrimitiveString(AVTE_URI, value) {}
    const CXString& getIppSyntax() const override { return syntax::uri; }
    std::unique_ptr<AttrValue> clone() const override;
};

class IppMimeMediaType : public PrimitiveString {
public:
    explicit IppMimeMediaType(const CXString& value = CXString())
        : PrimitiveString(AVTE_MIMEMEDIA, value) {}
    const CXString& getIppSyntax() const override { return syntax::mimeMediaType; }
    std::unique_ptr<AttrValue> clone() const override;
};

} // namespace zent
