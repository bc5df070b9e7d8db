#pragma once

// What nearly every test of the library's inside uses.

#include <iomanip>
#include <ostream>

#include "ocore/Faults/Exceptions.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "ocore/Text/CXString.h"
#include "platform/Files.h"
#include "support/ListText.h"
#include "support/ScratchFolder.h"
#include "support/Testing.h"

namespace zent {

/// How GoogleTest shows a text.
inline void PrintTo(const CXString& text, std::ostream* out) {
    *out << std::quoted(text.toNarrow());
}

namespace test {

/// The message of the exception of class E that an operation raises; exceptions of other classes
/// pass through.
template <typename E, typename Operation>
std::string raised(const Operation& operation) {
    try {
        operation();
    } catch (const E& exception) {
        return exception.getMessage().toNarrow();
    }
    return "nothing was raised";
}

/// The folder of the test program, where what the library looks for lies too; with a separator.
inline CXString programFolder() {
    const std::u16string program = platform::getModulePath();
    return CXString(program.substr(0, program.rfind(platform::pathSeparator) + 1));
}

/// Makes the library open the resource library of that name there.
inline void useResourceLibrary(std::u16string_view fileName = u"zenres27.dll") {
    ResourceLibrary::setPath(programFolder() + CXString(fileName));
}

} // namespace test

} // namespace zent
