#pragma once

#include <memory>
#include <utility>

namespace zent {

/// Makes an object that is never destroyed. All static objects are made in this way: while the
/// process ends in one thread, others may still be in a call, and would use objects that are gone.
/// The caller keeps the reference in a static variable, by which leak checkers find the object.
template <typename Object, typename... Arguments>
Object& keepForever(Arguments&&... arguments) {
    return *std::make_unique<Object>(std::forward<Arguments>(arguments)...).release();
}

} // namespace zent
