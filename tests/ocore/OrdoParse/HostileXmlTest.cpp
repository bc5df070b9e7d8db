#include <span>

#include <gmock/gmock.h>

#include "ocore/AnlXlate/OrdoDtd.h"
#include "ocore/OrdoParse/TarvoXmlDataStream.h"
#include "ocore/OrdoParse/TarvoXmlParser.h"
#include "ocore/OrdoParse/XmlLimits.h"
#include "ocore/OrdoParse/ZNXMLInterface.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class HostileXmlTest : public testing::Test {
protected:
    HostileXmlTest() { useOrdoDtd(); }
};

std::string failureOf(const std::string& document) {
    return ordoFailure([&] { readOrdo(document); });
}

std::string withSubset(const std::string& subset, const std::string& jobName) {
    return "<!DOCTYPE ordo SYSTEM \"ordo-v02025.dtd\" [" + subset +
           "]>\n<ordo><job-template-attributes><job-name syntax=\"name\">" + jobName +
           "</job-name></job-template-attributes></ordo>";
}

std::string repeated(std::string_view text, std::size_t count) {
    std::string result;
    for (std::size_t i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

TEST_F(HostileXmlTest, DocumentsThatAreNoTicketsAreRefused) {
    const std::string good = ordoTicket("<copies syntax=\"integer\">2</copies>");
    const std::string rows[] = {
        "x",
        " ",
        std::string(100, '\0'),
        "<ordo/>", // no document type
        "<!DOCTYPE ordo [<!ELEMENT ordo ANY>]><ordo/>",
        good + "<",
        good + good,
        ordoTicket("<copies>2</copies>"), // no syntax
        ordoTicket("<no-such-attribute syntax=\"integer\">2</no-such-attribute>"),
        ordoDocument("<copies syntax=\"integer\">2</copies>"), // in no category
        ordoDocument("<job-template-attributes/><job-template-attributes/>"),
        ordoTicket("<copies syntax='integer'>2</copies>text"),
        ordoTicket("<value syntax='integer'>2</value>"), // a part of a value, in no attribute
        ordoTicket("<media-col syntax='collection'><copies>2</copies></media-col>"),
        ordoTicket("<job-name syntax='name' xml:space='keep'>a</job-name>"),
        ordoTicket("<copies syntax=\"integer\">&nothing;</copies>"),
        ordoTicket("<copies syntax=\"integer\">\x01</copies>"),
        ordoTicket("<copies syntax=\"integer\">\xFF</copies>"),
        ordoTicket("<copies syntax=\"integer\">&#xD800;</copies>"),
        "<?xml version=\"1.0\" encoding=\"NO-SUCH-ENCODING\"?>" + good.substr(good.find("<!DOC")),
        "<?xml version=\"9.9\"?>" + good.substr(good.find("<!DOC")),
        "<!DOCTYPE ordo SYSTEM \"no-such.dtd\"><ordo/>",
        "<!DOCTYPE other SYSTEM \"ordo-v02025.dtd\"><ordo/>",
        "<!DOCTYPE & SYSTEM \"ordo-v02025.dtd\"><ordo/>"};
    for (const std::string& document : rows) {
        EXPECT_THAT(failureOf(document),
                    AllOf(StartsWith("2: TarvoXmlParser::parse(): There was a problem with the "
                                     "ORDO stream "),
                          HasSubstr("rror at line "), HasSubstr("\"\r\nDTD name is ")))
            << document;
    }
}

TEST_F(HostileXmlTest, DocumentsCutShortAreRefused) {
    const std::string whole = ordoTicket("<job-name syntax=\"name\">a&lt;</job-name>");
    for (std::size_t length = 1; length < whole.size(); ++length) {
        EXPECT_THAT(failureOf(whole.substr(0, length)), StartsWith("2: ")) << length;
    }
    EXPECT_EQ(textOfList(readOrdo(whole)), "job-name=name:a<");
}

TEST_F(HostileXmlTest, MessagesTellEveryErrorAndQuoteTheBeginningOnly) {
    const std::string failure =
        failureOf(ordoTicket("<copies/>\r\n<wrong syntax=\"a\"/>" + repeated("<!-- -->", 2'000)));
    EXPECT_THAT(failure, HasSubstr("Error at line 3, column"));
    EXPECT_THAT(failure, HasSubstr("Error at line 4, column"));
    EXPECT_THAT(failure, HasSubstr("\r\nXML is:\r\n\r\n<?xml version=\"1.0\""));
    EXPECT_LT(failure.size(), xmlLimits::quotedBytes + 4'000);
    const std::string endless = failureOf(ordoTicket(repeated("<wrong/>", 100'000)));
    EXPECT_THAT(endless, StartsWith("2: "));
    EXPECT_LT(endless.size(), std::size_t{xmlLimits::reports} * 1'000);
}

TEST_F(HostileXmlTest, EntitiesOfADocumentAreExpandedWithinBounds) {
    EXPECT_EQ(textOfList(readOrdo(withSubset("<!ENTITY a 'x&b;'><!ENTITY b 'y'>", "1&a;2&b;"))),
              "job-name=name:1xy2y");
    EXPECT_EQ(textOfList(readOrdo(withSubset("<!ENTITY a 'x'>", repeated("&a;", 1'000)))),
              "job-name=name:" + std::string(1'000, 'x'));
    EXPECT_THAT(failureOf(withSubset("<!ENTITY a 'x'>", repeated("&a;", 1'001))),
                StartsWith("2: "));
    const std::string longest(xmlLimits::entityUnits, 'x');
    EXPECT_EQ(readOrdo(withSubset("<!ENTITY a '" + longest + "'>", "&a;")).getNumberOfNodes(), 1U);
    EXPECT_THAT(failureOf(withSubset("<!ENTITY a '" + longest + "x'>", "&a;")),
                HasSubstr("The text of an entity is longer than 65536 characters."));
}

TEST_F(HostileXmlTest, BombsAreDefused) {
    std::string general = "<!ENTITY l0 'lol'>";
    std::string parameter = "<!ENTITY % p0 ''>";
    for (int i = 1; i < 40; ++i) {
        const std::string before = std::to_string(i - 1);
        general +=
            "<!ENTITY l" + std::to_string(i) + " '" + repeated("&l" + before + ";", 10) + "'>";
        parameter += "<!ENTITY % p" + std::to_string(i) + " '" +
                     repeated("&#37;p" + before + ";", 10) + "'>";
    }
    const Rows<std::string, const char*> rows{
        {withSubset(general, "&l39;"), ""},
        {withSubset(general, "</job-name><copies syntax=\"&l39;\">1</copies>"
                             "<job-name syntax=\"name\">"),
         ""},
        {withSubset(parameter + "%p39;", "a"),
         "A document can't declare parameter entities of its own."},
        {withSubset("<!ENTITY a '&b;'><!ENTITY b '&a;'>", "&a;"), ""},
        {withSubset("<!ELEMENT x ((a|b)*,a,(a|b),(a|b))>", "a"),
         "A document can't declare element types of its own."},
        // The default of an attribute is expanded where it is declared, and for each element.
        {withSubset(general + "<!ATTLIST sides x CDATA '&l39;'>", "a"),
         "A document can't declare attributes of its own."},
    };
    for (const auto& [document, message] : rows) {
        EXPECT_THAT(failureOf(document), AllOf(StartsWith("2: "), HasSubstr(message)));
    }
}

TEST_F(HostileXmlTest, NestingHasABound) {
    const auto nested = [](std::size_t depth) { // of all elements, root and category among them
        const std::size_t values = depth - 3;
        return ordoTicket("<document-format syntax=\"1setOf\">" +
                          repeated("<value syntax=\"1setOf\">", values) +
                          repeated("</value>", values) + "</document-format>");
    };
    EXPECT_EQ(failureOf(nested(xmlLimits::depth)), "nothing was raised");
    for (const std::size_t depth : {std::size_t{101}, std::size_t{200'000}}) {
        EXPECT_THAT(failureOf(nested(depth)),
                    AllOf(HasSubstr("Fatal error at line 3, column"),
                          HasSubstr("Elements are nested deeper than 100 levels.")));
    }
}

/// Of a form without a document type, as media libraries and capability documents are.
std::string failureWithoutDtd(const std::string& document) {
    return ordoFailure([&] {
        ZNXMLInterface::Instance();
        TarvoXmlParser(u"XmlStream", false).parse(std::as_bytes(std::span(document)));
    });
}

const char* const fine = "nothing was raised";

TEST_F(HostileXmlTest, SizesHaveBounds) {
    const std::string blanks(xmlLimits::documentBytes + 1, ' ');
    EXPECT_THAT(failureOf(blanks), AllOf(StartsWith("2: "), HasSubstr("67108865 bytes")));
    const std::string longest(xmlLimits::identifierUnits, '/');
    EXPECT_THAT(failureOf("<!DOCTYPE ordo SYSTEM '" + longest + "ordo-v02025.dtd'><ordo/>"),
                HasSubstr("An identifier is longer than 4096 characters."));
}

TEST_F(HostileXmlTest, NodesOfAllKindsAreCounted) {
    const std::string tooMany = "The document has more than 1000000 nodes.";
    EXPECT_THAT(failureOf(ordoTicket(repeated("<sides syntax=''/>", xmlLimits::nodes / 2))),
                HasSubstr(tooMany));
    EXPECT_THAT(failureWithoutDtd("<a>" + repeated("<?x?>", xmlLimits::nodes) + "</a>"),
                HasSubstr(tooMany));
    // A few bytes of an entity can be many of them.
    for (const char* node : {"<?x?>", "<!---->", "<![CDATA[x]]>", "<a/>", "<a/>x", "<a b=''/>"}) {
        const std::string entity = "<!DOCTYPE a [<!ENTITY e \"" + repeated(node, 1'000) + "\">]>";
        EXPECT_EQ(failureWithoutDtd(entity + "<a>" + repeated("&e;", 99) + "</a>"), fine);
        EXPECT_THAT(failureWithoutDtd(entity + "<a>" + repeated("&e;", 201) + "</a>"),
                    HasSubstr("References to entities bring in more than 200000 nodes."))
            << node;
    }
}

TEST_F(HostileXmlTest, NamesHaveBounds) {
    const std::string longest(xmlLimits::nameUnits, 'n');
    const std::string tooLong = "A name is longer than 255 characters.";
    std::string elements;
    std::string targets;
    std::string attributes;
    for (std::size_t i = 0; i < xmlLimits::names - 1; ++i) { // and the root's
        const std::string name = "n" + std::to_string(i);
        elements += "<" + name + "/>";
        targets += "<?" + name + "?>";
        attributes += "<a " + name + "=''/>";
    }
    const std::string tooMany = "The document has more than 4096 different names.";
    const Rows<std::string, std::string> rows{
        {"<" + longest + "/>", fine},
        {"<" + longest + "n/>", tooLong},
        {"<a " + longest + "n=''/>", tooLong},
        {"<a><?" + longest + "n?></a>", tooLong},
        {"<!DOCTYPE " + longest + "n><a/>", tooLong},
        {"<!DOCTYPE a [<!ENTITY " + longest + "n ''>]><a/>", tooLong},
        {"<!DOCTYPE a [<!NOTATION " + longest + "n SYSTEM ''>]><a/>", tooLong},
        {"<a>" + elements + elements + "</a>", fine},
        {"<a>" + elements + "<one-more/></a>", tooMany},
        {"<a>" + targets + "<?one-more?></a>", tooMany},
        {"<a>" + attributes + "<a one-more=''/></a>", tooMany},
    };
    for (const auto& [document, message] : rows) {
        EXPECT_THAT(failureWithoutDtd(document), HasSubstr(message)) << document.substr(0, 300);
    }
}

// The parser's tables find a name by a hash that anyone can compute. Names that share it cost the
// square of their number, each time that they come up.
TEST_F(HostileXmlTest, NamesThatAreMadeToCollideAreRefused) {
    const auto colliding = [](std::size_t number) {
        std::string name = "n";
        for (int bit = 0; bit < 12; ++bit, number /= 2) {
            name += number % 2 == 0 ? "bA" : "ag"; // 98 * 38 + 65 == 97 * 38 + 103
        }
        return name;
    };
    std::string elements;
    std::string attributes;
    for (std::size_t i = 0; i < xmlLimits::attributesOfElement; ++i) {
        elements += i <= xmlLimits::namesOfOneHash ? "<" + colliding(i) + "/>" : "";
        attributes += " " + colliding(i) + "=''";
    }
    EXPECT_THAT(failureWithoutDtd("<a>" + elements + "</a>"),
                HasSubstr("Too many names have the same hash."));
    EXPECT_EQ(failureWithoutDtd("<a" + attributes + "/>"), fine);
    EXPECT_THAT(failureWithoutDtd("<a>" + repeated("<a" + attributes + "/>", 21) + "</a>"),
                HasSubstr("Too many elements have many attributes."));
    EXPECT_THAT(failureWithoutDtd("<a" + attributes + " one-more=''/>"),
                HasSubstr("An element has more than 1000 attributes."));
    // The tag doesn't come to its end before that.
    std::string endless = "<a";
    for (int i = 0; i < 40'000; ++i) {
        endless += " n" + std::to_string(i) + "=''";
    }
    EXPECT_THAT(failureWithoutDtd(endless + "<"),
                HasSubstr("Fatal error: the document takes more memory than its size allows"));
}

TEST_F(HostileXmlTest, DeclarationsHaveABound) {
    std::string entities;
    for (std::size_t i = 0; i < xmlLimits::declarations; ++i) {
        entities += "<!ENTITY e" + std::to_string(i) + " 'x'>";
    }
    EXPECT_EQ(textOfList(readOrdo(withSubset(entities, "&e0;&e999;"))), "job-name=name:xx");
    for (const char* another : {"<!ENTITY f ''>", "<!NOTATION n PUBLIC 'x'>"}) {
        EXPECT_THAT(failureOf(withSubset(entities + another, "a")),
                    HasSubstr("The document declares more than 1000 entities and notations."));
    }
}

TEST_F(HostileXmlTest, WhatEntitiesExpandToHasABound) {
    const std::string entity =
        "<!ENTITY e '" + std::string(xmlLimits::entityUnits, 'x') + "'><!ENTITY f 'x'>";
    const std::string most = repeated("&e;", xmlLimits::expandedUnits / xmlLimits::entityUnits);
    EXPECT_EQ(failureOf(withSubset(entity, most)), fine);
    EXPECT_THAT(failureOf(withSubset(entity, most + "&f;")),
                HasSubstr("References to entities bring in more than 16777216 characters."));
    const std::string inAttribute = "</job-name><copies syntax='" + most +
                                    "&e;'>1</copies>"
                                    "<job-name syntax='name'>";
    EXPECT_THAT(failureOf(withSubset(entity, inAttribute)), StartsWith("2: "));
}

TEST_F(HostileXmlTest, TheRootAndItsCategoriesStandNowhereElse) {
    for (const std::string name : {"ordo", "ordo-operation-attributes"}) {
        EXPECT_THAT(failureOf(ordoTicket("<" + name + "/>")), HasSubstr("Error at line 3"));
        for (const char* attribute : {"media-col", "value"}) {
            EXPECT_EQ(failureOf(ordoTicket("<copies syntax='1setOf'><" + std::string(attribute) +
                                           " syntax='1setOf'><" + name + "/></" + attribute +
                                           "></copies>")),
                      "2: OrdoDomDoc::isContainerNode(): " + name + " can't stand in " + attribute +
                          "!\r\n");
        }
    }
}

class ExternalEntityTest : public HostileXmlTest {
protected:
    ExternalEntityTest() {
        std::filesystem::create_directory(m_folder.path() / "dtd");
        std::filesystem::copy_file(std::filesystem::path(programFolder().toNarrow()) /
                                       "ordo-v02025.dtd",
                                   m_folder.path() / "dtd" / "ordo-v02025.dtd");
        m_folder.write("dtd/beside.ent", "<?xml encoding='UTF-8'?>beside");
        m_folder.write("above.ent", "above");
        ordoDtd::setDirectory(m_folder.file("dtd/"));
    }
    ~ExternalEntityTest() override { useOrdoDtd(); }

    static std::string including(const std::string& systemId) {
        return withSubset("<!ENTITY e SYSTEM \"" + systemId + "\">", "&e;");
    }

    ScratchFolder m_folder;
};

TEST_F(ExternalEntityTest, TheLibrarysOwnDocumentTypeIsMeantByItsFileName) {
    const std::string folders[] = {"",
                                   "./",
                                   "../x/",
                                   R"(schemas\)",
                                   "/no/such/folder/",
                                   "file:///C:/Program%20Files/x/",
                                   "file://host/x/",
                                   "http://127.0.0.1:1/",
                                   "https://host/a?b#",
                                   R"(C:\Program Files\x\)",
                                   R"(\\127.0.0.1\x\)",
                                   m_folder.file("dtd/").toNarrow()};
    for (const std::string& folder : folders) {
        std::string document = withSubset("<!ENTITY e 'x'>", "&e;");
        document.insert(document.find("ordo-v02025.dtd"), folder);
        EXPECT_EQ(textOfList(readOrdo(document)), "job-name=name:x") << folder;
        document = ordoTicket("<copies syntax='integer'>2</copies>");
        document.insert(document.find("ordo-v02025.dtd"), folder);
        EXPECT_EQ(textOfList(readOrdo(document)), "copies=2") << folder;
    }
}

TEST_F(ExternalEntityTest, NothingElseIsEverOpened) {
    const std::string above = m_folder.file("above.ent").toNarrow();
    const std::string folder = m_folder.file("dtd/").toNarrow();
    const std::string rows[] = {"beside.ent",
                                folder + "beside.ent",
                                "./beside.ent",
                                "../above.ent",
                                R"(..\above.ent)",
                                above,
                                "file://" + above,
                                "http://127.0.0.1:1/x",
                                "no-such.ent",
                                ".",
                                "",
                                "ordo-v02025.dtd?x",
                                "ordo-v02025.dtd/",
                                "ORDO-V02025.DTD",
                                "ordo-v02025.dt",
                                R"(\\127.0.0.1\x\y.ent)",
                                folder};
    for (const std::string& name : rows) {
        EXPECT_THAT(failureOf(including(name)), StartsWith("2: ")) << name;
        EXPECT_THAT(failureOf("<!DOCTYPE ordo SYSTEM \"" + name + "\"><ordo/>"), StartsWith("2: "))
            << name;
    }
    // It can be read as a document type alone.
    EXPECT_THAT(failureOf(including("ordo-v02025.dtd")), StartsWith("2: "));
}

TEST_F(ExternalEntityTest, DocumentsWithoutADocumentTypeHaveNoFolder) {
    ZNXMLInterface::Instance();
    const std::string document = "<!DOCTYPE a [<!ENTITY e SYSTEM \"beside.ent\">]><a>&e;</a>";
    for (const CXString& name : {CXString(u"XmlStream"), m_folder.file("dtd/a.xml")}) {
        TarvoXmlParser parser(name, false);
        EXPECT_THAT(ordoFailure([&] { parser.parse(std::as_bytes(std::span(document))); }),
                    StartsWith("2: "));
    }
}

} // namespace
} // namespace zent::test
