#pragma once

// Where in an input each call begins. The calls take as many bytes as they want, so that only
// playing an input tells; what was played is remembered for the mutator, which joins, moves and
// repeats calls as a whole.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zent::fuzz {

class CallPlaces {
public:
    static void note(std::string_view input, std::vector<std::size_t> places) {
        constexpr std::size_t most = 1 << 14;
        if (known().size() >= most) {
            known().clear();
        }
        known()[std::hash<std::string_view>()(input)] = std::move(places);
    }

    /// The calls of an input; none if it wasn't played lately.
    static std::vector<std::string> split(std::string_view input) {
        const auto found = known().find(std::hash<std::string_view>()(input));
        std::vector<std::string> calls;
        if (found == known().end()) {
            return calls;
        }
        const std::vector<std::size_t>& places = found->second;
        for (std::size_t i = 0; i < places.size() && places[i] <= input.size(); ++i) {
            const std::size_t end = i + 1 < places.size() ? places[i + 1] : input.size();
            calls.emplace_back(input.substr(places[i], end - places[i]));
        }
        return calls;
    }

private:
    static std::unordered_map<std::size_t, std::vector<std::size_t>>& known() {
        static std::unordered_map<std::size_t, std::vector<std::size_t>> places;
        return places;
    }
};

} // namespace zent::fuzz
