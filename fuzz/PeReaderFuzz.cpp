// The reader of resource libraries, over any bytes: whatever it finds must lie in the file.

#include <cstdint>
#include <cstdlib>
#include <span>

#include "platform/PeResourceReader.h"

using zent::platform::Bytes;
using zent::platform::PeResourceReader;

namespace {

void requireInside(Bytes file, Bytes found) {
    if (found.empty()) {
        return;
    }
    if (found.data() < file.data() || found.size() > file.size() ||
        found.data() - file.data() > static_cast<std::ptrdiff_t>(file.size() - found.size())) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Bytes file = std::as_bytes(std::span(data, size));
    const auto reader = PeResourceReader::open(file);
    if (!reader) {
        return 0;
    }
    for (const std::uint32_t id : {0U, 1U, 7U, 15U, 16U, 17U, 31U, 11619U, 65535U, 0xFFFFFFFFU}) {
        requireInside(file, reader->findString(id));
    }
    for (std::uint32_t type = 0; type < 20; ++type) {
        for (const std::uint32_t id : {0U, 1U, 2U, 5U, 100U, 727U, 0x80000001U}) {
            bool isListed = false;
            const auto found = reader->findResource(type, id, &isListed);
            if (found && !isListed) {
                std::abort();
            }
            requireInside(file, found.value_or(Bytes()));
        }
    }
    for (const std::uint32_t id : {1U, 100U, 101U}) {
        requireInside(file, reader->findIcon(id).value_or(Bytes()));
    }
    return 0;
}
