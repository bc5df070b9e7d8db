#include "ocore/Compress/PersistentSettings.h"

#include "ocore/Attributes/AttrValueFactory.h"
#include "ocore/Compress/CompressedBuffer.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "ocore/User/User.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

ByteBuffer bytesOf(const std::string& text) { return {text.data(), text.size()}; }

ByteBuffer compressed(const std::string& text) {
    CompressedBuffer buffer(CompressedBuffer::defaultLevel);
    buffer.store(bytesOf(text));
    return buffer.getImage();
}

std::string structureOf(char size = '\x0A') {
    std::string structure(522, '\0');
    structure[0] = size; // 522 is 0x20A
    structure[1] = '\x02';
    structure[4] = '\x01';
    structure[6] = 'm';
    structure[8] = 'e';
    structure[519] = '\x01';
    return structure;
}

ByteBuffer blobOf(const std::string& header, const std::string& content) {
    ByteBuffer blob = bytesOf(header);
    blob.append(compressed(content));
    return blob;
}

const std::string recentHeader("\x08\0\0\0\x01\0\x08\x03", 8);
const std::string fullPayloadHeader("\x08\0\0\0\x01\0\0\x04", 8);
const std::string documentHeader("\x0A\0\0\0\x01\0\x07\x03\x34\x12", 10);

class PersistentSettingsTest : public testing::Test {
protected:
    PersistentSettingsTest() { useOrdoDtd(); }

    static std::string listIn(const ByteBuffer& blob) {
        PersistentSettings settings(blob, false);
        return textOfList(*settings.toNewAttrNodeList());
    }

private:
    ScratchUser m_preferences;
};

/// Each feature once for each value that it can have, within one collection.
AttrNodeList everything() {
    const FeatureValueDataBase values;
    AttrNodeList list;
    AttrNodeList& all = *list.addCollection(AttrID(u"media-col"));
    for (FeatureEnum feature = feature::first; feature <= feature::last; ++feature) {
        const AttrID name(_FI(feature).getName());
        bool hasValue = false;
        for (std::int32_t number = 1; number < value::firstRunTimeValue; ++number) {
            const auto row = values.findFeatureValueInfo(number);
            if (row && std::ranges::count(row->m_features, feature) > 0) {
                all.addNode(AttrNode(
                    name, *AttrValueFactory::createAttrValue(row->m_syntax, row->m_text), false));
                hasValue = true;
            }
        }
        if (!hasValue) {
            all.addInteger(5, name);
        }
    }
    return list;
}

// Blobs last for years: a feature or value may never travel under another abbreviation.
TEST_F(PersistentSettingsTest, AbbreviationsNeverChange) {
    PersistentSettings settings;
    settings.setUserContext({u"me", true, false, true});
    settings.setFromAttrNodeList(everything());
    const ByteBuffer blob = bytesOf(readTestFile("golden/state/tables.blob"));
    EXPECT_TRUE(settings.getBuffer() == blob);
    EXPECT_EQ(listIn(blob), textOfList(everything()));
}

// The same on every system: what an application stored on one, it may hand back on another.
TEST_F(PersistentSettingsTest, ABlobIsTheSameOnEverySystem) {
    const Rows<const char*, const char*> rows{
        {"golden/ordo/report.xml", "golden/state/report.blob"},
        {"../examples/brochure-with-covers.xml", "golden/state/brochure.blob"},
    };
    for (const auto& [document, blob] : rows) {
        PersistentSettings settings;
        settings.setUserContext({u"me", true, false, true});
        settings.setFromAttrNodeList(readOrdo(readTestFile(document)));
        EXPECT_TRUE(settings.getBuffer() == bytesOf(readTestFile(blob))) << blob;
    }
}

TEST_F(PersistentSettingsTest, ATicketTravelsWithItsUser) {
    PersistentSettings settings;
    EXPECT_EQ(settings.getUserContext().logonName, User::getLogonName());
    EXPECT_EQ(textOfList(*settings.toNewAttrNodeList()), "");

    settings.setUserContext({u"ada", false, true, false});
    settings.setFromAttrNodeList(listOf("copies=3 media-col{media-color=blue}"));
    const PersistentSettings copy(settings.getBuffer(), false);
    EXPECT_TRUE(copy.isEqual(settings));
    const UserContext user = copy.getUserContext();
    EXPECT_EQ(user.logonName, u"ada");
    EXPECT_FALSE(user.useDocumentName);
    EXPECT_TRUE(user.useLogonName);
    EXPECT_EQ(listIn(settings.getBuffer()), "copies=3 media-col{media-color=blue}");

    std::u16string longName(300, u'n');
    settings.setUserContext({CXString(std::u16string_view(longName)), true, true, true});
    EXPECT_EQ(settings.getUserContext().logonName.length(), 255);
    longName.replace(254, 2, u"\U0001F5A8"); // not cut in half
    settings.setUserContext({CXString(std::u16string_view(longName)), true, true, true});
    EXPECT_EQ(settings.getUserContext().logonName.length(), 254);
}

TEST_F(PersistentSettingsTest, OlderFormsAreUpgraded) {
    const std::string document = ordoTicket("<copies syntax='integer'>4</copies>");
    const ByteBuffer old = blobOf(documentHeader, document);
    PersistentSettings settings(old, false);
    EXPECT_EQ(listIn(old), "copies=4");
    EXPECT_EQ(settings.getStateTag(), 0x34);
    EXPECT_EQ(settings.getUserContext().logonName, User::getLogonName());
    EXPECT_EQ(listIn(bytesOf(documentHeader)), "");

    const ByteBuffer full = blobOf(fullPayloadHeader, structureOf() + document);
    EXPECT_EQ(listIn(full), "copies=4");
    EXPECT_EQ(PersistentSettings(full, false).getUserContext().logonName, u"me");
}

TEST_F(PersistentSettingsTest, FaultsAreRefusedAndNothingIsTaken) {
    const auto declaring = [](const std::string& root) {
        return "<!DOCTYPE " + root + " SYSTEM 'ordo-v02025.dtd' [<!ENTITY e 'x'>]><" + root + "/>";
    };
    const Rows<ByteBuffer, ResultCode> rows{
        {bytesOf(recentHeader.substr(0, 7)), ZENT_ERR_STATE_FORMAT},
        {bytesOf(std::string("\x08\0\0\0\x01\0\x09\x03", 8)), ZENT_ERR_STATE_FORMAT},
        {blobOf(recentHeader, structureOf().substr(0, 521)), ZENT_ERR_STATE_FORMAT},
        {blobOf(recentHeader, structureOf('\x0B')), ZENT_ERR_STATE_FORMAT},
        {blobOf(recentHeader, structureOf() + "<sordo>"), ZENT_ERR_XML_PARSE},
        {blobOf(fullPayloadHeader, structureOf() + "<ordo/>"), ZENT_ERR_XML_PARSE},
        // Beyond the bounds of documents, which are narrower than those of tickets as such.
        {blobOf(recentHeader, structureOf() + declaring("sordo")), ZENT_ERR_COMPRESSION},
        {blobOf(fullPayloadHeader, structureOf() + declaring("ordo")), ZENT_ERR_COMPRESSION},
        {blobOf(documentHeader, declaring("ordo")), ZENT_ERR_COMPRESSION},
        {blobOf(recentHeader,
                structureOf() + "<sordo><f s='n'>" + std::string(9'000'000, 'a') + "</f></sordo>"),
         ZENT_ERR_COMPRESSION},
        {blobOf(recentHeader, structureOf() + "<sordo><!--" + std::string(30'000'000, 'a')),
         ZENT_ERR_COMPRESSION},
    };
    PersistentSettings settings;
    const ByteBuffer before = settings.getBuffer();
    for (const auto& [blob, result] : rows) {
        try {
            settings.importPersistentSettingsState(blob, false);
            ADD_FAILURE() << "a fault was taken that gives " << result;
        } catch (const TarvoException& exception) {
            EXPECT_EQ(exception.getResultCode(), result) << exception.getMessage().toNarrow();
        }
        EXPECT_EQ(settings.getBuffer(), before);
    }
    // Of a trusted blob the header alone is looked at; the rest comes to light when it is used.
    EXPECT_TRUE(settings.importPersistentSettingsState(bytesOf(recentHeader), true));
    EXPECT_THROW(settings.validate(), MissingOrBadCompressedBufferFooterException);
}

} // namespace
} // namespace zent::test
