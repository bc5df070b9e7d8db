#include "ocore/Ajt/TarvoAjtTranslator.h"

#include "ocore/Capabilities/Capabilities.h"
#include "ocore/FeatureSettings/FeatureTable.h"
#include "ocore/FeatureSettings/FeatureValueTable.h"
#include "ocore/Printer/CreateStreamTranslator.h"
#include "support/OrdoDocument.h"

namespace zent::test {
namespace {

class Writes : public Stream {
public:
    bool write(std::string_view bytes) override {
        ++count;
        text += bytes;
        return true;
    }
    int count = 0;
    std::string text;
};

std::string streamOf(const std::string& ticket, const AjtPrinterTraits& traits) {
    Writes stream;
    TarvoAjtTranslator(traits).translate(listOf(ticket), stream);
    EXPECT_EQ(stream.count, 1) << "the whole stream in one piece";
    return stream.text;
}

/// The lines of a stream that another hasn't, without the keywords' common beginning.
std::string linesBeside(const std::string& other, const std::string& stream) {
    std::string lines;
    for (std::size_t start = 0; start < stream.size();) {
        const std::size_t end = stream.find('\n', start) + 1;
        const std::string line = stream.substr(start, end - start);
        lines += other.find(line) == std::string::npos ? line.substr(4) : "";
        start = end;
    }
    return lines;
}

/// The lines that a ticket adds to those of an empty one.
std::string linesOf(const std::string& ticket, const AjtPrinterTraits& traits) {
    return linesBeside(streamOf("", traits), streamOf(ticket, traits));
}

class TarvoAjtTranslatorTest : public testing::Test {
protected:
    TarvoAjtTranslatorTest() {
        useResourceLibrary();
        plain.mediaSizeLimits = {17800, 47000, 25400, 35600};
        full = {true, true, true, true, true, plain.mediaSizeLimits};
    }
    AjtPrinterTraits plain;
    AjtPrinterTraits full;
};

TEST_F(TarvoAjtTranslatorTest, EachFeatureGivesItsLines) {
    const Rows<const char*, const char*> rows{
        // A blank for each line end; CR LF is looked for before LF CR.
        {"job-name=name:a\r\nb\n\rc\rd\n", "title: a b c d \n"},
        {"job-account-id=name:\n\r\n", "account:   \n"},
        {"job-sheet-message=text:m", "message: m\n"},
        {"imposition-template=none", "signature: False\n"},
        {"imposition-template=name:two-up", ""},
        {"page-ranges[value(lower-bound=3 upper-bound=9) value(lower-bound=12 upper-bound=14)]",
         "pagesToPrint: 3 9\n"},
        {"page-ranges[value(lower-bound=3)]", ""},
        {"finishings[value=enum:14 value=enum:20]", ""},
        {"finishings[value=enum:999]", ""},
        {"separator-sheets{separator-sheets-type=none} finishings[value=enum:20]",
         "requirements: slipSheeting\n"},
        // Cut to whole millimetres, toward zero.
        {"x-side1-image-shift=1999 y-side1-image-shift=-1999",
         "xImageShift: 19\nyImageShift: -19\n"},
        {"x-side2-image-shift=-99 y-side2-image-shift=100", "x2ImageShift: 0\ny2ImageShift: 1\n"},
        {"sides=one-sided x-side2-image-shift=100", "requirements: simplex\n"},
        {"job-save-disposition{save-disposition=none save-info[value{save-name=name:a}]}", ""},
        {"highlight-colorant=use-ready highlight-map-color=yellow highlight-colorant-mismatch=stop",
         "highlightMappingColor: yellow\n"},
        {"highlight-colorant=name:mauve highlight-map-color=name:mauve highlight-map=name:mauve",
         ""},
        {"media-col{media-type=pre-cut-tabs media-hole-count=3}",
         "paperType-opacity: opaque\npaperType-preFinish: DrilledPreCutTab 3 0\n"},
        {"media-col{media-type=transparency media-hole-count=2}",
         "paperType-opacity: transparency\npaperType-preFinish: Plain 0 0\n"},
        {"media-col{media-type=labels media-order-count=4}",
         "paperType-opacity: opaque\npaperType-preFinish: labels 0 4\n"},
        {"cover-front{copies=1} cover-back{}",
         "cover-front: noImage 216 279 white opaque Plain 0 0 75\n"},
        {"insert-sheet[value{insert-count=2} value{insert-after-page-number=4}]",
         "blankPageInserts: 4 1 216 279 white opaque Plain 0 0 75\n"},
        {"page-overrides[value{sides=one-sided}]", ""},
        {"requesting-user-name=name:Jürgen", "senderName: Jürgen\n"},
    };
    for (const auto& [ticket, lines] : rows) {
        EXPECT_EQ(linesOf(ticket, plain), lines) << ticket;
    }
}

TEST_F(TarvoAjtTranslatorTest, MediaAreTurnedAsThePrinterTakesThem) {
    // The size in the ticket, and as written for a signature and otherwise.
    const Rows<std::string, std::string, std::string> rows{
        {"x-dimension=17800 y-dimension=35600", "178 356", "178 356"},
        {"x-dimension=29700 y-dimension=21000", "210 297", "210 297"},
        {"x-dimension=29700 y-dimension=42000", "297 420", "420 297"},
        {"x-dimension=47100 y-dimension=10000", "100 471", "471 100"}, // fits neither way
        {"x-dimension=22900 y-dimension=30000", "229 300", "229 300"},
        {"x-dimension=22901 y-dimension=30000", "300 229", "229 300"},
    };
    for (const auto& [size, forSignature, written] : rows) {
        const std::string media = "media-col{media-size{" + size + "}}";
        const std::string ticket = media + " imposition-template=signature";
        EXPECT_EQ(linesOf(media, full), "paperType-size: " + written + "\n");
        EXPECT_EQ(linesOf(ticket, full), "signature: True\npaperType-size: " + forSignature + "\n");
        EXPECT_EQ(linesOf(ticket, plain), "signature: True\npaperType-size: " + written + "\n");
    }
}

TEST_F(TarvoAjtTranslatorTest, WeightsOfTheJobCountWhereThePrinterKnowsWeights) {
    const std::string ticket =
        "media-col{media-weight-metric=90} cover-front{cover-type=print-both}";
    EXPECT_EQ(linesOf(ticket, plain),
              "paperType-weight: 90\ncover-front: both 216 279 white opaque Plain 0 0 75\n");
    EXPECT_EQ(linesOf(ticket, full),
              "paperType-weight: 90\ncover-front: both 216 279 white opaque Plain 0 0 90\n");
}

std::string omissionsOf(const AttrNodeList& ticket, const AjtPrinterTraits& traits) {
    std::string paths;
    for (const AjtOmission& omission : TarvoAjtTranslator(traits).findOmissions(ticket)) {
        paths += (paths.empty() ? "" : " ") + omission.path.toNarrow();
    }
    return paths;
}

TEST_F(TarvoAjtTranslatorTest, OmissionsAreWhatNoLineSpeaksOf) {
    const Rows<const char*, const char*> rows{
        {"output-bin=stacker !media-key=a job-offset[value=none]", "output-bin job-offset"},
        {"page-ranges[value(lower-bound=3 upper-bound=9) value(lower-bound=12 upper-bound=14)]",
         "page-ranges[2]"},
        {"page-ranges[value(lower-bound=3)]", "page-ranges"},
        {"finishings[value=enum:20 value=enum:22 value=enum:110]", "finishings[2] finishings[3]"},
        {"separator-sheets{separator-sheets-type=slip-sheets} finishings[value=enum:20]",
         "finishings"},
        {"job-save-disposition{save-disposition=none save-info[value{save-name=name:a}]}",
         "job-save-disposition/save-info"},
        {"media-col{media-size{x-dimension=100} media-hole-count=2}", "media-col"},
        {"media-col{media-type=stationery media-hole-count=2 media-order-count=4}",
         "media-col/media-hole-count media-col/media-order-count"},
        {"insert-sheet[value{insert-count=2} value{insert-after-page-number=4}]",
         "insert-sheet[1]"},
        {"page-overrides[value{input-documents[value(lower-bound=1 upper-bound=1)]"
         " pages[value(lower-bound=1 upper-bound=2) value(lower-bound=4 upper-bound=4)]"
         " x-side2-image-shift=0 y-side2-image-shift=1 toner-saver=none}]",
         "page-overrides[1]/pages[2] page-overrides[1]/x-side2-image-shift "
         "page-overrides[1]/toner-saver"},
        {"page-overrides[value{input-documents[value(lower-bound=2 upper-bound=2)]"
         " pages[value(lower-bound=1 upper-bound=2)]} value{input-documents[value=1]"
         " pages[value(lower-bound=3 upper-bound=3)]}]",
         "page-overrides[1]/input-documents page-overrides[2]/input-documents"},
        {"copies=2 copies=3", "copies"},
    };
    for (const auto& [ticket, paths] : rows) {
        EXPECT_EQ(omissionsOf(listOf(ticket), plain), paths) << ticket;
    }
}

/// Gives a feature each value that it is known by, or else one of each of its syntaxes, and hands
/// over what the settings are then.
template <typename Visit>
void visitValuesOf(FeatureEnum feature, const FeatureSettings& settings, const Visit& visit) {
    const _FI setting(feature);
    const auto visitText = [&](const CXString& text, const CXString& syntax) {
        FeatureSettings changed(*settings.getAttrNodeList());
        changed.setAttribute(setting, text, syntax);
        visit(changed);
    };
    for (const auto& values : {getLowerValueRows(), getUpperValueRows()}) {
        for (const FeatureValueRow& row : values) {
            if (std::ranges::find(row.features, feature) != row.features.end()) {
                visitText(row.text, row.syntax);
            }
        }
    }
    for (std::uint32_t i = 0; i < setting.getSyntaxes().getSyntaxCount(); ++i) {
        FeatureSettings changed(*settings.getAttrNodeList());
        switch (setting.getAVTE(i)) {
        case AVTE_INTEGER:
        case AVTE_ENUM:
            visitText(u"7", setting.getSyntax(i));
            visitText(u"900", setting.getSyntax(i));
            break;
        case AVTE_LIST:
            if (setting.getSyntax(i) == syntax::rangeOfInteger) {
                changed.setRange(setting, 2, 5);
                visit(changed);
            }
            break;
        case AVTE_KEYWORD:
            break;
        default:
            visitText(u"of my own", setting.getSyntax(i));
        }
    }
}

/// The way to the first value of a feature in a part of a ticket, as paths of omissions have it.
std::string wayTo(FeatureEnum part, FeatureEnum feature) {
    std::string way;
    bool isInSet = false;
    const auto add = [&](const CXString& name, bool isSet) {
        way += isInSet ? "[1]" : (way.empty() ? "" : "/") + name.toNarrow();
        isInSet = isSet;
    };
    for (const FeatureEnum each : {part, feature}) {
        if (each != TJTF_ANY) {
            const NestedAttrID& id = _FI(each).getNestedAttrID();
            for (std::uint32_t i = id.getDepth(); i > 0; --i) {
                add(id.getParentName(i - 1), id.getParentSyntax(i - 1) == syntax::setOf);
            }
            add(id.getAttrID().getText(), false);
        }
    }
    return way;
}

// What makes a line is no omission, and what never does is one. Each feature stands in each part of
// a ticket, alone and beside what some lines depend on.
TEST_F(TarvoAjtTranslatorTest, OmissionsAgreeWithTheStream) {
    const std::string beside =
        "media-col{media-type=pre-cut-tabs media-size{x-dimension=100 y-dimension=200}} "
        "job-save-disposition{save-disposition=save-only}";
    const std::string range = "[value(lower-bound=1 upper-bound=2)]";
    // The part of the ticket, and what it holds at least.
    const Rows<FeatureEnum, std::string> parts{
        {TJTF_ANY, ""},
        {TJTF_ANY, beside},
        {feature::coverFront, "cover-type=print-both"},
        {feature::coverBack, beside},
        {feature::insertSheet, "insert-after-page-number=4"},
        {feature::insertSheet, "insert-after-page-number=4 " + beside},
        {feature::pageOverrides, "pages" + range},
        {feature::pageOverrides, "pages" + range + " " + beside},
    };
    const auto inPart = [](FeatureEnum part, const FeatureSettings& settings) {
        FeatureSettings ticket(settings);
        if (part != TJTF_ANY) {
            ticket = FeatureSettings();
            ticket.setNestedSettings(_FI(part), settings);
        }
        return ticket;
    };
    TarvoAjtTranslator translator(full);
    const auto translate = [&](const FeatureSettings& ticket) {
        Writes stream;
        translator.translate(*ticket.getAttrNodeList(), stream);
        return stream.text;
    };
    for (const auto& [part, content] : parts) {
        const FeatureSettings settings(listOf(content));
        for (const FeatureRow& row : getFeatureRows()) {
            FeatureSettings without(*settings.getAttrNodeList());
            without.setFeatureValue(_FI(row.feature), FeatureValue());
            const std::string streamWithout = translate(inPart(part, without));
            const std::string way = wayTo(part, row.feature);
            bool isEverWritten = false;
            bool isEverTaken = false;
            visitValuesOf(row.feature, without, [&, part = part](const FeatureSettings& with) {
                const FeatureSettings ticket = inPart(part, with);
                const auto omissions = translator.findOmissions(*ticket.getAttrNodeList());
                const bool isOmitted = std::ranges::any_of(omissions, [&](const auto& one) {
                    const std::string path = one.path.toNarrow();
                    return way.starts_with(path) &&
                           (path.size() == way.size() || way[path.size()] == '/' ||
                            way[path.size()] == '[');
                });
                const bool isWritten = !linesBeside(streamWithout, translate(ticket)).empty();
                EXPECT_FALSE(isWritten && isOmitted) << textOfList(*ticket.getAttrNodeList());
                isEverWritten = isEverWritten || isWritten;
                isEverTaken = isEverTaken || !isOmitted;
            });
            EXPECT_EQ(isEverWritten, isEverTaken) << way;
        }
    }
}

TEST_F(TarvoAjtTranslatorTest, AFailureWritesNothing) {
    for (const char* const ticket :
         {"sides=three-sided", "copies=two", "page-overrides[value=3]",
          "page-overrides[value{pages[value(lower-bound=1 upper-bound=1)] page-rotation=up}]"}) {
        Writes stream;
        EXPECT_THROW(TarvoAjtTranslator(plain).translate(listOf(ticket), stream), TarvoException)
            << ticket;
        EXPECT_EQ(stream.count, 0) << ticket;
    }
}

// One printer of each family that takes the stream. The expected streams were worked out from
// the rules of the stream by a script that shared nothing with this library.
TEST_F(TarvoAjtTranslatorTest, FullTicketsOfEachFamily) {
    useOrdoDtd();
    const Rows<std::string, std::uint32_t> rows{{"family-07", 1},  {"family-11", 17},
                                                {"family-12", 25}, {"family-13", 32},
                                                {"family-14", 16}, {"family-17", 4}};
    for (const auto& [name, model] : rows) {
        const std::string path = "golden/ajt/" + name;
        const AttrNodeList ticket = readOrdo(readTestFile(path + ".xml"));
        const Capabilities capabilities(PrinterModel(model, pageLanguage::postScript), 2);
        Writes stream;
        createStreamTranslator(capabilities, 2)->translate(ticket, stream);
        EXPECT_EQ(stream.text, readTestFile(path + ".golden")) << name;
    }
}

} // namespace
} // namespace zent::test
