#pragma once

#include <cstdint>
#include <exception>

#include <QEventLoop>

namespace zent::platform::qt {

/// A modal dialog's loop and its result. It outlives the dialog, which may be destroyed with its
/// owner.
class ModalRun {
public:
    ModalRun();
    ~ModalRun();
    ModalRun(const ModalRun&) = delete;
    ModalRun& operator=(const ModalRun&) = delete;

    /// Runs the loop until the run ends, if it hasn't yet.
    void stay();
    void end(std::intptr_t value);
    /// Ends the run with the value that it has.
    void end() { end(m_value); }
    /// The value that ended the run. If an exception has ended it, that is thrown.
    std::intptr_t value() const;

    /// Whether a run is going on, in whichever dialog.
    static bool isAny();
    /// Ends the innermost run with the exception at hand, which mustn't pass through Qt.
    static void fail();

private:
    ModalRun* m_outer;
    QEventLoop m_loop;
    bool m_hasEnded = false;
    std::intptr_t m_value = 0;
    std::exception_ptr m_exception;
};

} // namespace zent::platform::qt
