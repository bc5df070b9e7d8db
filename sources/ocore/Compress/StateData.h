#pragma once

#include <cstdint>

#include "ocore/Resources/ByteBuffer.h"

namespace zent {

/// The user that a job comes from, and what the user prefers to do with the name.
struct UserContext {
    CXString logonName;
    bool useDocumentName = false;       // the job is named after the document
    bool useLogonName = false;          // the sender is the logon name
    bool useLogonNameRecipient = false; // the recipient is the logon name
};

/// The fixed part of a state blob's content, 522 bytes, little-endian.
class StateData {
public:
    static constexpr std::uint32_t size = 522;
    static constexpr std::size_t maximumNameLength = 255;

    /// Makes new data: the size, the tag 1, no name and no flag.
    StateData();
    /// Reads the data from at least 522 bytes.
    explicit StateData(const std::byte* bytes);

    const ByteBuffer& getBytes() const { return m_bytes; }

    /// The size that the structure claims for itself: 522 in the most recent version.
    std::uint32_t getStructureSize() const;
    std::uint16_t getStateTag() const;
    void setStateTag(std::uint16_t tag);
    /// The low byte of the tag.
    std::uint8_t getStateTagByte() const;
    void setStateTagByte(std::uint8_t tag);

    UserContext getUserContext() const;
    /// A logon name that is too long is cut to 255 units.
    void setUserContext(const UserContext& context);

private:
    std::byte& at(std::size_t offset) { return m_bytes.data()[offset]; }
    std::uint32_t read(std::size_t offset, std::size_t count) const;
    void write(std::size_t offset, std::size_t count, std::uint32_t number);

    ByteBuffer m_bytes;
};

} // namespace zent
