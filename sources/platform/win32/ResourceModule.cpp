#include "platform/ResourceModule.h"

#include "platform/Files.h"
#include "platform/win32/WideText.h"

namespace zent::platform {

namespace {

/// The largest number that can stand in the place of a resource's name. A larger one would be cut
/// to another number.
constexpr std::uint32_t largestNumber = 0xFFFF;
const wchar_t* asName(std::uint32_t number) { return MAKEINTRESOURCEW(number); }

class WindowsResourceModule final : public ResourceModule {
public:
    explicit WindowsResourceModule(HMODULE module) : m_module(module) {}
    ~WindowsResourceModule() override { FreeLibrary(m_module); }

    std::int32_t loadString(std::uint32_t id, char16_t* buffer,
                            std::int32_t capacity) const override {
        if (capacity <= 0) {
            return 0;
        }
        buffer[0] = u'\0';
        return id > largestNumber ? 0 : LoadStringW(m_module, id, wide(buffer), capacity);
    }

    std::span<const std::byte> findResource(std::uint32_t id, std::uint32_t type,
                                            Failure& failure) const override {
        failure = Failure::find;
        if (id > largestNumber || type > largestNumber) {
            return {};
        }
        const HRSRC resource = FindResourceW(m_module, asName(id), asName(type));
        if (resource == nullptr) {
            return {};
        }
        failure = Failure::load;
        const DWORD size = SizeofResource(m_module, resource);
        const HGLOBAL loaded = LoadResource(m_module, resource);
        if (loaded == nullptr) {
            return {};
        }
        failure = Failure::lock;
        const void* bytes = LockResource(loaded);
        if (bytes == nullptr) {
            return {};
        }
        failure = Failure::none;
        return {static_cast<const std::byte*>(bytes), size};
    }

    const void* loadIcon(std::uint32_t id) const override {
        return id > largestNumber ? nullptr : LoadIconW(m_module, asName(id));
    }

private:
    HMODULE m_module;
};

} // namespace

std::unique_ptr<ResourceModule> ResourceModule::load(std::u16string_view path,
                                                     std::uint32_t& lastError) {
    if (isBareName(path)) {
        lastError = ERROR_BAD_PATHNAME;
        return nullptr;
    }
    // With the altered search path, the libraries that this one needs are looked for in its own
    // folder.
    const HMODULE module =
        LoadLibraryExW(terminated(path).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (module == nullptr) {
        lastError = GetLastError();
        return nullptr;
    }
    return std::make_unique<WindowsResourceModule>(module);
}

} // namespace zent::platform
