#pragma once

#include <string>

#include "ocore/Faults/Exceptions.h"

namespace zent::test {

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

} // namespace zent::test
