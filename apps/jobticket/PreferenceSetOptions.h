#pragma once

#include "Options.h"
#include "Session.h"

namespace jobticket {

/// A session with the set of preferences that is meant; without any option for it, whatever the
/// printer, that is the one that all printers share.
/// Raises as choosePrinter() does.
Session openSession(const Options& options);
/// The same for a command that goes by a printer in any case.
Session openSession(const Options& options, const PrinterChoice& printer);

} // namespace jobticket
