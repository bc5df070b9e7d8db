#pragma once

#include <unordered_set>
#include <utility>

#include "ocore/Ajt/AjtWords.h"
#include "ocore/FeatureSettings/FeatureSettings.h"

namespace zent::ajt {

/// The nodes of a ticket for which the stream has lines. A collection stands here for itself alone,
/// not for its members.
using SpokenNodes = std::unordered_set<const AttrNode*>;

/// A ticket, or a part of one such as a cover, as the groups of lines read it.
///
/// To "take" something is to read it for a line that is written; what a group only looks at, or has
/// no word for, isn't taken. Where the reader was given a place for it, it keeps account of what
/// was taken, so that what the stream leaves out is known from the very code that writes it.
class TicketReader {
public:
    explicit TicketReader(FeatureSettings settings, SpokenNodes* spoken = nullptr)
        : m_settings(std::move(settings)), m_spoken(spoken) {}

    /// The settings, for a group that looks at what may have no line of its own.
    const FeatureSettings& getSettings() const { return m_settings; }
    FeatureValue getFeatureValue(FeatureEnum feature) const {
        return m_settings.getFeatureValue(_FI(feature));
    }

    /// Counts the first value of a feature as written, if there is one.
    void take(FeatureEnum feature) const;

    // These give false, or no number, if the feature isn't set.
    bool takeString(FeatureEnum feature, CXString* target) const;
    bool takeLong(FeatureEnum feature, std::int32_t* target) const;
    bool takeRange(FeatureEnum feature, std::int32_t* lower, std::int32_t* upper) const;
    std::vector<std::int32_t> takeLongs(FeatureEnum feature) const;
    /// Reads both edges of the paper; false, and nothing taken, unless both are set.
    bool takeDimensions(std::int32_t* width, std::int32_t* height) const;
    /// The word for the value of a feature; empty, and nothing taken, if the table hasn't the
    /// value.
    std::string_view takeWord(FeatureEnum feature, std::span<const Word> words) const;
    /// Counts a range as written that needs no line, since it says what is always so. Raises
    /// nothing, whatever the ticket holds.
    void takeAsUnderstood(FeatureEnum feature, std::int32_t lower, std::int32_t upper) const;

    /// These give the words for the values of "sides" and "page-rotation".
    std::string_view takePlexWord() const;
    std::string_view takeRotationWord() const;

    /// The collection that is the value of a feature; empty if there is none.
    TicketReader getNested(FeatureEnum feature) const;
    /// Shows each collection of a feature to `visit`, in order.
    template <typename Visit>
    void visitNested(FeatureEnum feature, const Visit& visit) const {
        m_settings.visitNestedSettings(_FI(feature), [&](const FeatureSettings& nested) {
            visit(TicketReader(nested, m_spoken));
        });
    }

private:
    /// The list that holds a feature; null also where no account is kept.
    const AttrNodeList* findAccountedList(const _FI& feature) const;

    // Its nested settings can't be had from a constant, though nothing is written through them.
    mutable FeatureSettings m_settings;
    SpokenNodes* m_spoken;
};

} // namespace zent::ajt
