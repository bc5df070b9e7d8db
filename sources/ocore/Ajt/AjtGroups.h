#pragma once

#include "ocore/Ajt/AjtOutput.h"
#include "ocore/Ajt/AjtPaper.h"
#include "ocore/Ajt/AjtTicketReader.h"
#include "ocore/Models/AjtPrinterTraits.h"

/// The parts of a ticket stream: groups of lines, each about one or a few features of a job.
namespace zent::ajt {

struct Job {
    TicketReader ticket;
    const AjtPrinterTraits& traits;
    Paper paper; // of the ticket
};

using WriteGroup = void(const Job& job, Output& output);

WriteGroup writeIdentification;
WriteGroup writeSignature;
WriteGroup writeCopyCount;
WriteGroup writePagesToPrint;
WriteGroup writePlex;
WriteGroup writeFinishing;
WriteGroup writeCollation;
WriteGroup writeRotation;
WriteGroup writeImageShifts;
WriteGroup writeDisposition;
WriteGroup writeHighlightColors;
WriteGroup writeDocumentPaper;
WriteGroup writeChapterHints;
WriteGroup writeCovers;
WriteGroup writeBlankPageInserts;
WriteGroup writePageExceptions;

} // namespace zent::ajt
