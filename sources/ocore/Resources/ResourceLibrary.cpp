#include "ocore/Resources/ResourceLibrary.h"

#include <memory>

#include "ocore/Faults/Exceptions.h"
#include "ocore/Faults/OwnedCriticalResource.h"
#include "platform/Files.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

/// The module that all objects of the class share, and how many of them there are.
struct LoadedLibrary {
    CriticalResource guard{u"ResourceLibrary"};
    CXString path;
    std::unique_ptr<platform::ResourceModule> module;
    std::uint32_t useCount = 0;
};

LoadedLibrary& loadedLibrary() {
    static auto& library = keepForever<LoadedLibrary>();
    return library;
}

} // namespace

ResourceLibrary::ResourceLibrary() {
    LoadedLibrary& library = loadedLibrary();
    const OwnedCriticalResource hold(library.guard);
    if (!library.module) {
        if (library.path.isEmpty()) {
            library.path = getDriverFilePath(CXString(), u"zenres37.dll");
        }
        std::uint32_t lastError = 0;
        library.module = platform::ResourceModule::load(library.path, lastError);
        if (!library.module) {
            Raise<ResourceLibraryConstructionException>()(
                "ResourceLibrary ctor failed during LoadLibrary of '%s'. Last Error: %ld.\r\n",
                library.path, lastError);
        }
    }
    ++library.useCount;
}

ResourceLibrary::~ResourceLibrary() {
    LoadedLibrary& library = loadedLibrary();
    const OwnedCriticalResource hold(library.guard);
    if (--library.useCount == 0) {
        library.module.reset();
    }
}

void ResourceLibrary::setPath(const CXString& path) {
    LoadedLibrary& library = loadedLibrary();
    const OwnedCriticalResource hold(library.guard);
    library.path = path;
}

const platform::ResourceModule& ResourceLibrary::getModule() const {
    // No lock is needed: the module was set before this object was made, and stays as long as it
    // lives.
    return *loadedLibrary().module;
}

std::int32_t ResourceLibrary::getString(std::uint32_t id, char16_t* buffer,
                                        std::int32_t capacity) const {
    const std::int32_t length = getModule().loadString(id, buffer, capacity);
    if (length == 0) {
        Raise<ResourceAcquisitionException>()(
            "ResourceLibrary::getString(%d) failed - LoadString returned ZERO.\r\n", id);
    }
    return length;
}

CXString ResourceLibrary::getString(std::uint32_t id) const {
    constexpr std::int32_t capacity = 1024;
    char16_t buffer[capacity];
    const std::int32_t length = getString(id, buffer, capacity);
    return CXString(std::u16string_view(buffer, static_cast<std::size_t>(length)));
}

const void* ResourceLibrary::getIconHandle(std::uint32_t id) const {
    const void* icon = getModule().loadIcon(id);
    if (icon == nullptr) {
        Raise<ResourceAcquisitionException>()(
            "ResourceLibrary::getIconHandle() failed in ::LoadIcon(), returned NULL\r\n");
    }
    return icon;
}

ResourceData ResourceLibrary::loadResData(std::uint32_t id, std::uint32_t type) const {
    const Raise<ResourceAcquisitionException> raise;
    if (id == 0) {
        raise("ResourceLibrary::loadResData() failed - ResourceID == 0\r\n");
    }
    using Failure = platform::ResourceModule::Failure;
    Failure failure = Failure::none;
    const auto bytes = getModule().findResource(id, type, failure);
    switch (failure) {
    case Failure::find:
        raise("ResourceLibrary::loadResData() failed in ::FindResource()\r\n");
    case Failure::load:
        raise("ResourceLibrary::loadResData() failed in ::LoadResource()\r\n");
    case Failure::lock:
        raise("ResourceLibrary::loadResData() failed in ::LockResource()\r\n");
    case Failure::none:
        break;
    }
    return {id, type, bytes};
}

CXString getDriverFilePath(const CXString& printerName, const CXString& fileName) {
    return CXString(platform::getDriverDirectory(printerName)) + fileName;
}

} // namespace zent
