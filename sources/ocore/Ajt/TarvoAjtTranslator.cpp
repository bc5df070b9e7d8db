#include "ocore/Ajt/TarvoAjtTranslator.h"

#include "ocore/Ajt/AjtGroups.h"

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

ajt::Output makeStream(const AttrNodeList& source, const AjtPrinterTraits& traits,
                       ajt::SpokenNodes* spoken) {
    // A view, so that a long ticket isn't copied; nothing is written through it.
    const ajt::TicketReader ticket(FeatureSettings(const_cast<AttrNodeList*>(&source)), spoken);
    const ajt::Job job{ticket, traits, ajt::Paper(ticket, traits)};
    ajt::Output output;
    output << "%TRVbegin: 001.0300\n";
    for (ajt::WriteGroup* const writeGroup : groups) {
        writeGroup(job, output);
    }
    output << "%TRVdeleteSource: False\n"
              "%TRVend\n";
    return output;
}

} // namespace

void TarvoAjtTranslator::translate(const AttrNodeList& source, Stream& target) {
    target.write(makeStream(source, m_traits, nullptr).bytes());
}

std::vector<AjtOmission> TarvoAjtTranslator::findOmissions(const AttrNodeList& source) const {
    ajt::SpokenNodes spoken;
    makeStream(source, m_traits, &spoken);
    return ajt::listOmissions(source, spoken);
}

} // namespace zent
