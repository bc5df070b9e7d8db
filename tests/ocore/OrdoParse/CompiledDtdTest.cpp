#include <gmock/gmock.h>

#include "ocore/AnlXlate/OrdoDtd.h"
#include "ocore/OrdoParse/CompiledDtd.h"
#include "ocore/OrdoParse/ZNXMLInterface.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

using testing::AnyOf;
using testing::StartsWith;

const std::string copiesOnly =
    "<!ELEMENT ordo (job-template-attributes?)>\n"
    "<!ATTLIST ordo version CDATA #IMPLIED krss-version CDATA #IMPLIED xml:lang CDATA #IMPLIED>\n"
    "<!ELEMENT job-template-attributes (copies*)>\n"
    "<!ELEMENT copies (#PCDATA)>\n"
    "<!ATTLIST copies syntax CDATA #REQUIRED>\n";
class CompiledDtdTest : public testing::Test {
protected:
    CompiledDtdTest() {
        ZNXMLInterface::Instance();
        ordoDtd::setDirectory(m_folder.file(""));
    }
    ~CompiledDtdTest() override { useOrdoDtd(); }

    void writeDtd(const std::string& content) const { m_folder.write("ordo-v02025.dtd", content); }
    auto find() const { return CompiledDtd::find(m_folder.file("ordo-v02025.dtd")); }

    /// Whether a ticket of copies can be read, and an empty one written: both are validated.
    static bool isUsable() {
        const std::string fine = "nothing was raised";
        const std::string read =
            ordoFailure([] { readOrdo(ordoTicket("<copies syntax='integer'>1</copies>")); });
        const std::string written = ordoFailure([] { writeOrdo({}); });
        EXPECT_THAT(read, AnyOf(fine, StartsWith("2: ")));
        EXPECT_EQ(written.substr(0, 3), read.substr(0, 3));
        return read == fine;
    }

    ScratchFolder m_folder;
};

TEST_F(CompiledDtdTest, IsLookedForInTheLibrarysFolderAlone) {
    const auto before = std::filesystem::current_path();
    writeDtd(copiesOnly);
    std::filesystem::current_path(m_folder.path());
    EXPECT_TRUE(isUsable());
    ordoDtd::setDirectory(CXString());
    EXPECT_FALSE(isUsable());
    std::filesystem::current_path(before);
}

TEST_F(CompiledDtdTest, WhatTheFileSaysNowCounts) {
    EXPECT_FALSE(isUsable());
    for (int i = 0; i < 2; ++i) {
        writeDtd(copiesOnly);
        const auto compiled = find();
        EXPECT_TRUE(isUsable());
        EXPECT_EQ(find(), compiled);
        writeDtd("<!ELEMENT ordo (other)><!ATTLIST ordo version CDATA #IMPLIED>\n");
        EXPECT_FALSE(isUsable());
    }
    writeDtd(copiesOnly);
    EXPECT_TRUE(isUsable());
    std::filesystem::remove(m_folder.path() / "ordo-v02025.dtd");
    EXPECT_FALSE(isUsable());
}

TEST_F(CompiledDtdTest, OneThatNeedsOtherFilesOrHasFaultsIsNoUse) {
    m_folder.write("rest.ent", copiesOnly);
    for (const std::string& faulty :
         {std::string("<!ENTITY % rest SYSTEM 'rest.ent'>%rest;"),
          copiesOnly + "<!ELEMENT copies EMPTY>", std::string("nonsense")}) {
        writeDtd(faulty);
        EXPECT_EQ(find(), nullptr);
        EXPECT_FALSE(isUsable());
    }
}

} // namespace
} // namespace zent::test
