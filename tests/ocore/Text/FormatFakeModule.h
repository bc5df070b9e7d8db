#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "platform/ResourceModule.h"

namespace zent {

/// A module that holds the strings it is given, and nothing else.
class FakeResourceModule : public platform::ResourceModule {
public:
    explicit FakeResourceModule(std::map<std::uint32_t, std::u16string> strings)
        : m_strings(std::move(strings)) {}

    std::int32_t loadString(std::uint32_t id, char16_t* buffer,
                            std::int32_t capacity) const override {
        const auto found = m_strings.find(id);
        const std::u16string text = found == m_strings.end() ? u"" : found->second;
        const std::size_t length = text.copy(buffer, static_cast<std::size_t>(capacity) - 1);
        buffer[length] = u'\0';
        return static_cast<std::int32_t>(length);
    }
    std::span<const std::byte> findResource(std::uint32_t, std::uint32_t,
                                            Failure& failure) const override {
        failure = Failure::find;
        return {};
    }
    const void* loadIcon(std::uint32_t) const override { return nullptr; }

private:
    std::map<std::uint32_t, std::u16string> m_strings;
};

} // namespace zent
