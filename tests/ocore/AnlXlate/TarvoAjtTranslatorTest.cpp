#include "ocore/AnlXlate/TarvoAjtTranslator.h"

#include <string>

#include <gtest/gtest.h>

#include "expected/ExpectedTable.h"
#include "ocore/AnlXlate/CreateStreamTranslator.h"
#include "ocore/Capabilities/Capabilities.h"
#include "ocore/Exceptions.h"
#include "resources/UseResourceLibrary.h"
#include "support/ListText.h"
#include "support/OrdoDocument.h"
#include "support/Rows.h"

namespace zent::test {
namespace {

class Writes : public Stream {
public:
    void write(const ByteBuffer& bytes) override {
        ++count;
        text.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
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

/// The lines that a ticket adds to those of an empty one, without the keywords' common beginning.
std::string linesOf(const std::string& ticket, const AjtPrinterTraits& traits) {
    const std::string always = streamOf("", traits);
    const std::string stream = streamOf(ticket, traits);
    std::string lines;
    for (std::size_t start = 0; start < stream.size();) {
        const std::size_t end = stream.find('\n', start) + 1;
        const std::string line = stream.substr(start, end - start);
        lines += always.find(line) == std::string::npos ? line.substr(4) : "";
        start = end;
    }
    return lines;
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

TEST_F(TarvoAjtTranslatorTest, AnEmptyTicketGivesACompleteStream) {
    EXPECT_EQ(streamOf("", plain), "%TRVbegin: 001.0300\n"
                                   "%TRVtitle: Untitled job\n"
                                   "%TRVsenderName: Unknown user\n"
                                   "%TRVdisposition: PRINT\n"
                                   "%TRVdeleteSource: False\n"
                                   "%TRVend\n");
    EXPECT_EQ(streamOf("", full), "%TRVbegin: 001.0300\n"
                                  "%TRVtitle: Untitled job\n"
                                  "%TRVsenderName: Unknown user\n"
                                  "%TRVsignature: False\n"
                                  "%TRVbinding: None\n"
                                  "%TRVedgeStitching: None\n"
                                  "%TRVbookletMaker: False\n"
                                  "%TRVdisposition: PRINT\n"
                                  "%TRVdeleteSource: False\n"
                                  "%TRVend\n");
}

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

// One printer of each family that takes the stream. The expected streams are worked out by
// golden/ajt/expected_streams.py.
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
