#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "ocore/Attributes/NestedAttrID.h"
#include "ocore/FeatureSettings/FeatureNumber.h"
#include "ocore/FeatureSettings/SyntaxList.h"

namespace zent {

/// Whether a feature offers the printer default as a choice.
namespace supportClass {
constexpr std::uint32_t always = 1;
constexpr std::uint32_t never = 2;
constexpr std::uint32_t byModel = 3;
} // namespace supportClass

/// What the numbers of a feature count, and how small they can get. Upper bounds are a matter of
/// the printer.
struct FeatureUnit {
    static constexpr const char* length = "1/100 mm";
    static constexpr std::int32_t anyNumber = std::numeric_limits<std::int32_t>::min();

    const char* name = "";           // "" if the number is no quantity
    std::int32_t lowest = anyNumber; // a smaller number makes no sense on any printer
};

/// One row of the feature table.
struct FeatureInfo {
    FeatureEnum m_feature;
    NestedAttrID m_nestedID; // where the attribute lives
    CXString m_abbreviation;
    // The features that share this one's value set: a run-time value of one mustn't clash with
    // them.
    std::vector<FeatureEnum> m_related;
    std::uint32_t m_displayStringID;
    std::uint32_t m_supportClass;
    SyntaxList m_syntaxes;
    FeatureUnit m_unit;
};

} // namespace zent
