#pragma once

#include "Command.h"

namespace jobticket {

// Options that several commands have.

constexpr Option ticketArgument = {.names = "TICKET",
                                   .operand = Operand::file,
                                   .target = in<&Options::ticket>,
                                   .help = "Ticket file, or - for standard input",
                                   .isRequired = true};
constexpr Option ticketArguments = {.names = "TICKET",
                                    .operand = Operand::file,
                                    .target = in<&Options::tickets>,
                                    .help = "Ticket files, or - for standard input",
                                    .isRequired = true};
constexpr Option modelOption = {.names = "-m,--model",
                                .operand = Operand::model,
                                .target = in<&Options::printer, &PrinterOptions::model>,
                                .help = "The printer, by number or name; \"jobticket models\" "
                                        "lists all"};
constexpr Option languageOption = {.names = "-p,--pdl",
                                   .operand = Operand::language,
                                   .target = in<&Options::printer, &PrinterOptions::language>,
                                   .help = "The page description language: ps (1), pcl (2) or "
                                           "color-pcl (3); without it, pcl"};
constexpr Option formOption = {.names = "--form",
                               .operand = Operand::form,
                               .target = in<&Options::printer, &PrinterOptions::form>,
                               .help = "The form of printing instructions: xml (1), stream (2), or "
                                       "what the model takes (3), which is the default"};
constexpr Option preferenceSetOption = {.names = "--set",
                                        .operand = Operand::text,
                                        .target = in<&Options::preferenceSet>,
                                        .help = "The set of preferences of that name"};
constexpr Option printerPreferencesOption = {
    .names = "--printer-preferences",
    .target = in<&Options::usesPrinterPreferences>,
    .help = "The set of preferences of the printer's driver, in place of the one that all printers "
            "share",
    .excludes = "--set",
    .needs = "--model"};
constexpr Option outputOption = {.names = "-o,--output",
                                 .operand = Operand::file,
                                 .target = in<&Options::output>,
                                 .help = "File to write; without it, standard output"};
constexpr Option jsonOption = {.names = "--json",
                               .target = in<&Options::listsJson>,
                               .help = "The same as JSON, for other programs"};
constexpr Option quietOption = {
    .names = "-q,--quiet", .target = in<&Options::isQuiet>, .help = "No notes on standard error"};

} // namespace jobticket
