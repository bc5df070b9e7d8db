#pragma once

#include "ocore/Ajt/AjtOmissions.h"
#include "ocore/AnlXlate/AnlToStreamTranslator.h"
#include "ocore/Models/AjtPrinterTraits.h"

namespace zent {

/// Writes a job's settings as the ticket stream for printers that don't take the ordo document:
/// comment lines, from "%TRVbegin: 001.0300" to "%TRVend", which stand before the print data. There
/// is no reader of this form.
///
/// The lines come in a fixed order, each ends with a line feed, and text is in the ANSI code page.
/// What isn't set gives no line, apart from what the printer's traits ask for.
class TarvoAjtTranslator final : public AnlToStreamTranslator {
public:
    explicit TarvoAjtTranslator(const AjtPrinterTraits& traits) : m_traits(traits) {}

    /// Hands the whole stream over in one write. Raises what reading settings or the resource
    /// library raises; then nothing has been written.
    void translate(const AttrNodeList& source, Stream& target) override;
    /// Finds what the stream leaves out of a list: attributes for which it has no line, values for
    /// which it has no word, members after the first where it takes only one, and what another
    /// setting keeps from being written. Raises what translate() raises.
    std::vector<AjtOmission> findOmissions(const AttrNodeList& source) const;

private:
    AjtPrinterTraits m_traits;
};

} // namespace zent
