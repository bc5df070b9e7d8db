#include "BlobContent.h"

#include "ocore/Compress/CompressedBuffer.h"
#include "ocore/Compress/StateData.h"

namespace zent::bench {

namespace {

constexpr std::size_t headerSize = 8;

std::string expand(const std::string& stream) {
    ByteBuffer content;
    CompressedBuffer({stream.data(), stream.size()}).getOriginalData(content);
    return {static_cast<const char*>(static_cast<const void*>(content.data())), content.size()};
}

} // namespace

BlobContent::BlobContent(std::string_view state)
    : stream(state.substr(headerSize)), expanded(expand(stream)) {}

std::string_view BlobContent::document() const {
    return std::string_view(expanded).substr(StateData::size);
}

std::string_view BlobContent::expandDocument(Inflater& inflater) const {
    return inflater.inflate(stream, expanded.size()).substr(StateData::size);
}

} // namespace zent::bench
