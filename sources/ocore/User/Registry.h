#pragma once

#include <cstdint>

#include "ocore/Resources/ByteBuffer.h"
#include "ocore/Text/CXString.h"
#include "platform/PreferenceStore.h"

namespace zent {

namespace registryType = platform::registryType;

/// Access to the values of the current user's registry, or what stands in its place, by the path
/// of a key and a name. Has no state. A failing store raises RegistryRequestException; a key or
/// value that isn't there is no failure, nor to a reader a store that can't be used.
class Registry {
public:
    /// Takes a value; false, and an empty buffer, if there is none. A value may be empty.
    bool getValue(const CXString& key, const CXString& name, ByteBuffer& value) const;
    /// Stores a value of a type of registryType.
    void setValue(const CXString& key, const CXString& name, std::uint32_t type,
                  const ByteBuffer& value) const;

    // Reading with a default for where there is no value. An empty value gives the default for a
    // long, and the empty text or buffer for a string and data. A value that is
    // shorter than its type raises NotEnoughBytesForDesiredDataTypeException; its stored type
    // doesn't matter.
    std::int32_t getLongValue(const CXString& key, const CXString& name,
                              std::int32_t defaultValue) const;
    CXString getStringValue(const CXString& key, const CXString& name,
                            const CXString& defaultValue) const;
    ByteBuffer getDataValue(const CXString& key, const CXString& name,
                            const ByteBuffer& defaultValue) const;

    void setLongValue(const CXString& key, const CXString& name, std::int32_t value) const;
    void setStringValue(const CXString& key, const CXString& name, const CXString& value) const;
    void setDataValue(const CXString& key, const CXString& name, const ByteBuffer& value) const;
};

} // namespace zent
