#include "ocore/Compress/PersistentSettings.h"

#include "ocore/AnlXlate/OrdoTranslator.h"
#include "ocore/AnlXlate/SmallOrdoTranslator.h"
#include "ocore/Compress/CompressedBuffer.h"
#include "ocore/Exceptions.h"
#include "ocore/User.h"
#include "ocore/UserPreferences.h"

namespace zent {

namespace {

using FormatException = MissingOrBadPersistentSettingsFormatException;

constexpr std::size_t headerSize = 8;
constexpr std::uint32_t version = 0x03080001;
// A blob whose compressed block is a full ordo document, with a tag at the end of its header.
constexpr std::size_t documentHeaderSize = 10;
constexpr std::uint32_t documentVersion = 0x03070001;
constexpr std::size_t documentTagOffset = 8;
// A blob of the present layout with a full ordo document as its payload.
constexpr std::uint32_t fullPayloadVersion = 0x04000001;

std::uint32_t readNumber(const ByteBuffer& bytes, std::size_t offset, std::size_t count) {
    std::uint32_t number = 0;
    for (std::size_t i = count; i-- > 0;) {
        number = number << 8 | std::to_integer<std::uint32_t>(bytes.data()[offset + i]);
    }
    return number;
}

/// Whether a blob begins with a header of a size and version.
bool hasHeader(const ByteBuffer& state, std::size_t size, std::uint32_t wanted) {
    return state.size() >= size && readNumber(state, 0, 4) == size &&
           readNumber(state, 4, 4) == wanted;
}

ByteBuffer behind(const ByteBuffer& bytes, std::size_t offset) {
    return {bytes.data() + offset, bytes.size() - offset};
}

/// What follows the header of a blob (the major components).
ByteBuffer getBlock(const ByteBuffer& state) {
    if (state.size() < headerSize) {
        Raise<FormatException>()("PersistentSettings::getMajorComponentsFromStateDataBuffer: The "
                                 "ByteBuffer data is not big enough (%ld bytes) to contain the "
                                 "required header  (%ld bytes)!\r\n",
                                 state.size(), headerSize);
    }
    return behind(state, headerSize);
}

ByteBuffer expand(const ByteBuffer& block) {
    ByteBuffer expanded;
    CompressedBuffer(block).getOriginalData(expanded);
    return expanded;
}

/// The small form of a full ordo document.
ByteBuffer toSmallDocument(const ByteBuffer& document) {
    AttrNodeList list;
    OrdoTranslator().anlFromBuffer(document, &list);
    ByteBuffer small;
    SmallOrdoTranslator().anlToBuffer(list, &small);
    return small;
}

} // namespace

PersistentSettings::PersistentSettings() { setBuffer(compose(defaultParts())); }

PersistentSettings::PersistentSettings(const ByteBuffer& state, bool trusted) {
    if (!trusted) {
        setBuffer(compose(defaultParts()));
    }
    importPersistentSettingsState(state, trusted);
}

PersistentSettings::Parts PersistentSettings::defaultParts() {
    Parts parts;
    const UserPreferences preferences{CXString()};
    parts.data.setUserContext({User::getLogonName(), preferences.getJobNamePreference(),
                               preferences.getUseLogonNamePreference(),
                               preferences.getUseLogonNameForRecipientPreference()});
    return parts;
}

ByteBuffer PersistentSettings::compose(const Parts& parts) {
    ByteBuffer content = parts.data.getBytes();
    content.append(parts.payload);
    CompressedBuffer block(CompressedBuffer::defaultLevel);
    block.store(content);
    ByteBuffer state = ByteBuffer::fromLong(headerSize);
    state.append(ByteBuffer::fromLong(static_cast<std::int32_t>(version)));
    state.append(block.getImage());
    return state;
}

PersistentSettings::Parts PersistentSettings::unpack(const ByteBuffer& state) {
    const ByteBuffer content = expand(getBlock(state));
    if (content.size() < StateData::size) {
        Raise<FormatException>()("PersistentSettings::getComponentsFromCompressedDataBuffer: The "
                                 "ByteBuffer data is not big enough (%ld bytes) to contain the "
                                 "required header (%ld bytes)!\r\n",
                                 content.size(), StateData::size);
    }
    return {StateData(content.data()), behind(content, StateData::size)};
}

ByteBuffer PersistentSettings::upgrade(const ByteBuffer& state) {
    if (hasHeader(state, documentHeaderSize, documentVersion)) {
        return upgradeFromDocument(state);
    }
    if (hasHeader(state, headerSize, fullPayloadVersion)) {
        return upgradeFromFullPayload(state);
    }
    return state; // for the version check to judge
}

ByteBuffer PersistentSettings::upgradeFromDocument(const ByteBuffer& state) {
    Parts parts = defaultParts();
    if (state.size() > documentHeaderSize) {
        parts.payload = toSmallDocument(expand(behind(state, documentHeaderSize)));
    }
    parts.data.setStateTag(static_cast<std::uint16_t>(readNumber(state, documentTagOffset, 2)));
    return compose(parts);
}

ByteBuffer PersistentSettings::upgradeFromFullPayload(const ByteBuffer& state) {
    Parts parts = unpack(state);
    if (!parts.payload.isEmpty()) {
        parts.payload = toSmallDocument(parts.payload);
    }
    return compose(parts);
}

void PersistentSettings::validateCompressedData(const ByteBuffer& block) {
    const CompressedBuffer compressed(block);
    ByteBuffer expanded;
    compressed.getOriginalData(expanded);
    if (expanded.size() != static_cast<std::size_t>(compressed.getOriginalSize())) {
        Raise<FormatException>()("PersistentSettings::validateCompressedData(): Size of "
                                 "decompressed data (%ld) doesn't match the expected original "
                                 "size (%ld).\r\n",
                                 expanded.size(), compressed.getOriginalSize());
    }
}

bool PersistentSettings::importPersistentSettingsState(const ByteBuffer& state, bool trusted) {
    const ByteBuffer recent = trusted ? state : upgrade(state);
    const ByteBuffer block = getBlock(recent);
    if (!hasHeader(recent, headerSize, version)) {
        Raise<FormatException>()(
            "PersistentSettings::importPersistentSettingsState(): Import request ignored. Don't "
            "have header structure of the most recent version. The header information doesn't "
            "exist or doesn't match.\r\n");
    }
    if (!trusted) {
        validateCompressedData(block);
        const Parts parts = unpack(recent);
        if (parts.data.getStructureSize() != StateData::size) {
            Raise<FormatException>()(
                "PersistentSettings::importPersistentSettingsState(): Import request ignored. "
                "Don't have a data structure of the most recent version. The data structure in the "
                "compressed block doesn't exist or doesn't match.\r\n");
        }
        if (!parts.payload.isEmpty()) {
            AttrNodeList scratch;
            SmallOrdoTranslator().anlFromBuffer(parts.payload, &scratch);
        }
    }
    setBuffer(recent);
    return true;
}

void PersistentSettings::anlFromBuffer(const ByteBuffer& source, AttrNodeList* target) {
    const Parts parts = unpack(upgrade(source));
    if (parts.payload.isEmpty()) {
        target->removeAllNodes();
    } else {
        SmallOrdoTranslator().anlFromBuffer(parts.payload, target);
    }
}

void PersistentSettings::anlToBuffer(const AttrNodeList& source, ByteBuffer* target) {
    Parts parts = unpack(getBuffer());
    parts.payload.clear();
    SmallOrdoTranslator().anlToBuffer(source, &parts.payload);
    target->append(compose(parts));
}

void PersistentSettings::anlFromFile(const CXString& /*fileName*/, AttrNodeList* /*target*/) {}

void PersistentSettings::anlToFile(const AttrNodeList& /*source*/, const CXString& /*fileName*/) {}

std::unique_ptr<AnlDealer> PersistentSettings::clone() const {
    return std::make_unique<PersistentSettings>(*this);
}

bool PersistentSettings::isEqual(const AnlDealer& other) const {
    return dynamic_cast<const PersistentSettings*>(&other) != nullptr &&
           getBuffer() == other.getBuffer();
}

void PersistentSettings::validate() const { unpack(upgrade(getBuffer())); }

std::uint8_t PersistentSettings::getStateTag() const {
    return unpack(getBuffer()).data.getStateTagByte();
}

void PersistentSettings::setStateTag(std::uint8_t tag) {
    Parts parts = unpack(getBuffer());
    parts.data.setStateTagByte(tag);
    setBuffer(compose(parts));
}

UserContext PersistentSettings::getUserContext() const {
    return unpack(getBuffer()).data.getUserContext();
}

void PersistentSettings::setUserContext(const UserContext& context) {
    Parts parts = unpack(getBuffer());
    parts.data.setUserContext(context);
    setBuffer(compose(parts));
}

} // namespace zent
