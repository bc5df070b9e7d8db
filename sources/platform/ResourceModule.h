#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace zent::platform {

/// A loaded resource library: strings, dialogs, images and data by number.
///
/// Windows: the loader's module. Elsewhere: the same PE file, read through a bounds-checked reader;
/// nothing in the file is trusted. What a lookup returns stays valid as long as the module.
class ResourceModule {
public:
    /// Loads the library at a full path. Null on failure, with the system's error number in
    /// `lastError` (Windows: GetLastError; elsewhere errno, ENOEXEC for a file of the wrong form).
    static std::unique_ptr<ResourceModule> load(std::u16string_view path, std::uint32_t& lastError);

    virtual ~ResourceModule() = default;
    ResourceModule(const ResourceModule&) = delete;
    ResourceModule& operator=(const ResourceModule&) = delete;

    /// Copies a string table entry into `buffer`, cut to `capacity - 1` units, with a terminator;
    /// returns the number of units without the terminator, 0 if there is none.
    virtual std::int32_t loadString(std::uint32_t id, char16_t* buffer,
                                    std::int32_t capacity) const = 0;

    /// The ways in which taking a resource can fail, in the order of the steps.
    enum class Failure { none, find, load, lock };
    /// The bytes of a resource by number and numeric type (10 raw data, 5 dialog, 2 bitmap,
    /// 3 icon, 1 cursor).
    virtual std::span<const std::byte> findResource(std::uint32_t id, std::uint32_t type,
                                                    Failure& failure) const = 0;

    /// The platform's icon handle of an icon resource, or null. Without a window system that knows
    /// such handles: the address of the icon's bytes.
    virtual const void* loadIcon(std::uint32_t id) const = 0;

protected:
    ResourceModule() = default;
};

} // namespace zent::platform
