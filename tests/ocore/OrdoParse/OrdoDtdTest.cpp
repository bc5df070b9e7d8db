#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "expected/ExpectedTable.h"
#include "ocore/FeatureSettings/FeatureSettings.h"
#include "ocore/OrdoParse/OrdoCategories.h"
#include "support/ListText.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

constexpr FeatureEnum lastFeature = 137;

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

TEST(OrdoDtdTest, DeclaresTheElementsOfATicketOnceAndNothingElse) {
    std::set<std::string> wanted = {"ordo",           "ordo-operation-attributes",
                                    "value",          "job-template-attributes",
                                    "lower-bound",    "upper-bound",
                                    "feed-direction", "cross-feed",
                                    "units"};
    for (const ExpectedRow& row : readExpectedTable("categories.tsv")) {
        wanted.insert(row.text("name"));
    }
    for (FeatureEnum feature = 2; feature <= lastFeature; ++feature) {
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

/// A ticket that says one feature.
FeatureSettings ticketOf(const _FI& feature) {
    FeatureSettings ticket;
    const CXString& syntax = feature.getSyntax(0);
    if (syntax == syntax::rangeOfInteger) {
        ticket.setRange(feature, 1, 2);
    } else if (syntax == syntax::resolution) {
        ticket.setResolution(feature, Resolution(600, 600, 3));
    } else if (syntax == syntax::collection) {
        ticket.setNestedSettings(feature, FeatureSettings());
    } else {
        ticket.setAttribute(feature, u"1", syntax);
    }
    return ticket;
}

TEST(OrdoDtdTest, AcceptsEachFeatureAtItsPlace) {
    useOrdoDtd();
    for (FeatureEnum number = 2; number <= lastFeature; ++number) {
        const FeatureSettings inside = ticketOf(_FI(number));
        const AttrNode& top = inside.getAttrNodeList()->getNodeAt(0);
        FeatureSettings ticket;
        if (findOrdoCategory(top.getName()) != OrdoCategory::none) {
            ticket = inside;
        }
        ticket.setNestedSettings(_FI(feature::coverFront), inside);
        ticket.setNestedSettings(_FI(feature::pageOverrides), inside, 1);
        const std::string text = textOfList(*ticket.getAttrNodeList());
        std::string read;
        EXPECT_EQ(
            ordoFailure([&] { read = textOfList(readOrdo(writeOrdo(*ticket.getAttrNodeList()))); }),
            "nothing was raised")
            << text;
        if (!_FI(number).hasAVTE(AVTE_LIST) || _FI(number).hasSyntax(syntax::rangeOfInteger)) {
            EXPECT_EQ(read, text); // an empty collection is lost on the way
        }
    }
}

TEST(OrdoDtdTest, AcceptsEachListedAttributeInEitherCategory) {
    useOrdoDtd();
    std::string operation;
    std::string jobTemplate;
    for (const ExpectedRow& row : readExpectedTable("categories.tsv")) {
        const std::string attribute = "<" + row.text("name") + " syntax=\"keyword\"/>";
        operation += attribute;
        jobTemplate.insert(0, attribute); // any order
    }
    EXPECT_EQ(textOfList(readOrdo(ordoDocument(
                  "<ordo-operation-attributes>" + operation + "</ordo-operation-attributes>" +
                  "<job-template-attributes>" + jobTemplate + "</job-template-attributes>"))),
              "");
}

} // namespace
} // namespace zent::test
