#include "FeatureRequest.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/FeatureSettings/FeatureTable.h"
#include "ocore/FeatureSettings/FeatureValueTable.h"

namespace zent::bench {

namespace {

constexpr std::int32_t resolutionPerInch = 600;
constexpr std::int32_t dotsPerInch = 3;
constexpr std::int32_t rangeLength = 4;
constexpr std::int32_t firstNumber = 1000; // so that numbers have the usual length
constexpr FeatureEnum firstMemberOnly = feature::coverType;
constexpr FeatureEnum lastMemberOnly = feature::paperSourceNumber;

std::string narrow(const std::u16string& ascii) { return {ascii.begin(), ascii.end()}; }

/// The first value that the tables know for a feature, in a syntax; null if there is none.
const char16_t* firstKnownValue(FeatureEnum feature, const std::u16string& syntax) {
    for (const auto& rows : {getLowerValueRows(), getUpperValueRows()}) {
        for (const FeatureValueRow& row : rows) {
            if (row.syntax == syntax && std::ranges::count(row.features, feature) != 0) {
                return row.text;
            }
        }
    }
    return nullptr;
}

std::u16string valueFor(FeatureEnum feature, const std::u16string& syntax) {
    if (const char16_t* const known = firstKnownValue(feature, syntax)) {
        return known;
    }
    if (syntax == u"mimeMediaType") {
        return u"application/postscript";
    }
    if (syntax == u"keyword") {
        return u"default";
    }
    return syntax == u"uri" ? u"file:///jobs/2004/annual-report" : u"Annual report & accounts";
}

} // namespace

FeatureRequest::Kind FeatureRequest::kindOf(const std::u16string& syntax) {
    if (syntax == u"integer" || syntax == u"enum") {
        return Kind::number;
    }
    if (syntax == u"rangeOfInteger") {
        return Kind::range;
    }
    if (syntax == u"resolution") {
        return Kind::resolution;
    }
    return syntax == u"collection" ? Kind::collection : Kind::text;
}

FeatureRequest::FeatureRequest(FeatureEnum feature, std::u16string name,
                               const std::u16string& syntax)
    : m_name(std::move(name)), m_narrowName(narrow(m_name)), m_kind(kindOf(syntax)),
      m_memberOnly(feature >= firstMemberOnly && feature <= lastMemberOnly),
      m_text(valueFor(feature, syntax)),
      m_number(syntax == u"enum" ? std::stoi(narrow(m_text))
                                 : firstNumber + static_cast<std::int32_t>(feature)),
      m_narrowValue(m_kind == Kind::text ? narrow(m_text) : std::to_string(m_number)) {}

ZentResult FeatureRequest::set(ZentSessionType session, TarvoJtSettingsType settings,
                               std::uint32_t index) const {
    switch (m_kind) {
    case Kind::text:
        return fnSetStringValue(session, settings, m_name.c_str(), m_text.c_str(), index);
    case Kind::number:
        return fnSetNumberValue(session, settings, m_name.c_str(), m_number, index);
    case Kind::range:
        return fnSetRangeValues(session, settings, m_name.c_str(), m_number, m_number + rangeLength,
                                index);
    case Kind::resolution:
        return fnSetResolutionValue(session, settings, m_name.c_str(), resolutionPerInch,
                                    resolutionPerInch, dotsPerInch, index);
    case Kind::collection:
        break;
    }
    throw std::logic_error("a collection has no value to set");
}

ZentResult FeatureRequest::get(ZentSessionType session, TarvoJtSettingsType settings) const {
    ZentResult result = ZENT_ERR_UNKNOWN;
    ZentBool found = 0;
    std::array<char16_t, 64> text{};
    auto size = static_cast<std::uint32_t>(text.size());
    std::array<std::int32_t, 3> numbers{};
    switch (m_kind) {
    case Kind::text:
        result = fnGetStringValue(session, settings, m_name.c_str(), text.data(), &size, 0, &found);
        break;
    case Kind::number:
        result = fnGetNumberValue(session, settings, m_name.c_str(), &numbers[0], 0, &found);
        break;
    case Kind::range:
        result = fnGetRangeValues(session, settings, m_name.c_str(), &numbers[0], &numbers[1], 0,
                                  &found);
        break;
    case Kind::resolution:
        result = fnGetResolutionValue(session, settings, m_name.c_str(), &numbers[0], &numbers[1],
                                      &numbers[2], 0, &found);
        break;
    case Kind::collection:
        break;
    }
    if (result == ZENT_OK && found == 0) {
        result = ZENT_ERR_UNKNOWN;
    }
    return result;
}

const std::vector<FeatureRequest>& allFeatureRequests() {
    static const std::vector<FeatureRequest> requests = [] {
        std::vector<FeatureRequest> made;
        for (const FeatureRow& row : getFeatureRows()) {
            made.emplace_back(row.feature, _FI(row.feature).getName().c_str(), row.syntaxes[0]);
        }
        return made;
    }();
    return requests;
}

const FeatureRequest& requestFor(std::u16string_view name) {
    const auto& requests = allFeatureRequests();
    const auto found = std::ranges::find(requests, name, &FeatureRequest::name);
    if (found == requests.end()) {
        throw std::logic_error("no such feature");
    }
    return *found;
}

} // namespace zent::bench
