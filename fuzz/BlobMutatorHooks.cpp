// What libFuzzer calls to mutate an input that may hold a compressed block: a zlib stream with a
// footer of level, size and signature. Mutated as bytes a stream is only ever damaged; so it is
// expanded, mutated as the document or the fields that it holds, and compressed anew.

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include <zlib.h>

#include "DocumentMutator.h"
#include "FuzzerMutate.h"

using zent::fuzz::below;
using zent::fuzz::Random;

namespace {

constexpr std::size_t footerSize = 12;
constexpr std::size_t mostExpanded = std::size_t{1} << 22;

/// An input in its parts.
struct Blob {
    std::string head; // all that comes before the stream
    std::string content;
    std::string footer; // after the stream: a level, a size and a signature
};

/// Expands the stream at the beginning of the bytes. `used` becomes the stream's size.
std::optional<std::string> expand(const std::string& bytes, std::size_t& used) {
    std::string content;
    int result = Z_BUF_ERROR;
    for (std::size_t room = 4 * bytes.size() + 64; result == Z_BUF_ERROR; room *= 8) {
        content.resize(std::min(room, mostExpanded));
        auto size = static_cast<uLongf>(content.size());
        auto length = static_cast<uLong>(bytes.size());
        result = uncompress2(reinterpret_cast<Bytef*>(content.data()), &size,
                             reinterpret_cast<const Bytef*>(bytes.data()), &length);
        used = length;
        content.resize(size);
        if (room >= mostExpanded) {
            break;
        }
    }
    return result == Z_OK ? std::optional(content) : std::nullopt;
}

/// The places where a stream can begin: at once, or after the choice of the target and a header.
std::optional<Blob> unpack(const std::string& input) {
    for (const std::size_t begin : {std::size_t{0}, std::size_t{9}, std::size_t{11}}) {
        constexpr char deflate = 0x78;
        if (begin >= input.size() || input[begin] != deflate) {
            continue;
        }
        std::size_t used = 0;
        if (const auto content = expand(input.substr(begin), used)) {
            return Blob{input.substr(0, begin), *content, input.substr(begin + used)};
        }
    }
    return std::nullopt;
}

std::string bigEndian(std::uint32_t number) {
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
        bytes += static_cast<char>(number >> shift & 0xFFU);
    }
    return bytes;
}

std::string pack(const Blob& blob, int level) {
    std::string stream(compressBound(static_cast<uLong>(blob.content.size())), '\0');
    auto size = static_cast<uLongf>(stream.size());
    compress2(reinterpret_cast<Bytef*>(stream.data()), &size,
              reinterpret_cast<const Bytef*>(blob.content.data()),
              static_cast<uLong>(blob.content.size()), level);
    stream.resize(size);
    return blob.head + stream + blob.footer;
}

/// Makes a footer with the size of the content.
std::string footerFor(const Blob& blob) {
    if (blob.footer.size() < footerSize) {
        return blob.footer;
    }
    std::string footer = blob.footer;
    return footer.replace(footerSize - 8, 4,
                          bigEndian(static_cast<std::uint32_t>(blob.content.size())));
}

void mutateContent(Blob& blob, Random& random) {
    constexpr std::size_t mostAdded = 4096;
    const std::string mutated = zent::fuzz::mutateDocument(blob.content, random);
    if (mutated != blob.content) {
        blob.content = mutated;
    } else {
        zent::fuzz::mutateBytes(blob.content, blob.content.size() + mostAdded);
    }
    blob.footer = footerFor(blob);
}

void mutateFooter(Blob& blob, Random& random) {
    static constexpr std::array<std::uint32_t, 6> numbers{0,          1,          0x7FFFFFFF,
                                                          0x80000000, 0xFFFFFFFF, 64U << 20};
    const auto actual = static_cast<std::uint32_t>(blob.content.size());
    const std::size_t choice = below(random, numbers.size() + 2);
    const std::uint32_t claimed = choice < numbers.size()
                                      ? numbers.at(choice)
                                      : actual + (choice == numbers.size() ? 1U : ~0U);
    if (blob.footer.size() == footerSize) {
        const std::size_t field = below(random, 2) == 0 ? 0 : footerSize - 8;
        blob.footer.replace(field, 4, bigEndian(claimed));
    } else {
        zent::fuzz::mutateBytes(blob.footer, footerSize);
    }
}

std::string mutateBlob(Blob blob, Random& random) {
    constexpr int levels = 10;
    switch (below(random, 6)) {
    case 0:
        mutateFooter(blob, random);
        break;
    case 1:
        zent::fuzz::mutateBytes(blob.head, blob.head.size());
        break;
    default:
        mutateContent(blob, random);
        break;
    }
    return pack(blob, static_cast<int>(below(random, levels)));
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned int seed) {
    constexpr std::size_t oneInFour = 4;
    Random random(seed);
    const std::string before(data, data + size);
    std::string after = before;
    if (below(random, oneInFour) != 0) {
        const auto blob = unpack(before);
        after = blob ? mutateBlob(*blob, random) : zent::fuzz::mutateDocument(before, random);
    }
    if (after == before || after.size() > most) {
        return LLVMFuzzerMutate(data, size, most);
    }
    return zent::fuzz::handBack(after, data, most);
}
