#include <set>

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureSettings.h"
#include "ocore/OrdoParse/OrdoCategories.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

std::string readDtd() { return readTestFile("../resources/ordo-v02025.dtd"); }

/// The names that follow `keyword` in declarations, in order.
std::vector<std::string> declared(const std::string& keyword) {
    const std::string dtd = readDtd();
    std::vector<std::string> names;
    for (auto at = dtd.find(keyword); at != std::string::npos; at = dtd.find(keyword, at + 1)) {
        const auto begin = dtd.find_first_not_of(' ', at + keyword.size());
        names.push_back(dtd.substr(begin, dtd.find_first_of(" \r\n>", begin) - begin));
    }
    return names;
}

/// Whether an attribute stands in a ticket by itself, not within another one.
bool isOfTicket(const std::string& name) {
    return findOrdoCategory(CXString(name.c_str())) != OrdoCategory::none;
}

TEST(OrdoDtdTest, DeclaresTheElementsOfATicketOnceAndNothingElse) {
    std::set<std::string> wanted = {"ordo",           "ordo-operation-attributes",
                                    "value",          "job-template-attributes",
                                    "lower-bound",    "upper-bound",
                                    "feed-direction", "cross-feed",
                                    "units"};
    for (const std::string& name : declared("<!ELEMENT ")) {
        if (isOfTicket(name)) {
            wanted.insert(name);
        }
    }
    for (FeatureEnum feature = feature::first; feature <= feature::last; ++feature) {
        const NestedAttrID& id = _FI(feature).getNestedAttrID();
        wanted.insert(id.getAttrID().getText().toNarrow());
        for (std::uint32_t i = 0; i < id.getDepth(); ++i) {
            wanted.insert(id.getParentName(i).toNarrow());
        }
    }
    for (const char* keyword : {"<!ELEMENT ", "<!ATTLIST "}) {
        const std::vector<std::string> names = declared(keyword);
        EXPECT_EQ(std::set<std::string>(names.begin(), names.end()), wanted) << keyword;
        EXPECT_EQ(names.size(), wanted.size()) << keyword << "stands twice for a name";
    }
}

bool isOfSkeleton(const std::string& name) {
    return name == "ordo" || name == "ordo-operation-attributes" ||
           name == "job-template-attributes";
}

// A parser would add a default to the ticket, and it would be written out as if it had been set.
TEST(OrdoDtdTest, AddsNothingToATicket) {
    const std::string dtd = readDtd();
    EXPECT_EQ(dtd.find("#FIXED"), std::string::npos);
    for (const std::string keyword : {"<!ATTLIST ", "<!ENTITY "}) {
        for (auto at = dtd.find(keyword); at != std::string::npos; at = dtd.find(keyword, at + 1)) {
            const std::string declaration = dtd.substr(at, dtd.find('>', at) - at);
            const bool isEntity = keyword == "<!ENTITY "; // whose whole text is in quotes
            EXPECT_EQ(split(declaration + '.', '"').size(), isEntity ? 3U : 1U) << declaration;
            EXPECT_EQ(declaration.find('\''), std::string::npos) << declaration;
        }
    }
}

// What can be set, in whatever syntax, can be exported; so it must come in again.
TEST(OrdoDtdTest, WhatIsWrittenInAnySyntaxAtAnyPlaceIsReadAsItWas) {
    useOrdoDtd();
    const std::string syntaxes[] = {"=5",
                                    "=enum:5",
                                    "=boolean:true",
                                    "=a",
                                    "=name:a",
                                    "=text:a",
                                    "=uri:a",
                                    "=mimeMediaType:a/b",
                                    "[value=a value{copies=1}]",
                                    "{copies=1 value=2}",
                                    "(lower-bound=1 upper-bound=5)",
                                    "<cross-feed=6 feed-direction=6 units=3>"};
    const std::pair<std::string, std::string> places[] = {
        {"cover-front{", "}"},           {"cover-back{", "}"},
        {"page-overrides[value{", "}]"}, {"insert-sheet[value{", "}]"},
        {"separator-sheets{", "}"},      {"pcl-paper-source-col[value{", "}]"},
        {"media-col{media-size{", "}}"}, {"copies(lower-bound(", "))"},
    };
    for (const std::string& syntax : syntaxes) {
        std::string top;
        std::string anywhere;
        for (const std::string& name : declared("<!ELEMENT ")) {
            if (!isOfSkeleton(name)) {
                (isOfTicket(name) ? top : anywhere) += name + syntax + ' ';
            }
        }
        std::string ticket = top;
        for (const auto& [before, after] : places) {
            ticket.append(before).append(top).append(anywhere).append(after).append(" ");
        }
        const AttrNodeList list = listOf(ticket);
        EXPECT_EQ(textOfList(readOrdo(writeOrdo(list))), textOfList(list));
    }
}

} // namespace
} // namespace zent::test
