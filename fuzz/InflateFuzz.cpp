// Hostile compressed data: an image with its footer, and a stream of unknown size.
//
// Input: the bytes of either. What expands must do so again after it was stored anew.

#include <cstdint>

#include "SameList.h"
#include "ocore/Compress/CompressedBuffer.h"
#include "ocore/Faults/Exceptions.h"

namespace {

using zent::ByteBuffer;
using zent::CompressedBuffer;
using zent::fuzz::require;

constexpr std::size_t maximumSize = std::size_t{64} << 20;

void requireTravels(const ByteBuffer& original, std::int32_t level) {
    require(original.size() <= maximumSize);
    CompressedBuffer stored(level);
    stored.store(original);
    ByteBuffer expanded;
    CompressedBuffer(stored.getImage()).getOriginalData(expanded);
    require(expanded == original);
    if (original.isEmpty()) {
        return; // an image without a stream
    }
    ByteBuffer unmeasured;
    CompressedBuffer::uncompressBuffer(stored.getImage(), unmeasured);
    require(unmeasured == original);
}

void expandImage(const ByteBuffer& image) {
    ByteBuffer original;
    try {
        const CompressedBuffer compressed(image);
        compressed.getOriginalData(original);
        require(original.size() == static_cast<std::size_t>(compressed.getOriginalSize()));
    } catch (const zent::MissingOrBadCompressedBufferFooterException&) {
        return;
    } catch (const zent::CompressionException&) {
        require(original.isEmpty());
        return;
    }
    requireTravels(original, CompressedBuffer::defaultLevel);
}

void expandStream(const ByteBuffer& stream) {
    constexpr std::int32_t fastest = 1;
    ByteBuffer original;
    try {
        CompressedBuffer::uncompressBuffer(stream, original);
    } catch (const zent::CompressionException&) {
        require(original.isEmpty());
        return;
    }
    requireTravels(original, fastest);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ByteBuffer input(data, size);
    expandImage(input);
    expandStream(input);
    return 0;
}
