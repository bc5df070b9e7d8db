#pragma once

#include <string>

#include "ocore/Ajt/AjtOutput.h"
#include "ocore/Ajt/AjtTicketReader.h"
#include "ocore/Models/AjtPrinterTraits.h"

namespace zent::ajt {

/// What a ticket or a part of one says of the paper, of a job or of some of its sheets. Each text
/// is empty where they say nothing, and in the code page of the stream.
struct Paper {
    Paper(const TicketReader& ticket, const AjtPrinterTraits& traits);

    std::string size; // in millimetres, turned as the printer takes it
    std::string color;
    std::string opacity;
    std::string preFinish;
    std::string weight; // in grams per square metre
};

/// Writes the paper of some sheets as one text, in which spaces separate the fields. What the
/// ticket doesn't say of these sheets is taken from the job or, failing that, from plain white
/// letter paper.
void writeDescription(const Paper& local, const Paper& job, const AjtPrinterTraits& traits,
                      Output& output);

} // namespace zent::ajt
