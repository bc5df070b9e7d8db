#include "platform/ResourceModule.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

#include "platform/Files.h"
#include "platform/PeResourceReader.h"

namespace zent::platform {

namespace {

constexpr std::uint64_t largestFile = 64ULL * 1024 * 1024;

class PeResourceModule final : public ResourceModule {
public:
    PeResourceModule(std::vector<std::byte> file, PeResourceReader reader)
        : m_file(std::move(file)), m_reader(std::move(reader)) {}

    std::int32_t loadString(std::uint32_t id, char16_t* buffer,
                            std::int32_t capacity) const override {
        if (capacity <= 0) {
            return 0;
        }
        const auto text = m_reader.findString(id);
        const std::size_t length =
            std::min(text.size() / sizeof(char16_t), static_cast<std::size_t>(capacity) - 1);
        if (length > 0) {
            std::memcpy(buffer, text.data(), length * sizeof(char16_t));
        }
        buffer[length] = u'\0';
        return static_cast<std::int32_t>(length);
    }

    std::span<const std::byte> findResource(std::uint32_t id, std::uint32_t type,
                                            Failure& failure) const override {
        bool isListed = false;
        const auto found = m_reader.findResource(type, id, &isListed);
        failure = found ? Failure::none : isListed ? Failure::load : Failure::find;
        return found.value_or(std::span<const std::byte>());
    }

    const void* loadIcon(std::uint32_t id) const override {
        const auto icon = m_reader.findIcon(id);
        return icon && !icon->empty() ? icon->data() : nullptr;
    }

private:
    std::vector<std::byte> m_file;
    PeResourceReader m_reader;
};

/// The bytes of a file; on failure nothing, and errno says why.
std::optional<std::vector<std::byte>> readAll(std::u16string_view path) {
    const auto file = OpenFile::openForReading(path);
    std::uint64_t size = 0;
    if (!file || !file->getSize(size)) {
        return std::nullopt;
    }
    if (size > largestFile) {
        errno = EFBIG;
        return std::nullopt;
    }
    std::vector<std::byte> bytes(size);
    std::size_t done = 0;
    if (!file->read(bytes, done)) {
        return std::nullopt;
    }
    bytes.resize(done);
    return bytes;
}

} // namespace

std::unique_ptr<ResourceModule> ResourceModule::load(std::u16string_view path,
                                                     std::uint32_t& lastError) {
    if (isBareName(path)) {
        lastError = ENOENT;
        return nullptr;
    }
    auto file = readAll(path);
    if (!file) {
        lastError = static_cast<std::uint32_t>(errno);
        return nullptr;
    }
    // Moving the vector leaves its bytes where they are, so the reader may view them before.
    auto reader = PeResourceReader::open(*file);
    if (!reader) {
        lastError = ENOEXEC;
        return nullptr;
    }
    return std::make_unique<PeResourceModule>(std::move(*file), std::move(*reader));
}

} // namespace zent::platform
