// A capability document says what a printer has, and needn't speak of everything. So each test asks
// for evidence that the printer lacks something, and passes without it.

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

/// Several attributes on the way to a list may say what may lie in it. The outermost of these
/// decides, apart from those that have the same name as the leaf.
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

/// Whether a list holds a feature. One that can't be read counts as held, since the check refuses
/// on positive evidence only.
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

/// The order of the tests decides which problems a user sees. The private capabilities come first,
/// since their problems can stand beside others. A collection that the user defines may hold
/// anything. A set or collection whose attribute the printer lacks is one problem, and isn't looked
/// into; only then are its members checked.
bool SettingsValidator::validateNode(const WalkNode& place) {
    const AttrValue& value = place.node.getAttrValue();
    AttrNodeList* const list = embeddedList(place.node);
    const bool isOpenCollection = value.isCollection() && !isMediaSize(place);
    const bool isValid = validateAgainstPrivateCapabilities(place);
    if (isOpenCollection && place.attribute.isUserDefined) {
        return isValid; // a value of the user's own
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
    // A feature with a choice of values is refused if this printer has none of the choices.
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
    // A feature that stands in a set has its value in the set's first member.
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
    const bool isParent = std::ranges::any_of(m_capabilities.getCollectionFeatures(),
                                              [feature](const _FI& collection) {
        return collection.getFeature() == feature;
    });
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
