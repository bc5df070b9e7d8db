#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include "expected/ExpectedTable.h"
#include "ocore/OrdoParse/ParserMemory.h"

namespace zent::test {
namespace {

const std::string dtdPath = "../resources/ordo-v02025.dtd";

/// One step of a feature's place: an element and its syntax.
struct Step {
    std::string name;
    std::string syntax;
};

/// "forms-col:s / value:c" as steps; then the feature itself, unless "value" stands for it.
std::vector<Step> pathOf(const ExpectedRow& feature) {
    const std::string syntax = split(feature.text("syntaxes"))[0];
    std::vector<Step> path;
    for (const std::string& word : split(feature.text("location"))) {
        if (const auto colon = word.find(':'); colon != std::string::npos) {
            path.push_back(
                {word.substr(0, colon), word[colon + 1] == 's' ? "1setOf" : "collection"});
        } else if (word == "value") {
            path.push_back({word, syntax});
        }
    }
    if (!feature.text("location").ends_with("/ value")) {
        path.push_back({feature.text("uniqueId"), syntax});
    }
    return path;
}

std::string element(const std::string& name, const std::string& syntax,
                    const std::string& content) {
    return "<" + name + " syntax=\"" + syntax + "\">" + content + "</" + name + ">";
}

std::string contentOf(const std::string& syntax) {
    if (syntax == "rangeOfInteger") {
        return element("lower-bound", "integer", "1") + element("upper-bound", "integer", "2");
    }
    if (syntax == "resolution") {
        return element("cross-feed", "integer", "600") +
               element("feed-direction", "integer", "600") + element("units", "integer", "3");
    }
    return syntax == "collection" ? "" : "1";
}

/// The feature's attribute in all its parents.
std::string attributeOf(const ExpectedRow& feature) {
    const std::vector<Step> path = pathOf(feature);
    std::string xml = contentOf(path.back().syntax);
    for (auto step = path.rbegin(); step != path.rend(); ++step) {
        xml = element(step->name, step->syntax, xml);
    }
    return xml;
}

std::string categoryElement(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

/// Collects what a validating parser has to say.
class Complaints : public xercesc::HandlerBase {
public:
    void warning(const xercesc::SAXParseException& exception) override { error(exception); }
    void fatalError(const xercesc::SAXParseException& exception) override { error(exception); }
    void error(const xercesc::SAXParseException& exception) override {
        char* message = xercesc::XMLString::transcode(exception.getMessage());
        text += std::string(message) + "\n";
        xercesc::XMLString::release(&message);
    }
    std::string text;
};

/// The complaints about a ticket that holds `content` in its root; empty if it is valid.
std::string complaintsAbout(const std::string& content) {
    const std::string document = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
                                 "<!DOCTYPE ordo SYSTEM \"ordo-v02025.dtd\">\r\n"
                                 "<ordo version=\"1.0\" krss-version=\"2.01\" xml:lang=\"en-US\">" +
                                 content + "</ordo>";
    static const std::string dtd = readTestFile(dtdPath);

    /// Gives out the document type without a file name, which differs between systems.
    class Resolver : public xercesc::EntityResolver {
    public:
        xercesc::InputSource* resolveEntity(const XMLCh*, const XMLCh*) override {
            return new xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(dtd.data()),
                                                  dtd.size(), "ordo-v02025.dtd");
        }
    };

    Complaints complaints;
    Resolver resolver;
    ParserMemory memory; // or what the parser loses would be a leak
    xercesc::XercesDOMParser parser(nullptr, &memory);
    parser.setValidationScheme(xercesc::XercesDOMParser::Val_Always);
    parser.setErrorHandler(&complaints);
    parser.setEntityResolver(&resolver);
    parser.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(document.data()),
                                            document.size(), "ticket"));
    return complaints.text;
}

class OrdoDtdTest : public testing::Test {
protected:
    OrdoDtdTest() { xercesc::XMLPlatformUtils::Initialize(); }
    ~OrdoDtdTest() override { xercesc::XMLPlatformUtils::Terminate(); }
};

/// The names that follow `keyword` in declarations, in order.
std::vector<std::string> declared(const std::string& dtd, const std::string& keyword) {
    std::vector<std::string> names;
    for (auto at = dtd.find(keyword); at != std::string::npos; at = dtd.find(keyword, at + 1)) {
        const auto begin = dtd.find_first_not_of(' ', at + keyword.size());
        names.push_back(dtd.substr(begin, dtd.find_first_of(" \r\n>", begin) - begin));
    }
    return names;
}

TEST_F(OrdoDtdTest, DeclaresTheElementsOfATicketOnceAndNothingElse) {
    std::set<std::string> wanted = {"ordo",           "ordo-operation-attributes",
                                    "value",          "job-template-attributes",
                                    "lower-bound",    "upper-bound",
                                    "feed-direction", "cross-feed",
                                    "units"};
    for (const ExpectedRow& row : readExpectedTable("categories.tsv")) {
        wanted.insert(row.text("name"));
    }
    for (const ExpectedRow& row : readExpectedTable("features.tsv")) {
        for (const Step& step : pathOf(row)) {
            wanted.insert(step.name);
        }
    }

    const std::string dtd = readTestFile(dtdPath);
    for (const char* keyword : {"<!ELEMENT ", "<!ATTLIST "}) {
        const std::vector<std::string> names = declared(dtd, keyword);
        EXPECT_EQ(std::set<std::string>(names.begin(), names.end()), wanted) << keyword;
        EXPECT_EQ(names.size(), wanted.size()) << keyword << "stands twice for a name";
    }
}

// A parser would add a default to the ticket, and it would be written out as if it had been set.
TEST_F(OrdoDtdTest, AddsNothingToATicket) {
    const std::string dtd = readTestFile(dtdPath);
    EXPECT_EQ(dtd.find("#FIXED"), std::string::npos);
    for (auto at = dtd.find("<!ATTLIST "); at != std::string::npos;
         at = dtd.find("<!ATTLIST ", at + 1)) {
        EXPECT_EQ(dtd.substr(at, dtd.find('>', at) - at).find_first_of("\"'"), std::string::npos);
    }

    const auto entity = dtd.find("<!ENTITY % ipp ");
    ASSERT_NE(entity, std::string::npos);
    const std::vector<std::string> words =
        split(dtd.substr(entity, dtd.find('>', entity) - entity), '"');
    ASSERT_EQ(words.size(), 2U) << "a default would be in quotes of its own";
    EXPECT_EQ(words[1].find('\''), std::string::npos);
    EXPECT_NE(words[1].find("#REQUIRED"), std::string::npos);
}

TEST_F(OrdoDtdTest, AcceptsATicketThatSaysNothing) {
    EXPECT_EQ(complaintsAbout(""), "");
    EXPECT_EQ(complaintsAbout("\r\n\t"), "");
    EXPECT_EQ(complaintsAbout("<ordo-operation-attributes/>"), "");
    EXPECT_EQ(complaintsAbout("<job-template-attributes/><ordo-operation-attributes/>"), "");
}

TEST_F(OrdoDtdTest, AcceptsEachFeatureAtItsPlace) {
    std::set<std::string> topLevel;
    for (const ExpectedRow& row : readExpectedTable("categories.tsv")) {
        topLevel.insert(row.text("name"));
    }
    std::string all;
    for (const ExpectedRow& row : readExpectedTable("features.tsv")) {
        const std::string attribute = attributeOf(row);
        const std::string override =
            element("page-overrides", "1setOf", element("value", "collection", attribute));
        const std::string cover = element("cover-front", "collection", attribute);
        std::string content = override + cover;
        if (topLevel.contains(pathOf(row)[0].name)) {
            content += attribute;
        }
        EXPECT_EQ(complaintsAbout(categoryElement("job-template-attributes", content)), "")
            << row.text("uniqueId");
        all += content;
    }
    EXPECT_EQ(complaintsAbout(categoryElement("job-template-attributes", all)), "");
}

TEST_F(OrdoDtdTest, AcceptsEachListedAttributeInEitherCategory) {
    std::string operation;
    std::string jobTemplate;
    for (const ExpectedRow& row : readExpectedTable("categories.tsv")) {
        const std::string attribute = "<" + row.text("name") + " syntax=\"keyword\"/>";
        operation += attribute;
        jobTemplate.insert(0, attribute); // any order
    }
    EXPECT_EQ(complaintsAbout(categoryElement("ordo-operation-attributes", operation) +
                              categoryElement("job-template-attributes", jobTemplate)),
              "");
}

TEST_F(OrdoDtdTest, RefusesWhatIsNoTicket) {
    const char* const contents[] = {
        "<copies syntax=\"integer\">2</copies>",                                 // in no category
        "<job-template-attributes/><job-template-attributes/>",                  // a category twice
        "<job-template-attributes><copies>2</copies></job-template-attributes>", // no syntax
        "<job-template-attributes><copys syntax=\"integer\">2</copys></job-template-attributes>",
        "<job-template-attributes><copies syntax=\"integer\"><sides syntax=\"keyword\"/></copies>"
        "</job-template-attributes>",
        "<job-template-attributes><media-col syntax=\"collection\"><copies syntax=\"integer\">2"
        "</copies></media-col></job-template-attributes>",
        "<job-template-attributes><job-name syntax=\"name\" xml:space=\"keep\">a</job-name>"
        "</job-template-attributes>",
    };
    for (const char* content : contents) {
        EXPECT_NE(complaintsAbout(content), "") << content;
    }
}

} // namespace
} // namespace zent::test
