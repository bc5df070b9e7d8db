#include "ocore/Checking/SettingsWalk.h"

#include <algorithm>

namespace zent {

namespace {

std::vector<SettingsContext::Step> stepsTo(const WalkLevel& level) {
    std::vector<SettingsContext::Step> steps;
    for (const WalkLevel* inner = &level; inner->enclosing != nullptr; inner = inner->enclosing) {
        const WalkLevel& outer = *inner->enclosing;
        steps.push_back({&outer.list, inner->holder, inner->holderPosition, outer.isSet()});
    }
    std::ranges::reverse(steps);
    return steps;
}

} // namespace

SettingsContext makeContext(const WalkNode& place) {
    const WalkLevel& level = place.level;
    std::vector<SettingsContext::Step> steps = stepsTo(level);
    steps.push_back({&level.list, &place.node, place.position, level.isSet()});
    SettingsContext context(level.list, std::move(steps), place.node.getAttrID(), place.name);
    context.setParentFeature(level.parentFeature);
    context.setRequired(place.isRequired());
    return context;
}

SettingsContext makeMissingContext(const WalkLevel& level, const _FI& feature) {
    SettingsContext context(level.list, stepsTo(level), feature.getAttrID(), feature.getName());
    context.setParentFeature(level.parentFeature);
    return context;
}

} // namespace zent
