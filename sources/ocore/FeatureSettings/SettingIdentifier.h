#pragma once

#include <memory>

#include "ocore/Attributes/NestedAttrID.h"
#include "ocore/FeatureSettings/FeatureNumber.h"
#include "ocore/FeatureSettings/SyntaxList.h"

namespace zent {

/// Setting identifier: the light handle by which the library speaks of a feature (_FI) or of a
/// capability of a feature. It holds numbers only; every query goes to the static tables and raises
/// UnknownFeatureRequestException for a number that they don't know.
class _SI {
public:
    enum class Kind : std::uint32_t { feature = 1, capability = 2 };

    virtual ~_SI() = default;

    virtual const AttrID& getAttrID() const = 0;
    virtual const NestedAttrID& getNestedAttrID() const = 0;
    /// The unique id.
    virtual const CXString& getName() const = 0;
    virtual std::unique_ptr<_SI> clone() const = 0;
    virtual bool isEqual(const _SI& other) const = 0;
    virtual const SyntaxList& getSyntaxes() const = 0;

    FeatureEnum getFeature() const { return m_feature; }
    Kind getKind() const { return m_kind; }
    /// Whether the innermost parent is a set.
    bool isInSetOf() const;
    const CXString& getSyntax(std::uint32_t index) const { return getSyntaxes().getSyntax(index); }
    AVTE getAVTE(std::uint32_t index) const { return getSyntaxes().getAVTE(index); }
    bool isMultiple() const { return getSyntaxes().isMultiple(); }
    bool hasAVTE(AVTE type) const { return getSyntaxes().hasAVTE(type); }
    bool hasSyntax(const CXString& syntax) const { return getSyntaxes().hasSyntax(syntax); }
    /// The unique id as the name of an attribute.
    AttrID getIDAsAttrID() const { return AttrID(getName()); }

protected:
    _SI(FeatureEnum feature, Kind kind) : m_feature(feature), m_kind(kind) {}
    _SI(const _SI&) = default;
    _SI& operator=(const _SI&) = default;

private:
    FeatureEnum m_feature;
    Kind m_kind;
};

} // namespace zent
