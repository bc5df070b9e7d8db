#include "ocore/FeatureSettings/FeatureIdentifier.h"

#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/Resources/ResourceLibrary.h"

namespace zent {

_FI::_FI(const CXString& uniqueID) : _FI(FeatureDataBase().getFeatureInfo(uniqueID).m_feature) {}

const FeatureInfo& _FI::getInfo() const { return FeatureDataBase().getFeatureInfo(getFeature()); }

bool _FI::isEqual(const _SI& other) const {
    return other.getKind() == getKind() && other.getFeature() == getFeature();
}

CXString _FI::getDisplayString() const {
    return ResourceLibrary().getString(getInfo().m_displayStringID);
}

std::uint32_t _FI::getRelatedCount() const {
    return static_cast<std::uint32_t>(getInfo().m_related.size());
}

bool _FI::isUserDefinable() const { return hasAVTE(AVTE_NAME) || hasAVTE(AVTE_URI); }

const CXString& _FI::getPreferredSyntax() const {
    const SyntaxList& syntaxes = getSyntaxes();
    for (std::uint32_t i = syntaxes.getSyntaxCount(); i-- > 0;) {
        if (syntaxes.getAVTE(i) == AVTE_NAME || syntaxes.getAVTE(i) == AVTE_URI) {
            return syntaxes.getSyntax(i);
        }
    }
    return syntaxes.getSyntax(0);
}

bool _FI::getParentFeature(FeatureEnum* parent) const {
    const NestedAttrID& id = getNestedAttrID();
    const FeatureDataBase features;
    for (std::uint32_t i = 0; i < id.getDepth(); ++i) {
        const CXString& name = id.getParentName(i);
        if (name != id.getName() && features.hasUniqueID(name)) {
            *parent = features.getFeatureInfo(name).m_feature;
            return true;
        }
    }
    return false;
}

bool _FI::isFeature(FeatureEnum feature) { return FeatureDataBase().hasFeature(feature); }

bool _FI::isFeatureName(const CXString& uniqueID) {
    return FeatureDataBase().hasUniqueID(uniqueID);
}

} // namespace zent
