#include "ocore/Compress/StateData.h"

#include <string>

#include "platform/Surrogates.h"

namespace zent {

namespace {

constexpr std::size_t sizeOffset = 0;
constexpr std::size_t tagOffset = 4;
constexpr std::size_t nameOffset = 6;
constexpr std::size_t nameUnits = 256;
constexpr std::size_t useDocumentNameOffset = 518;
constexpr std::size_t useLogonNameOffset = 519;
constexpr std::size_t useLogonNameRecipientOffset = 520;

} // namespace

StateData::StateData() {
    m_bytes.resize(size);
    write(sizeOffset, 4, size);
    write(tagOffset, 2, 1);
}

StateData::StateData(const std::byte* bytes) : m_bytes(bytes, size) {}

std::uint32_t StateData::read(std::size_t offset, std::size_t count) const {
    std::uint32_t number = 0;
    for (std::size_t i = count; i-- > 0;) {
        number = number << 8 | std::to_integer<std::uint32_t>(m_bytes.data()[offset + i]);
    }
    return number;
}

void StateData::write(std::size_t offset, std::size_t count, std::uint32_t number) {
    for (std::size_t i = 0; i < count; ++i) {
        at(offset + i) = static_cast<std::byte>(number >> (8 * i));
    }
}

std::uint32_t StateData::getStructureSize() const { return read(sizeOffset, 4); }

std::uint16_t StateData::getStateTag() const {
    return static_cast<std::uint16_t>(read(tagOffset, 2));
}

void StateData::setStateTag(std::uint16_t tag) { write(tagOffset, 2, tag); }

std::uint8_t StateData::getStateTagByte() const {
    return static_cast<std::uint8_t>(read(tagOffset, 1));
}

void StateData::setStateTagByte(std::uint8_t tag) { write(tagOffset, 1, tag); }

UserContext StateData::getUserContext() const {
    std::u16string name;
    for (std::size_t i = 0; i + 1 < nameUnits; ++i) {
        const auto unit = static_cast<char16_t>(read(nameOffset + 2 * i, 2));
        if (unit == u'\0') {
            break;
        }
        name.push_back(unit);
    }
    return {CXString(std::u16string_view(name)), read(useDocumentNameOffset, 1) != 0,
            read(useLogonNameOffset, 1) != 0, read(useLogonNameRecipientOffset, 1) != 0};
}

void StateData::setUserContext(const UserContext& context) {
    const std::u16string_view units = platform::cutText(context.logonName, maximumNameLength);
    // The units after the terminator are cleared, so that nothing of a longer name remains.
    for (std::size_t i = 0; i < nameUnits; ++i) {
        write(nameOffset + 2 * i, 2, i < units.size() ? units[i] : 0);
    }
    write(useDocumentNameOffset, 1, context.useDocumentName ? 1 : 0);
    write(useLogonNameOffset, 1, context.useLogonName ? 1 : 0);
    write(useLogonNameRecipientOffset, 1, context.useLogonNameRecipient ? 1 : 0);
}

} // namespace zent
