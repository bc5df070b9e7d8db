#pragma once

#include <cstdint>
#include <memory>

#include "ocore/Attributes/AVTE.h"
#include "ocore/Text/CXString.h"

namespace zent {

class IppList;

/// A value of an attribute, in one of the syntaxes of the Internet Printing Protocol.
///
/// A value shares no state with any other: clones are deep. It carries no lock and belongs to
/// whoever owns the list that holds it.
class AttrValue {
public:
    virtual ~AttrValue() = default;

    /// Whether the white space of this value counts, so that the XML writer must mark it.
    virtual bool isSpacePreserved() const { return false; }
    virtual const CXString& getIppSyntax() const = 0;
    /// The value as text; empty for lists and unknown syntaxes.
    virtual CXString getIppValue() const = 0;
    virtual void setIppValue(const CXString& text) = 0;
    virtual std::unique_ptr<AttrValue> clone() const = 0;
    /// Same kind, same content; of two lists only the number of nodes counts.
    virtual bool isEqual(const AttrValue& other) const = 0;
    /// A hook for diagnosis; the factory calls it on each value that it makes.
    virtual void dump() const {}

    AVTE getAttrValueType() const { return m_type; }

    bool isList() const { return m_type == AVTE_LIST; }
    bool is1setOf() const { return hasListSyntax(syntax::setOf); }
    bool isCollection() const { return hasListSyntax(syntax::collection); }
    bool isRangeOfInteger() const { return hasListSyntax(syntax::rangeOfInteger); }
    bool isResolution() const { return hasListSyntax(syntax::resolution); }
    /// Derived from PrimitiveInteger or PrimitiveString; the kind tells, each kind being one class.
    bool isPrimitiveInteger() const { return m_type == AVTE_INTEGER || m_type == AVTE_ENUM; }
    bool isPrimitiveString() const;

    /// The bounds of a range. A bound that is missing leaves its target as it was, and the result
    /// is false. Raises AttributeTypeMismatchException on anything but a range.
    bool getRangeOfIntegerValues(std::int32_t& lower, std::int32_t& upper) const;
    /// Reads the three numbers of a resolution in the same manner.
    bool getResolutionValues(std::int32_t& crossFeed, std::int32_t& feedDirection,
                             std::int32_t& units) const;
    /// Whether both are resolutions of equal numbers; two incomplete ones are the same.
    bool isSameResolution(const AttrValue& other) const;

protected:
    explicit AttrValue(AVTE type) : m_type(type) {}
    AttrValue(const AttrValue&) = default;
    /// The kind stays, since it is that of the class.
    AttrValue& operator=(const AttrValue& /*other*/) { return *this; }
    bool isSameKind(const AttrValue& other) const { return m_type == other.m_type; }

private:
    bool hasListSyntax(const CXString& keyword) const;
    const IppList& asList() const;

    AVTE m_type;
};

} // namespace zent
