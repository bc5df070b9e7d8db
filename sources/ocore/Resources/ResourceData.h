#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "ocore/Resources/ByteBuffer.h"

namespace zent {

/// One resource, taken out of the resource library: a copy of its bytes, with its number and type.
class ResourceData {
public:
    ResourceData() = default;
    ResourceData(std::uint32_t id, std::uint32_t type, std::span<const std::byte> bytes)
        : m_id(id), m_type(type), m_bytes(bytes.data(), bytes.size()) {}
    virtual ~ResourceData() = default;
    ResourceData(const ResourceData&) = default;
    ResourceData(ResourceData&&) noexcept = default;
    ResourceData& operator=(const ResourceData&) = default;
    ResourceData& operator=(ResourceData&&) noexcept = default;

    /// The size in bytes.
    virtual std::size_t getSize() const { return m_bytes.size(); }
    /// Raises ResourceAcquisitionException if there are no bytes.
    virtual const std::byte* getResourceData() const;
    virtual std::uint32_t getResourceId() const { return m_id; }
    virtual std::uint32_t getResourceType() const { return m_type; }
    virtual void setResourceId(std::uint32_t id) { m_id = id; }
    /// Takes the types that the library reads (raw data, dialog, bitmap, cursor, icon); raises
    /// UnknownCaseException for any other.
    virtual void setResourceType(std::uint32_t type);

    const ByteBuffer& getBytes() const { return m_bytes; }

protected:
    ByteBuffer& bytes() { return m_bytes; }

private:
    std::uint32_t m_id = 0;
    std::uint32_t m_type = 0;
    ByteBuffer m_bytes;
};

} // namespace zent
