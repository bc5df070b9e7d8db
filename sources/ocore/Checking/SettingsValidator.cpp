#include "ocore/Checking/SettingsValidator.h"

#include <algorithm>

#include "ocore/Attributes/AttrNames.h"
#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/Checking/MissingFeatureProblem.h"
#include "ocore/Checking/PrivateCapabilityCheck.h"
#include "ocore/Checking/RequiredMembers.h"
#include "ocore/Checking/UnsupportedAttribute.h"
#include "ocore/Checking/UnsupportedValue.h"
#include "ocore/Checking/ValueComparison.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/Faults/Trace.h"
#include "ocore/FeatureSettings/FeatureEnum.h"

namespace zent {

namespace {

/// Of the attributes on the way to a list the outermost that says what may lie in it, leaving out
/// those called like the leaf.
const SupportedValues* findDecidingList(const WalkLevel& level, const CXString& leaf) {
    if (level.enclosing == nullptr) {
        return nullptr;
    }
    if (const SupportedValues* const outer = findDecidingList(*level.enclosing, leaf)) {
        return outer;
    }
    const auto& supported = level.holderCapabilities->supported;
    const bool decides =
        supported && supported->getList() != nullptr && level.holder->getName() != leaf;
    return decides ? &*supported : nullptr;
}

AttrNodeList& rootOf(const WalkLevel& level) {
    return level.enclosing == nullptr ? level.list : rootOf(*level.enclosing);
}

/// What can't be read counts as there.
bool isSpecified(AttrNodeList& list, const _FI& feature) {
    try {
        return Settings(&list).isSpecified(feature);
    } catch (const AttributeTypeMismatchException&) {
        return true;
    }
}

bool isMediaSize(const WalkNode& place) { return place.attribute.feature == feature::mediaSize; }

} // namespace

bool SettingsValidator::validate(AttrNodeList& settings) {
    m_problems.setTicket(&settings);
    return validateLevel({.list = settings});
}

bool SettingsValidator::validateLevel(const WalkLevel& level) {
    bool isValid = hasRequiredMember(level);
    if (!isValid) {
        const _FI member(level.requiredMember);
        m_problems.addProblem(
            std::make_unique<MissingFeatureProblem>(makeMissingContext(level, member), member));
    }
    for (std::uint32_t i = 0; i < level.list.getNumberOfNodes(); ++i) {
        AttrNode& node = level.list.getNodeAt(i);
        if (node.isPrivate()) {
            continue;
        }
        const CXString& name = level.isSet() ? *level.setName : node.getName();
        const AttributeCapabilities& attribute =
            level.setAttribute != nullptr ? *level.setAttribute : m_index.getAttribute(name);
        const WalkNode place{level, node, i, name, attribute};
        isValid = validateNode(place) && isValid;
    }
    return isValid;
}

bool SettingsValidator::hasRequiredMember(const WalkLevel& level) {
    if (level.isSet() || level.requiredMember == TJTF_ANY) {
        return true;
    }
    const _FI member(level.requiredMember);
    const bool isOfParent = level.parentFeature != TJTF_ANY &&
                            member.getNestedAttrID().hasParent(_FI(level.parentFeature).getName());
    return isOfParent ? isSpecified(rootOf(level), member)
                      : level.list.findNode(member.getAttrID()) != nullptr;
}

bool SettingsValidator::validateNode(const WalkNode& place) {
    const AttrValue& value = place.node.getAttrValue();
    AttrNodeList* const list = embeddedList(place.node);
    const bool isOpenCollection = value.isCollection() && !isMediaSize(place);
    const bool isValid = validateAgainstPrivateCapabilities(place);
    if (isOpenCollection && place.attribute.isUserDefined) {
        return isValid; // the user's own
    }
    if (list != nullptr && !place.level.isSet() && !isAttributeSupported(place)) {
        return addProblem<UnsupportedAttribute>(place);
    }
    if (list != nullptr && (value.is1setOf() || isOpenCollection)) {
        return validateLevel(enter(place, *list)) && isValid;
    }
    return validateLeaf(place) && isValid;
}

bool SettingsValidator::validateLeaf(const WalkNode& place) {
    if (place.attribute.supported) {
        return isValueSupported(place, *place.attribute.supported) ||
               addProblem<UnsupportedValue>(place);
    }
    if (!isAttributeSupported(place)) {
        return addProblem<UnsupportedAttribute>(place);
    }
    // A feature with values to choose from, of which this printer has none.
    return place.attribute.isUserDefined || !place.attribute.hasValueSet ||
           addProblem<UnsupportedValue>(place);
}

bool SettingsValidator::isValueSupported(const WalkNode& place, const SupportedValues& supported) {
    const AttrValue& value = place.node.getAttrValue();
    const bool userDefined = place.attribute.isUserDefined;
    const AttrNodeList* const size = embeddedList(value);
    try {
        return isMediaSize(place) && size != nullptr && supported.getList() != nullptr
                   ? compareMediaSizes(*size, *supported.getList(), userDefined)
                   : compareAttrValues(place.name, value, supported, userDefined);
    } catch (const std::exception& exception) {
        trace::output(formatText("Capabilities::compareAttrValues(%s)", place.name));
        trace::output(getDetailsReport(exception));
        return true;
    }
}

bool SettingsValidator::isAttributeSupported(const WalkNode& place) {
    const SupportedValues* const deciding = findDecidingList(place.level, place.name);
    return deciding != nullptr ? deciding->hasKeyword(place.name) : place.attribute.isJobAttribute;
}

bool SettingsValidator::validateAgainstPrivateCapabilities(const WalkNode& place) {
    if (place.attribute.extensions.empty() || place.level.isSet()) {
        return true;
    }
    // Of a feature that lives in a set the first member is read.
    AttrNodeList* const members = embeddedList(place.node);
    if (_FI(place.attribute.feature).isInSetOf() && members != nullptr &&
        members->isNodeAt(attrNames::value(), 0)) {
        const WalkLevel level = enter(place, *members);
        return validateAgainstPrivateCapabilities(
            place, {level, members->getNodeAt(0), 0, place.name, place.attribute});
    }
    return validateAgainstPrivateCapabilities(place, place);
}

bool SettingsValidator::validateAgainstPrivateCapabilities(const WalkNode& place,
                                                           const WalkNode& value) {
    PrivateCapabilityCheck check(m_capabilities.getSettings(), place, value, m_problems);
    bool isValid = true;
    for (const _CI& capability : place.attribute.extensions) {
        isValid = check.validateAgainstPrivateCapability(capability) && isValid;
    }
    return isValid;
}

WalkLevel SettingsValidator::enter(const WalkNode& place, AttrNodeList& list) const {
    const FeatureEnum feature = place.attribute.feature;
    const bool isParent = std::ranges::any_of(
        m_capabilities.getCollectionFeatures(),
        [feature](const _FI& collection) { return collection.getFeature() == feature; });
    const bool isSet = place.node.getAttrValue().is1setOf();
    return {.list = list,
            .enclosing = &place.level,
            .holder = &place.node,
            .holderPosition = place.position,
            .holderCapabilities = &m_index.getAttribute(place.node.getName()),
            .setName = isSet ? &place.name : nullptr,
            .setAttribute = isSet ? &place.attribute : nullptr,
            .parentFeature = isParent ? feature : place.level.parentFeature,
            .requiredMember = getRequiredMember(feature)};
}

template <typename Problem>
bool SettingsValidator::addProblem(const WalkNode& place) {
    m_problems.addProblem(std::make_unique<Problem>(makeContext(place)));
    return false;
}

} // namespace zent
