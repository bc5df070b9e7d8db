// What libFuzzer calls to mutate an input that is a sequence of calls.

#include <utility>

#include "CallPlaces.h"
#include "DocumentMutator.h"
#include "FuzzerMutate.h"

using zent::fuzz::below;
using zent::fuzz::CallPlaces;
using zent::fuzz::Random;

namespace {

using Calls = std::vector<std::string>;

std::string join(const Calls& calls) {
    std::string bytes;
    for (const std::string& call : calls) {
        bytes += call;
    }
    return bytes;
}

auto placeOf(const Calls& calls, std::size_t index) {
    return calls.begin() + static_cast<std::ptrdiff_t>(index);
}

void mutate(Calls& calls, Random& random) {
    constexpr std::size_t mostAdded = 16;
    const std::size_t index = below(random, calls.size());
    const std::size_t other = below(random, calls.size());
    switch (below(random, 6)) {
    case 0:
        calls.erase(placeOf(calls, index));
        break;
    case 1:
        calls.insert(placeOf(calls, other), std::string(calls[index]));
        break;
    case 2:
        std::swap(calls[index], calls[other]);
        break;
    case 3: { // a document among the arguments
        calls[index] = zent::fuzz::mutateDocument(calls[index], random);
        break;
    }
    default:
        zent::fuzz::mutateBytes(calls[index], calls[index].size() + mostAdded);
        break;
    }
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned int seed) {
    constexpr std::size_t oneInFour = 4;
    Random random(seed);
    const std::string before(data, data + size);
    Calls calls = CallPlaces::split(before);
    if (!calls.empty() && below(random, oneInFour) != 0) {
        mutate(calls, random);
        const std::string after = join(calls);
        if (after != before && after.size() <= most) {
            return zent::fuzz::handBack(after, data, most);
        }
    }
    return LLVMFuzzerMutate(data, size, most);
}

/// Puts some calls of the second input among those of the first.
extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* first, std::size_t firstSize,
                                                 const std::uint8_t* second, std::size_t secondSize,
                                                 std::uint8_t* out, std::size_t most,
                                                 unsigned int seed) {
    Random random(seed);
    Calls calls = CallPlaces::split(std::string(first, first + firstSize));
    const Calls others = CallPlaces::split(std::string(second, second + secondSize));
    if (calls.empty() || others.empty()) {
        return 0;
    }
    const std::size_t begin = below(random, others.size());
    const std::size_t count = 1 + below(random, others.size() - begin);
    calls.insert(placeOf(calls, below(random, calls.size() + 1)), placeOf(others, begin),
                 placeOf(others, begin + count));
    return zent::fuzz::handBack(join(calls), out, most);
}
