#include "ocore/Compress/PersistentSettings.h"

#include <utility>

#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/Compress/CompressedBuffer.h"
#include "ocore/Faults/Exceptions.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/User/User.h"
#include "ocore/User/UserPreferences.h"

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

ByteBuffer after(const ByteBuffer& bytes, std::size_t offset) {
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
    return after(state, headerSize);
}

ByteBuffer expand(const ByteBuffer& block) {
    ByteBuffer expanded;
    CompressedBuffer(block).getOriginalData(expanded);
    return expanded;
}

/// Reads the ticket of a blob. One that passes a bound of documents counts as what it is in most
/// cases, a small blob made to expand to something huge.
void readTicket(AnlTranslator& translator, const ByteBuffer& document, AttrNodeList* list) {
    try {
        translator.anlFromBuffer(document, list);
    } catch (const XmlBoundException& exception) {
        Raise<CompressionException>()("PersistentSettings::parse(): The ticket passes a bound of "
                                      "documents. %s\r\n",
                                      exception.getMessage());
    }
}

/// The small form of a full ordo document.
ByteBuffer toSmallDocument(const ByteBuffer& document) {
    AttrNodeList list;
    OrdoTranslator translator;
    translator.setOrigin(XmlOrigin::stateBlob);
    readTicket(translator, document, &list);
    ByteBuffer small;
    SmallOrdoTranslator().anlToBuffer(list, &small);
    return small;
}

} // namespace

PersistentSettings::PersistentSettings() : m_parts(defaultParts()), m_isComposed(false) {}

PersistentSettings::PersistentSettings(const ByteBuffer& state, bool trusted) {
    if (!trusted) {
        *this = PersistentSettings();
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
    if (state.size() > xmlLimits::documentBytes) {
        Raise<CompressionException>()(
            "PersistentSettings::compose(): The blob would have %lu bytes, "
            "and couldn't be read again!\r\n",
            state.size());
    }
    return state;
}

PersistentSettings::Parts PersistentSettings::unpack(const ByteBuffer& state) {
    return split(expand(getBlock(state)));
}

PersistentSettings::Parts PersistentSettings::split(const ByteBuffer& content) {
    if (content.size() < StateData::size) {
        Raise<FormatException>()("PersistentSettings::getComponentsFromCompressedDataBuffer: The "
                                 "ByteBuffer data is not big enough (%ld bytes) to contain the "
                                 "required header (%ld bytes)!\r\n",
                                 content.size(), StateData::size);
    }
    return {StateData(content.data()), after(content, StateData::size)};
}

/// Brings a blob of one of the two older forms to the present one, so that all other code knows
/// that one alone.
ByteBuffer PersistentSettings::upgrade(const ByteBuffer& state) {
    if (hasHeader(state, documentHeaderSize, documentVersion)) {
        return upgradeFromDocument(state);
    }
    if (hasHeader(state, headerSize, fullPayloadVersion)) {
        return upgradeFromFullPayload(state);
    }
    return state; // the check of the version decides about others
}

ByteBuffer PersistentSettings::upgradeFromDocument(const ByteBuffer& state) {
    ByteBuffer payload;
    if (state.size() > documentHeaderSize) {
        payload = toSmallDocument(expand(after(state, documentHeaderSize)));
    }
    Parts parts = defaultParts();
    parts.payload.swap(payload);
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

ByteBuffer PersistentSettings::validateCompressedData(const ByteBuffer& block) {
    const CompressedBuffer compressed(block);
    ByteBuffer expanded;
    compressed.getOriginalData(expanded);
    if (expanded.size() != static_cast<std::size_t>(compressed.getOriginalSize())) {
        Raise<FormatException>()("PersistentSettings::validateCompressedData(): Size of "
                                 "decompressed data (%ld) doesn't match the expected original "
                                 "size (%ld).\r\n",
                                 expanded.size(), compressed.getOriginalSize());
    }
    return expanded;
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
    if (trusted) {
        setBuffer(recent);
        return true;
    }
    Parts parts = split(validateCompressedData(block));
    if (parts.data.getStructureSize() != StateData::size) {
        Raise<FormatException>()(
            "PersistentSettings::importPersistentSettingsState(): Import request ignored. "
            "Don't have a data structure of the most recent version. The data structure in the "
            "compressed block doesn't exist or doesn't match.\r\n");
    }
    AttrNodeList list;
    parse(parts.payload, &list);
    setBuffer(recent);
    m_parts = std::move(parts);
    m_parsedList = std::move(list);
    return true;
}

void PersistentSettings::parse(const ByteBuffer& payload, AttrNodeList* target) {
    if (payload.isEmpty()) {
        target->removeAllNodes();
    } else {
        SmallOrdoTranslator translator;
        readTicket(translator, payload, target);
    }
}

void PersistentSettings::anlFromBuffer(const ByteBuffer& source, AttrNodeList* target) {
    parse(unpack(upgrade(source)).payload, target);
}

void PersistentSettings::anlToBuffer(const AttrNodeList& source, ByteBuffer* target) {
    Parts parts{getParts().data, {}};
    SmallOrdoTranslator().anlToBuffer(source, &parts.payload);
    target->append(compose(parts));
}

void PersistentSettings::toAttrNodeList(AttrNodeList* target) {
    if (m_parsedList && target->getNumberOfNodes() == 0) {
        *target = std::move(*m_parsedList);
        m_parsedList.reset();
    } else {
        parse(getParts().payload, target);
    }
}

void PersistentSettings::setFromAttrNodeList(const AttrNodeList& source) {
    getParts();
    ByteBuffer payload;
    SmallOrdoTranslator().anlToBuffer(source, &payload);
    changeParts().payload.swap(payload);
    m_parsedList.reset();
}

void PersistentSettings::anlFromFile(const CXString& /*fileName*/, AttrNodeList* /*target*/) {}

void PersistentSettings::anlToFile(const AttrNodeList& /*source*/, const CXString& /*fileName*/) {}

std::unique_ptr<AnlDealer> PersistentSettings::clone() const {
    return std::make_unique<PersistentSettings>(*this);
}

bool PersistentSettings::isEqual(const AnlDealer& other) const {
    return dynamic_cast<const PersistentSettings*>(&other) != nullptr && *this == other;
}

void PersistentSettings::validate() const { unpack(upgrade(getBytes())); }

void PersistentSettings::noteNewBuffer(const ByteBuffer& /*buffer*/) {
    m_parts.reset();
    m_isComposed = true;
    m_parsedList.reset();
}

void PersistentSettings::completeBuffer(ByteBuffer& buffer) const {
    if (!m_isComposed) {
        buffer = compose(*m_parts);
        m_isComposed = true;
    }
}

const PersistentSettings::Parts& PersistentSettings::getParts() const {
    if (!m_parts) {
        m_parts = unpack(upgrade(getBytes()));
    }
    return *m_parts;
}

PersistentSettings::Parts& PersistentSettings::changeParts() {
    getParts();
    m_isComposed = false;
    return *m_parts;
}

std::uint8_t PersistentSettings::getStateTag() const { return getParts().data.getStateTagByte(); }

void PersistentSettings::setStateTag(std::uint8_t tag) { changeParts().data.setStateTagByte(tag); }

UserContext PersistentSettings::getUserContext() const { return getParts().data.getUserContext(); }

void PersistentSettings::setUserContext(const UserContext& context) {
    changeParts().data.setUserContext(context);
}

} // namespace zent
