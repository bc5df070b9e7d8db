#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "zent27.h"

namespace zent::bench {

/// A feature, a value for it, and the exported calls that its kind of value takes: its first
/// syntax decides.
class FeatureRequest {
public:
    FeatureRequest(FeatureEnum feature, std::u16string name, const std::u16string& syntax);

    const std::u16string& name() const { return m_name; }
    /// Name and value as libcups takes them.
    const std::string& narrowName() const { return m_narrowName; }
    const std::string& narrowValue() const { return m_narrowValue; }

    /// A collection has no value of its own to set or get: its members are features themselves.
    bool isCollection() const { return m_kind == Kind::collection; }
    /// Whether the feature stands only in the collection of a cover, an override, an insert or a
    /// paper source.
    bool isMemberOnly() const { return m_memberOnly; }

    ZentResult set(ZentSessionType session, TarvoJtSettingsType settings,
                   std::uint32_t index = 0) const;
    /// Gets the value; a value that isn't there is a failure.
    ZentResult get(ZentSessionType session, TarvoJtSettingsType settings) const;

private:
    enum class Kind { text, number, range, resolution, collection };
    static Kind kindOf(const std::u16string& syntax);

    std::u16string m_name;
    std::string m_narrowName;
    Kind m_kind;
    bool m_memberOnly;
    std::u16string m_text;
    std::int32_t m_number;
    std::string m_narrowValue;
};

/// A request for each of the 136 features, in the order of their numbers.
const std::vector<FeatureRequest>& allFeatureRequests();
const FeatureRequest& requestFor(std::u16string_view name);

} // namespace zent::bench
