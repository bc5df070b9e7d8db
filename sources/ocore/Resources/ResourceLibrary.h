#pragma once

#include <cstdint>

#include "ocore/Resources/ResourceData.h"
#include "ocore/Text/CXString.h"
#include "platform/ResourceModule.h"
#include "platform/ResourceType.h"

namespace zent {

namespace resourceType = platform::resourceType;

/// Scoped access to the resource library that lies beside the library's own file: it is loaded as
/// long as at least one object of this class lives. Objects may live on different threads.
class ResourceLibrary {
public:
    /// Loads the library if no other object has. Raises ResourceLibraryConstructionException.
    ResourceLibrary();
    ~ResourceLibrary();
    ResourceLibrary(const ResourceLibrary&) = delete;
    ResourceLibrary& operator=(const ResourceLibrary&) = delete;

    /// Says where the library lies, for the next time that it is loaded. Without a path it is
    /// looked for in the folder of printer drivers.
    static void setPath(const CXString& path);

    const platform::ResourceModule& getModule() const;

    /// Copies a string into `buffer` of `capacity` units, cut to fit and terminated; returns its
    /// length. Raises ResourceAcquisitionException if there is no such string.
    std::int32_t getString(std::uint32_t id, char16_t* buffer, std::int32_t capacity) const;
    /// The same as a text, of at most 1023 units.
    CXString getString(std::uint32_t id) const;

    /// The platform's handle of an icon; raises ResourceAcquisitionException.
    const void* getIconHandle(std::uint32_t id) const;

    /// A copy of a resource's bytes; raises ResourceAcquisitionException.
    ResourceData loadResData(std::uint32_t id, std::uint32_t type) const;
    ResourceData loadRawData(std::uint32_t id) const {
        return loadResData(id, resourceType::rawData);
    }
    ResourceData loadDialog(std::uint32_t id) const {
        return loadResData(id, resourceType::dialog);
    }
    ResourceData loadIcon(std::uint32_t id) const { return loadResData(id, resourceType::icon); }
};

/// The path of a file in the folder of a printer's driver or, with an empty printer name, of
/// printer drivers in general.
CXString getDriverFilePath(const CXString& printerName, const CXString& fileName);

} // namespace zent
