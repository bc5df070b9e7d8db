// Hostile state blobs, untrusted and trusted: PersistentSettings. What is taken untrusted must give
// its ticket, and the same ticket again after travelling anew; what is taken trusted may fail at
// any later use, but with a failure that has a name.
//
// Input: a byte that says whether the blob is trusted, and how the rest becomes a blob, since
// deflate would hide its content from the fuzzer: as it is, as the payload, as the content, as a
// full ordo document of either older form.

#include <algorithm>
#include <cstdint>

#include "SameList.h"
#include "SeenLists.h"
#include "ocore/Compress/CompressedBuffer.h"
#include "ocore/Compress/PersistentSettings.h"
#include "ocore/Faults/TarvoException.h"
#include "zent27.h"

namespace {

using zent::AttrNodeList;
using zent::ByteBuffer;
using zent::PersistentSettings;
using zent::StateData;
using zent::fuzz::require;

/// Opens a session, by which the library learns where its files lie.
void openSessionOnce() {
    static const ZentSessionType session = [] {
        ZentSessionType opened = nullptr;
        require(fnOpenSession(ZENT_INTERFACE_VERSION, 1, 1, ZENT_INSTRUCTIONS_XML, 1, nullptr, 0,
                              &opened) == ZENT_OK);
        return opened;
    }();
    require(session != nullptr);
}

/// A copy for each use, since to ask for the user's data takes longer than most inputs.
PersistentSettings makeState() {
    static const PersistentSettings state = [] {
        PersistentSettings made;
        made.getBuffer(); // composed once for all
        return made;
    }();
    return state;
}

/// Makes a blob of a header and a compressed block that holds the content.
ByteBuffer compose(std::int32_t headerSize, std::int32_t version, const ByteBuffer& tag,
                   const ByteBuffer& content) {
    ByteBuffer blob = ByteBuffer::fromLong(headerSize);
    blob.append(ByteBuffer::fromLong(version));
    blob.append(tag);
    constexpr std::int32_t fastest = 1;
    zent::CompressedBuffer block(fastest);
    block.store(content);
    blob.append(block.getImage());
    return blob;
}

constexpr int forms = 5;

ByteBuffer makeBlob(int form, const ByteBuffer& rest) {
    constexpr std::int32_t recent = 0x03080001;
    constexpr std::int32_t fullPayload = 0x04000001;
    constexpr std::int32_t document = 0x03070001;
    ByteBuffer withStructure = StateData().getBytes();
    withStructure.append(rest);
    switch (form) {
    case 1:
        return compose(8, recent, {}, withStructure);
    case 2:
        return compose(8, recent, {}, rest);
    case 3:
        return compose(8, fullPayload, {}, withStructure);
    case 4:
        return compose(10, document, {"\x12\x34", 2}, rest);
    default:
        return rest;
    }
}

/// Whether the work succeeds; a failure must be one of the library's own.
template <typename Work>
bool succeeds(const Work& work) {
    try {
        work();
        return true;
    } catch (const zent::TarvoException& exception) {
        require(exception.getResultCode() > ZENT_OK &&
                exception.getResultCode() < ZENT_ERR_STD_EXCEPTION);
        return false;
    }
}

void requireTravels(const AttrNodeList& list, PersistentSettings state) {
    // A document of XML 1.1 can hold names that can't be written.
    if (!succeeds([&] { state.setFromAttrNodeList(list); })) {
        return;
    }
    require(state.importPersistentSettingsState(state.getBuffer(), false));
    AttrNodeList parsed;
    state.toAttrNodeList(&parsed);
    zent::fuzz::requireSameList(list, parsed);
}

/// What a blob holds besides its ticket.
std::u16string describe(const PersistentSettings& state) {
    const zent::UserContext user = state.getUserContext();
    std::u16string text(user.logonName.view());
    for (const int part : {int{user.useDocumentName}, int{user.useLogonName},
                           int{user.useLogonNameRecipient}, int{state.getStateTag()}}) {
        text += static_cast<char16_t>(part);
    }
    return text;
}

void importUntrusted(const ByteBuffer& blob) {
    PersistentSettings state = makeState();
    const ByteBuffer before = state.getBuffer();
    if (!succeeds([&] { state.importPersistentSettingsState(blob, false); })) {
        require(state.getBuffer() == before);
        return;
    }
    AttrNodeList parsedByImport;
    state.toAttrNodeList(&parsedByImport);
    static zent::fuzz::SeenLists seen;
    if (!seen.isNew(parsedByImport, describe(state))) {
        return;
    }
    state.validate();
    AttrNodeList parsedAnew;
    state.toAttrNodeList(&parsedAnew);
    require(parsedAnew.getNumberOfNodes() == parsedByImport.getNumberOfNodes());
    requireTravels(parsedByImport, state);
}

void importTrusted(const ByteBuffer& blob) {
    PersistentSettings state = makeState();
    if (!succeeds([&] { state.importPersistentSettingsState(blob, true); })) {
        return;
    }
    succeeds([&] { state.validate(); });
    AttrNodeList list;
    succeeds([&] { state.toAttrNodeList(&list); });
    if (!succeeds([&] { state.getUserContext(); })) {
        require(!succeeds([&] { state.getStateTag(); }));
        require(!succeeds([&] { state.setUserContext({}); }));
        require(state.getBuffer() == blob);
        return;
    }
    const zent::UserContext user{u"somebody", true, false, true};
    state.setUserContext(user);
    const PersistentSettings renewed(state.getBuffer(), true);
    require(renewed.getUserContext().logonName == user.logonName);
    require(renewed.getStateTag() == state.getStateTag());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    openSessionOnce();
    const ByteBuffer blob = makeBlob(data[0] % forms, {data + 1, size - 1});
    const bool isTrusted = data[0] / forms % 2 != 0;
    if (isTrusted) {
        importTrusted(blob);
    } else {
        importUntrusted(blob);
    }
    return 0;
}
