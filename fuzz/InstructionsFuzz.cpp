// Hostile tickets on their way to a printer: the check against what it can do, the report of the
// problems, the repair, what the ticket stream will leave out, and the stream itself. A repaired
// ticket must have no problem left, and what a text holds must not end its line of the stream.
//
// Input: a byte each for the printer's model and its page description language, and a document.

#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <utility>

#include "SameList.h"
#include "ocore/Ajt/TarvoAjtTranslator.h"
#include "ocore/AnlXlate/AnlTranslatorForXml.h"
#include "ocore/Checking/SettingsValidator.h"
#include "ocore/Faults/TarvoException.h"
#include "ocore/Printer/NonDriverBasedPrinter.h"
#include "ocore/Repair/RepairReport.h"
#include "ocore/Repair/SettingsProblemFixer.h"
#include "ocore/Repair/TicketRepair.h"
#include "ocore/Resources/Stream.h"
#include "zent27.h"

namespace {

using namespace zent;
using zent::fuzz::require;

constexpr std::uint32_t models = 51;
constexpr std::uint32_t languages = 3;

/// Opens a session, by which the library learns where its files lie.
void openSessionOnce() {
    static const ZentSessionType session = [] {
        ZentSessionType opened = nullptr;
        require(fnOpenSession(ZENT_INTERFACE_VERSION, 1, 1, ZENT_INSTRUCTIONS_XML, 1, nullptr, 0,
                              &opened) == ZENT_OK);
        return opened;
    }();
    require(session != nullptr);
}

/// The printer of a model and language. Each is made once, since to read its capabilities takes
/// longer than an input.
Printer& getPrinter(std::uint32_t model, std::uint32_t language) {
    static std::map<std::pair<std::uint32_t, std::uint32_t>, std::unique_ptr<Printer>> printers;
    std::unique_ptr<Printer>& printer = printers[{model, language}];
    if (printer == nullptr) {
        printer = std::make_unique<NonDriverBasedPrinter>(model, language, ZENT_INSTRUCTIONS_STREAM,
                                                          CXString(), true);
    }
    return *printer;
}

/// Runs work that may raise one of the library's own exceptions.
template <typename Work>
bool succeeds(const Work& work) {
    try {
        work();
        return true;
    } catch (const TarvoException& exception) {
        require(exception.getResultCode() > ZENT_OK &&
                exception.getResultCode() < ZENT_ERR_STD_EXCEPTION);
        return false;
    }
}

class Lines final : public Stream {
public:
    bool write(std::string_view rest) override {
        require(rest.starts_with("%TRVbegin: 001.0300\n") && rest.ends_with("\n%TRVend\n"));
        while (!rest.empty()) {
            require(rest.starts_with("%TRV"));
            rest.remove_prefix(rest.find('\n') + 1);
        }
        return true;
    }
};

void writeInstructions(const AttrNodeList& list, Printer& printer) {
    TarvoAjtTranslator translator(printer.getCapabilities().getAjtPrinterTraits());
    Lines lines;
    const bool isWritten = succeeds([&] { translator.translate(list, lines); });
    require(succeeds([&] { translator.findOmissions(list); }) == isWritten);
}

void report(const SettingsProblemList& problems, const Settings& defaults) {
    succeeds([&] {
        const RepairReport report(problems, defaults);
        for (const auto wording :
             {RepairWording::offered, RepairWording::made, RepairWording::none}) {
            require(report.getEntries().empty() || !report.getText(wording).isEmpty());
        }
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t choices = 2;
    if (size < choices) {
        return 0;
    }
    openSessionOnce();
    Printer& printer = getPrinter(data[0] % models + 1, data[1] % languages + 1);
    AttrNodeList list;
    if (!succeeds([&] {
            OrdoTranslator().anlFromBuffer({data + choices, size - choices}, &list);
        })) {
        return 0;
    }
    FeatureSettings ticket(&list);
    ticket.normalize();
    writeInstructions(list, printer);

    const Capabilities& capabilities = printer.getCapabilities();
    const Settings& defaults = printer.getDefaults().getSettings();
    SettingsProblemList problems;
    validate(capabilities, ticket, problems);
    report(problems, defaults);
    if (succeeds([&] { SettingsProblemFixer(defaults).fix(problems); })) {
        writeInstructions(list, printer);
    }
    bool hadProblems = false;
    if (succeeds([&] {
            applyCapabilitiesToJobTicket(capabilities, ticket, defaults, hadProblems,
                                         SilentReporter(problemPolicy::repair));
        })) {
        SettingsProblemList left;
        require(validate(capabilities, ticket, left));
    }
    return 0;
}
