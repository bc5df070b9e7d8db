#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "ocore/AnlXlate/AnlDealer.h"
#include "ocore/Compress/StateData.h"

namespace zent {

/// A job's complete settings as one opaque state blob: a header with the version, and a compressed
/// block that holds the user context (StateData) and the settings as a small ordo document. Blobs
/// of two older forms are upgraded when they are read.
///
/// The content stays beside the blob once it was expanded, and a blob whose content changed is
/// composed when somebody asks for its bytes: deflating costs more than all the rest, and what
/// changes the ticket is mostly followed by what changes the user. So even reading is a change of
/// state, and an object is for one thread at a time.
///
/// Faults raise MissingOrBadPersistentSettingsFormatException, or what expanding and parsing raise.
class PersistentSettings : public AnlDealer {
public:
    /// The default blob: no settings, the present user, and the preferences of the common set.
    PersistentSettings();
    /// Takes a blob over. Of a trusted one only the header is checked.
    PersistentSettings(const ByteBuffer& state, bool trusted);

    void anlFromBuffer(const ByteBuffer& source, AttrNodeList* target) override;
    void anlToBuffer(const AttrNodeList& source, ByteBuffer* target) override;
    /// A state blob isn't kept in files of its own: these do nothing.
    void anlFromFile(const CXString& fileName, AttrNodeList* target) override;
    void anlToFile(const AttrNodeList& source, const CXString& fileName) override;
    std::unique_ptr<AnlDealer> clone() const override;
    bool isEqual(const AnlDealer& other) const override;
    void toAttrNodeList(AttrNodeList* target) override;
    void setFromAttrNodeList(const AttrNodeList& source) override;
    /// Upgrades and unpacks a copy of the bytes; any fault raises.
    virtual void validate() const;

    /// Takes a blob over, upgraded and checked unless it is trusted. On failure this stays as it
    /// is.
    bool importPersistentSettingsState(const ByteBuffer& state, bool trusted);

    std::uint8_t getStateTag() const;
    void setStateTag(std::uint8_t tag);
    UserContext getUserContext() const;
    void setUserContext(const UserContext& context);

protected:
    void noteNewBuffer(const ByteBuffer& buffer) override;
    void completeBuffer(ByteBuffer& buffer) const override;

private:
    /// The content of a blob.
    struct Parts {
        StateData data;
        ByteBuffer payload; // a small ordo document, or nothing
    };
    const Parts& getParts() const;
    Parts& changeParts();

    static Parts defaultParts();
    static Parts unpack(const ByteBuffer& state);
    static Parts split(const ByteBuffer& content);
    static void parse(const ByteBuffer& payload, AttrNodeList* target);
    static ByteBuffer compose(const Parts& parts);
    static ByteBuffer upgrade(const ByteBuffer& state);
    static ByteBuffer upgradeFromDocument(const ByteBuffer& state);
    static ByteBuffer upgradeFromFullPayload(const ByteBuffer& state);
    static ByteBuffer validateCompressedData(const ByteBuffer& block);

    mutable std::optional<Parts> m_parts; // nothing until the bytes have been expanded
    mutable bool m_isComposed = true;     // the bytes are those of the parts
    // What an import has read, for whoever asks for it next.
    std::optional<AttrNodeList> m_parsedList;
};

} // namespace zent
