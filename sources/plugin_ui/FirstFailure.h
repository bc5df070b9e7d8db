#pragma once

#include <exception>

namespace zent {

/// Keeps the first of several failures, so that what is left to do can be done before it is raised.
class FirstFailure {
public:
    template <typename Step>
    void attempt(const Step& step) {
        try {
            step();
        } catch (...) {
            keepCurrent();
        }
    }
    /// Is to be called from a catch clause.
    void keepCurrent() {
        if (m_failure == nullptr) {
            m_failure = std::current_exception();
        }
    }
    /// Raises what is kept, if anything is.
    void raise() const {
        if (m_failure != nullptr) {
            std::rethrow_exception(m_failure);
        }
    }

private:
    std::exception_ptr m_failure;
};

} // namespace zent
