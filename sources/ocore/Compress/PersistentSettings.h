#pragma once

#include <cstdint>
#include <memory>

#include "ocore/AnlXlate/AnlDealer.h"
#include "ocore/Compress/StateData.h"

namespace zent {

/// A job's complete settings as one opaque state blob: a header with the version, and a compressed
/// block that holds the user context (StateData) and the settings as a small ordo document. Blobs
/// of two older forms are upgraded when they are read.
///
/// Faults raise MissingOrBadPersistentSettingsFormatException, or what expanding and parsing raise.
class PersistentSettings : public AnlDealer {
public:
    /// The default blob: no settings, the present user, and the preferences of the common set.
    PersistentSettings();
    /// From a blob; of a trusted one only the header is checked.
    PersistentSettings(const ByteBuffer& state, bool trusted);

    void anlFromBuffer(const ByteBuffer& source, AttrNodeList* target) override;
    void anlToBuffer(const AttrNodeList& source, ByteBuffer* target) override;
    /// A state blob isn't kept in files of its own: these do nothing.
    void anlFromFile(const CXString& fileName, AttrNodeList* target) override;
    void anlToFile(const AttrNodeList& source, const CXString& fileName) override;
    std::unique_ptr<AnlDealer> clone() const override;
    bool isEqual(const AnlDealer& other) const override;
    /// Upgrades and unpacks a copy of the bytes; any fault raises.
    virtual void validate() const;

    /// Takes a blob over, upgraded and checked unless it is trusted. On failure this stays as it
    /// is.
    bool importPersistentSettingsState(const ByteBuffer& state, bool trusted);

    std::uint8_t getStateTag() const;
    void setStateTag(std::uint8_t tag);
    UserContext getUserContext() const;
    void setUserContext(const UserContext& context);

private:
    /// A blob in its parts.
    struct Parts {
        StateData data;
        ByteBuffer payload;
    };
    static Parts defaultParts();
    static Parts unpack(const ByteBuffer& state);
    static ByteBuffer compose(const Parts& parts);
    static ByteBuffer upgrade(const ByteBuffer& state);
    static ByteBuffer upgradeFromDocument(const ByteBuffer& state);
    static ByteBuffer upgradeFromFullPayload(const ByteBuffer& state);
    static void validateCompressedData(const ByteBuffer& block);
};

} // namespace zent
