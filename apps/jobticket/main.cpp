// jobticket: makes, edits, compares and checks job tickets on the command line.

#include <iostream>

#include "Command.h"
#include "Platform.h"
#include "Text.h"
#include "ZENT_API/ModuleDirectory.h"
#include "ocore/Faults/TarvoException.h"

namespace jobticket {

namespace {

int fail(ExitStatus status, const std::string& message) {
    std::cerr << "jobticket: " << message << '\n';
    return static_cast<int>(status);
}

} // namespace

} // namespace jobticket

int main(int count, char** arguments) {
    using jobticket::ExitStatus;
    try {
        jobticket::platform::prepareStandardStreams();
        // Display names and the document type are found beside the program, with no session yet.
        zent::announceModuleDirectory();
        return static_cast<int>(
            jobticket::runCommandLine(jobticket::platform::getArguments(count, arguments)));
    } catch (const jobticket::ProgramError& error) {
        return jobticket::fail(error.getStatus(), error.what());
    } catch (const zent::TarvoException& exception) {
        return jobticket::fail(ExitStatus::libraryFailure,
                               jobticket::toLine(exception.getMessage()));
    } catch (const std::exception& exception) {
        return jobticket::fail(ExitStatus::libraryFailure,
                               jobticket::toPrintable(std::string_view(exception.what())));
    }
}
