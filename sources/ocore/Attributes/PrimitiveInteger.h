#pragma once

#include "ocore/Attributes/AttrValue.h"

namespace zent {

/// A signed 32-bit number, as "integer" or "enum".
class PrimitiveInteger : public AttrValue {
public:
    /// The number in decimal digits.
    CXString getIppValue() const override;
    /// Reads a decimal number as parseInteger() does; never fails.
    void setIppValue(const CXString& text) override { m_value = parseInteger(text); }
    bool isEqual(const AttrValue& other) const override;

    std::int32_t getValue() const { return m_value; }
    void setValue(std::int32_t value) { m_value = value; }

    /// Reads leading white space, an optional sign, and digits up to the first other character; 0
    /// if there are none. A number beyond 32 bits gives the nearest bound.
    static std::int32_t parseInteger(const CXString& text);

protected:
    PrimitiveInteger(AVTE type, std::int32_t value) : AttrValue(type), m_value(value) {}
    PrimitiveInteger(AVTE type, const CXString& text)
        : AttrValue(type), m_value(parseInteger(text)) {}

private:
    std::int32_t m_value;
};

class IppInteger : public PrimitiveInteger {
public:
    explicit IppInteger(std::int32_t value = 0) : PrimitiveInteger(AVTE_INTEGER, value) {}
    explicit IppInteger(const CXString& text) : PrimitiveInteger(AVTE_INTEGER, text) {}
    const CXString& getIppSyntax() const override { return syntax::integer; }
    std::unique_ptr<AttrValue> clone() const override;
};

class IppEnum : public PrimitiveInteger {
public:
    explicit IppEnum(std::int32_t value = 0) : PrimitiveInteger(AVTE_ENUM, value) {}
    explicit IppEnum(const CXString& text) : PrimitiveInteger(AVTE_ENUM, text) {}
    const CXString& getIppSyntax() const override { return syntax::enumeration; }
    std::unique_ptr<AttrValue> clone() const override;
};

} // namespace zent
