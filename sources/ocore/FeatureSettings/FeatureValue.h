#pragma once

#include <optional>

#include "ocore/Attributes/AttrValue.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"

namespace zent {

/// One value of a feature, by number: passed and copied freely. A value of the run time stays in
/// the value table for as long as a handle of it lives; a later one of the same text may have
/// another number, but no number comes twice. Every query raises UnknownFeatureRequestException if
/// the table didn't know the number when the handle was made.
class FeatureValue {
public:
    /// No value, or the printer's default.
    static constexpr std::int32_t unspecified = 1;

    /// Takes a number without checking it: the first query about one that is unknown raises.
    explicit FeatureValue(std::int32_t value = unspecified);
    /// Raises UnknownFeatureRequestException if the feature has no such value.
    FeatureValue(FeatureEnum feature, const CXString& text);
    /// Nothing if the feature has no such value.
    static std::optional<FeatureValue> find(FeatureEnum feature, const CXString& text);

    std::int32_t getValue() const { return m_value; }
    const CXString& getText() const& { return getInfo().m_text; }
    CXString getText() && { return getInfo().m_text; }
    std::uint32_t getImageID() const { return getInfo().m_imageID; }
    const CXString& getSyntax() const& { return getInfo().m_syntax; }
    CXString getSyntax() && { return getInfo().m_syntax; }
    AVTE getType() const { return getInfo().m_type; }
    /// The text for users: from the resource library, or the value's own text if it came at run
    /// time.
    CXString getDisplayString() const;

    std::uint32_t getFeatureCount() const;
    FeatureEnum getFeature(std::uint32_t index) const { return getInfo().m_features[index]; }
    bool belongsTo(FeatureEnum feature) const;
    /// Whether the value belongs to every feature.
    bool belongsToAny() const { return belongsTo(TJTF_ANY); }
    bool isShared() const;
    bool isRunTimeValue() const;

    bool operator==(const FeatureValue& other) const { return m_value == other.m_value; }
    /// Fixed values in table order, then run-time values by the names that users see.
    bool operator<(const FeatureValue& other) const;
    /// The value of the same text of another feature; unspecified if it has none.
    FeatureValue convertToFeature(const _FI& feature) const;

    static bool isKnownValue(FeatureEnum feature, const CXString& text);
    static bool isValidNumber(std::int32_t value);
    /// Whether users may invent values of this type: names and URIs.
    static bool isUserType(AVTE type) { return type == AVTE_NAME || type == AVTE_URI; }

    /// Adds a run-time value for a feature and its related ones, and gives it with a new number. A
    /// `type` of 0 is derived from the syntax. Raises DuplicateFeatureValueDBEntryException if one
    /// of the features has the text already, UnknownFeatureRequestException if no value of that
    /// length can be taken, or all numbers have been given out.
    static FeatureValue createNewValueEnum(FeatureEnum feature, const CXString& text,
                                           const CXString& syntax, std::uint32_t type,
                                           std::uint32_t displayStringID, std::uint32_t imageID);
    /// The value that an attribute holds; a new one if it is of a free-text type that the feature
    /// allows. Raises UnknownFeatureRequestException otherwise.
    static FeatureValue fromAttrValue(const _FI& feature, const AttrValue& value);
    /// The value of a text; a new one if users may define values of the feature.
    static FeatureValue fromText(const _FI& feature, const CXString& text);

private:
    explicit FeatureValue(FeatureValueReference info)
        : m_value(info->m_value), m_info(std::move(info)) {}
    static FeatureValue findOrCreate(const _FI& feature, const CXString& text, bool mayCreate,
                                     const CXString& syntax);
    const FeatureValueInfo& getInfo() const;

    std::int32_t m_value;
    FeatureValueReference m_info; // none for a number that the table doesn't know
};

} // namespace zent
