#include "Completion.h"

#include "ExitStatus.h"
#include "FeaturePath.h"
#include "Text.h"
#include "Value.h"

namespace jobticket {

namespace {

/// What goes behind a feature's name.
std::string endingOf(const Feature& feature) {
    if (feature.getKind() != ValueKind::collection) {
        return "=";
    }
    return feature.takesSeveral() ? "[0]." : ".";
}

std::vector<std::string> completeFeature(std::string_view word) {
    const std::size_t dot = word.rfind('.');
    const std::string prefix(word.substr(0, dot == std::string_view::npos ? 0 : dot + 1));
    const std::string_view begin = word.substr(prefix.size());
    FeaturePath parents;
    if (dot != std::string_view::npos) {
        parents = parsePath(word.substr(0, dot));
    }
    std::vector<std::string> words;
    for (const Feature& feature : Feature::all()) {
        const bool fits = parents.empty() ? feature.standsInTicket()
                                          : parents.back().feature.isPageLevel() ||
                                                feature.isMemberOf(parents.back().feature);
        // Other collections are no more than their features, which have names of their own.
        const bool isUseful = feature.getKind() != ValueKind::collection || feature.isPageLevel();
        if (fits && isUseful && feature.getName().starts_with(begin)) {
            words.push_back(prefix + feature.getName() + endingOf(feature));
        }
    }
    return words;
}

std::vector<std::string> completeValue(std::string_view word, std::size_t equals) {
    const Feature feature = parsePath(word.substr(0, equals)).back().feature;
    const std::size_t comma = feature.takesSeveral() ? word.rfind(',') : std::string_view::npos;
    const std::size_t start = comma == std::string_view::npos ? equals + 1 : comma + 1;
    std::vector<std::string> words;
    const auto add = [&](const std::string& text) {
        if (text.starts_with(word.substr(start))) {
            words.push_back(std::string(word.substr(0, start)) + text);
        }
    };
    for (const zent::FeatureValue& value : feature.getValues()) {
        add(toUtf8(value.getText()));
    }
    if (feature.getKind() == ValueKind::size) {
        for (const zent::StockSize& size : getNamedSizes()) {
            add(toUtf8(size.getSizeName()));
        }
    }
    return words;
}

} // namespace

std::vector<std::string> completeWord(std::string_view word) {
    try {
        const std::size_t equals = word.find('=');
        return equals == std::string_view::npos ? completeFeature(word)
                                                : completeValue(word, equals);
    } catch (const ProgramError&) {
        return {}; // a name that isn't known has no continuation
    }
}

} // namespace jobticket
