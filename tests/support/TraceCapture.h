#pragma once

#include <string>

#include "ocore/Faults/Trace.h"

namespace zent::test {

/// Gathers what is traced, as long as it lives.
class TraceCapture {
public:
    TraceCapture() {
        s_text.clear();
        trace::setOutput(&append);
    }
    ~TraceCapture() { trace::setOutput(nullptr); }
    TraceCapture(const TraceCapture&) = delete;
    TraceCapture& operator=(const TraceCapture&) = delete;
    static std::string text() { return s_text.toNarrow(); }

private:
    static void append(std::u16string_view text) noexcept { s_text += text; }
    inline static CXString s_text;
};

} // namespace zent::test
