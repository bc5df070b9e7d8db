#include "ocore/AnlXlate/TarvoAjtTranslator.h"

#include "ocore/AnlXlate/AjtGroups.h"

namespace zent {

namespace {

constexpr ajt::WriteGroup* groups[] = {
    ajt::writeIdentification,
    ajt::writeSignature,
    ajt::writeCopyCount,
    ajt::writePagesToPrint,
    ajt::writePlex,
    ajt::writeFinishing,
    ajt::writeCollation,
    ajt::writeRotation,
    ajt::writeImageShifts,
    ajt::writeDisposition,
    ajt::writeHighlightColors,
    ajt::writeDocumentPaper,
    ajt::writeChapterHints,
    ajt::writeCovers,
    ajt::writeBlankPageInserts,
    ajt::writePageExceptions,
};

} // namespace

void TarvoAjtTranslator::translate(const AttrNodeList& source, Stream& target) {
    // A view, so that a long ticket isn't copied; nothing is written through it.
    FeatureSettings settings(const_cast<AttrNodeList*>(&source));
    const ajt::Job job{settings, m_traits, ajt::Paper(settings, m_traits)};
    ajt::Output output;
    output << "%TRVbegin: 001.0300\n";
    for (ajt::WriteGroup* const writeGroup : groups) {
        writeGroup(job, output);
    }
    output << "%TRVdeleteSource: False\n"
              "%TRVend\n";
    target.write(output.getBytes());
}

} // namespace zent
