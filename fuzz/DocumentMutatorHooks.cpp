// What libFuzzer calls to mutate an input that is a document, or ends in one.

#include "DocumentMutator.h"
#include "FuzzerMutate.h"

using zent::fuzz::Random;

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned int seed) {
    constexpr std::size_t oneInFour = 4;
    Random random(seed);
    const std::string before(reinterpret_cast<const char*>(data), size);
    std::string after = before;
    if (zent::fuzz::below(random, oneInFour) != 0) {
        after = zent::fuzz::mutateDocument(before, random);
    }
    if (after == before || after.size() > most) {
        return LLVMFuzzerMutate(data, size, most);
    }
    return zent::fuzz::handBack(after, data, most);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* first, std::size_t firstSize,
                                                 const std::uint8_t* second, std::size_t secondSize,
                                                 std::uint8_t* out, std::size_t most,
                                                 unsigned int seed) {
    Random random(seed);
    const std::string crossed =
        zent::fuzz::crossDocuments({reinterpret_cast<const char*>(first), firstSize},
                                   {reinterpret_cast<const char*>(second), secondSize}, random);
    return zent::fuzz::handBack(crossed, out, most);
}
