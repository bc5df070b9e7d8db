#include "platform/qt/ModalRun.h"

#include <utility>

namespace zent::platform::qt {

namespace {

ModalRun* innermost = nullptr;

} // namespace

ModalRun::ModalRun() : m_outer(std::exchange(innermost, this)) {}

ModalRun::~ModalRun() { innermost = m_outer; }

void ModalRun::stay() {
    if (!m_hasEnded) {
        m_loop.exec(QEventLoop::DialogExec);
    }
}

void ModalRun::end(std::intptr_t value) {
    m_value = value;
    m_hasEnded = true;
    m_loop.quit();
}

std::intptr_t ModalRun::value() const {
    if (m_exception != nullptr) {
        std::rethrow_exception(m_exception);
    }
    return m_value;
}

bool ModalRun::isAny() { return innermost != nullptr; }

void ModalRun::fail() {
    innermost->m_exception = std::current_exception();
    innermost->end();
}

} // namespace zent::platform::qt
