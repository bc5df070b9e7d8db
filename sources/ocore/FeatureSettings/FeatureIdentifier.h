#pragma once

#include "ocore/FeatureSettings/FeatureInfo.h"
#include "ocore/FeatureSettings/SettingIdentifier.h"

namespace zent {

/// Feature identifier: the handle of one feature, a number that is passed and copied freely.
class _FI final : public _SI {
public:
    /// Takes a number without checking it: the first query about one that is no feature raises.
    _FI(FeatureEnum feature) : _SI(feature, Kind::feature) {}
    /// Finds a feature by its unique id; raises UnknownFeatureRequestException, or
    /// InvalidAttributeIdException for empty text.
    explicit _FI(const CXString& uniqueID);
    explicit _FI(const AttrID& uniqueID) : _FI(uniqueID.getText()) {}

    const AttrID& getAttrID() const override { return getNestedAttrID().getAttrID(); }
    const NestedAttrID& getNestedAttrID() const override { return getInfo().m_nestedID; }
    const CXString& getName() const override { return getNestedAttrID().getName(); }
    std::unique_ptr<_SI> clone() const override { return std::make_unique<_FI>(*this); }
    bool isEqual(const _SI& other) const override;
    const SyntaxList& getSyntaxes() const override { return getInfo().m_syntaxes; }

    /// The feature's name for users, from the resource library.
    CXString getDisplayString() const;
    std::uint32_t getSupportClass() const { return getInfo().m_supportClass; }
    const FeatureUnit& getUnit() const { return getInfo().m_unit; }

    std::uint32_t getRelatedCount() const;
    FeatureEnum getRelated(std::uint32_t index) const { return getInfo().m_related[index]; }

    /// Whether a user may invent a value that the value table doesn't hold: names and URIs.
    bool isUserDefinable() const;
    /// The last name or URI syntax if there is one, else the first syntax.
    const CXString& getPreferredSyntax() const;
    /// The innermost parent that is a feature of its own; false if there is none.
    bool getParentFeature(FeatureEnum* parent) const;

    static bool isFeature(FeatureEnum feature);
    static bool isFeatureName(const CXString& uniqueID);
    static bool isFeatureName(const AttrID& uniqueID) { return isFeatureName(uniqueID.getText()); }

private:
    const FeatureInfo& getInfo() const;
};

} // namespace zent
