#include "StateBlob.h"

#include "Errors.h"
#include "ocore/Compress/CompressedBuffer.h"
#include "ocore/Compress/PersistentSettings.h"
#include "ocore/Faults/TarvoException.h"

namespace jobticket {

namespace {

using zent::ByteBuffer;

constexpr std::size_t versionOffset = 4;
constexpr std::size_t tagOffset = 8; // in the header of the oldest form, which has no structure
constexpr std::size_t headerWithTag = 10;

/// A number of the header, little-endian.
std::uint32_t readNumber(const ByteBuffer& blob, std::size_t offset, std::size_t count) {
    ByteBuffer number(blob.data() + offset, count);
    number.resize(sizeof(std::uint32_t));
    return static_cast<std::uint32_t>(number.getAsLongValue());
}

/// What lies compressed behind the header.
ByteBuffer expandBehind(const ByteBuffer& blob, std::size_t header) {
    ByteBuffer content;
    if (blob.size() > header) {
        zent::CompressedBuffer(ByteBuffer(blob.data() + header, blob.size() - header))
            .getOriginalData(content);
    }
    return content;
}

StateBlob inspect(const ByteBuffer& blob) {
    const zent::PersistentSettings valid(blob, false); // so that all of what follows is there
    const std::size_t header = readNumber(blob, 0, versionOffset);
    const ByteBuffer content = expandBehind(blob, header);
    StateBlob state;
    state.size = blob.size();
    state.version = readNumber(blob, versionOffset, sizeof state.version);
    state.documentSize = content.size();
    if (header == headerWithTag) {
        state.tag = static_cast<std::uint16_t>(readNumber(blob, tagOffset, sizeof state.tag));
    } else {
        const zent::StateData data(content.data());
        state.documentSize -= zent::StateData::size;
        state.tag = data.getStateTag();
        state.user = data.getUserContext();
    }
    return state;
}

} // namespace

StateBlob inspectState(std::string_view bytes, const std::string& name) {
    try {
        return inspect(ByteBuffer(bytes.data(), bytes.size()));
    } catch (const zent::TarvoException& exception) {
        throw LibraryError(exception.getResultCode(), "reading", name);
    }
}

std::string withoutLogonNames(std::string_view bytes) {
    zent::PersistentSettings settings(ByteBuffer(bytes.data(), bytes.size()), true);
    zent::UserContext user = settings.getUserContext();
    user.useLogonName = false;
    user.useLogonNameRecipient = false;
    settings.setUserContext(user);
    const ByteBuffer blob = settings.getBuffer();
    return {reinterpret_cast<const char*>(blob.data()), blob.size()};
}

} // namespace jobticket
