#pragma once

// Between libFuzzer and mutators that know an input's structure: its own mutation of bytes, and
// what it calls of theirs.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned int seed);
extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* first, std::size_t firstSize,
                                                 const std::uint8_t* second, std::size_t secondSize,
                                                 std::uint8_t* out, std::size_t most,
                                                 unsigned int seed);

namespace zent::fuzz {

inline void mutateBytes(std::string& bytes, std::size_t most) {
    const std::size_t size = bytes.size();
    bytes.resize(std::max(size, most));
    bytes.resize(
        LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(bytes.data()), size, bytes.size()));
}

/// Puts a mutated input in the place of the old one, cut to what fits.
inline std::size_t handBack(const std::string& bytes, std::uint8_t* data, std::size_t most) {
    const std::size_t size = std::min(bytes.size(), most);
    std::copy_n(bytes.begin(), size, data);
    return size;
}

} // namespace zent::fuzz
