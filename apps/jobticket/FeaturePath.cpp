#include "FeaturePath.h"

#include <charconv>

#include "ExitStatus.h"
#include "Text.h"

namespace jobticket {

namespace {

[[noreturn]] void fail(std::string_view where, const std::string& reason) {
    throw ProgramError(ExitStatus::badValue, toPrintable(where) + ": " + reason);
}

std::uint32_t parseIndex(std::string_view where, std::string_view text) {
    std::uint32_t index = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), index);
    if (error != std::errc() || end != text.data() + text.size()) {
        fail(where, "an index is a number in brackets, from [0] on");
    }
    return index;
}

PathStep parseStep(std::string_view text) {
    const std::size_t bracket = text.find('[');
    PathStep step = {Feature::named(text.substr(0, bracket)), std::nullopt};
    if (bracket == std::string_view::npos) {
        return step;
    }
    if (!text.ends_with(']')) {
        fail(text, "the bracket isn't closed");
    }
    step.index = parseIndex(text, text.substr(bracket + 1, text.size() - bracket - 2));
    if (!step.feature.takesSeveral()) {
        fail(text, "the feature has one value only, so it takes no index");
    }
    return step;
}

void checkParent(std::string_view where, const Feature& parent, const Feature& member) {
    if (parent.getKind() != ValueKind::collection) {
        fail(where, parent.getName() + " holds no other features");
    }
    if (!parent.isPageLevel() && !member.isMemberOf(parent)) {
        fail(where, member.getName() + " is no part of " + parent.getName());
    }
}

/// One step of a way to an attribute, whose members of sets are counted from 1.
struct WayStep {
    std::string_view name;
    std::optional<std::uint32_t> index; // from 0 on
};

WayStep parseWayStep(std::string_view text) {
    const std::size_t bracket = text.find('[');
    WayStep step = {text.substr(0, bracket), std::nullopt};
    if (bracket != std::string_view::npos) {
        const std::string_view index = text.substr(bracket + 1, text.find(']') - bracket - 1);
        step.index = parseIndex(text, index) - 1;
    }
    return step;
}

/// Features in a collection of the ticket, or in the first of several, are found by themselves.
bool isFoundThrough(const WayStep& step) {
    return step.index.value_or(0) == 0 && Feature::exists(step.name) &&
           !Feature::named(step.name).isPageLevel();
}

} // namespace

FeaturePath parsePath(std::string_view text) {
    FeaturePath path;
    for (std::string_view rest = text;;) {
        const std::size_t dot = rest.find('.');
        path.push_back(parseStep(rest.substr(0, dot)));
        if (path.size() > 1) {
            checkParent(text, path[path.size() - 2].feature, path.back().feature);
        }
        if (dot == std::string_view::npos) {
            return path;
        }
        rest.remove_prefix(dot + 1);
    }
}

std::string toPathText(std::string_view way) {
    std::string path;
    for (std::string_view rest = way;;) {
        const std::size_t slash = rest.find('/');
        const WayStep step = parseWayStep(rest.substr(0, slash));
        const bool isLast = slash == std::string_view::npos;
        if (isLast || !isFoundThrough(step)) {
            path += step.name;
            path += step.index ? "[" + std::to_string(*step.index) + "]" : "";
            path += isLast ? "" : ".";
        }
        if (isLast) {
            return path;
        }
        rest.remove_prefix(slash + 1);
    }
}

std::string toText(const PathStep& step) {
    return step.feature.getName() + (step.index ? "[" + std::to_string(*step.index) + "]" : "");
}

} // namespace jobticket
