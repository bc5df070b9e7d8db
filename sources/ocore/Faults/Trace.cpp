#include "ocore/Faults/Trace.h"

#include <atomic>

#include "platform/System.h"

namespace zent::trace {

const std::array<std::u16string_view, 29> moduleNames = {
    u"Errors",     u"MsgBeep",   u"tracemsg",   u"trvpsr",    u"trvpclr",    u"uictrl",
    u"uifeat",     u"trvui",     u"renderlib",  u"oattrlib",  u"ocorelib",   u"znxml",
    u"testapp",    u"ordopars",  u"featset",    u"com_infra", u"com_driver", u"thread",
    u"devmode",    u"oattrdump", u"oattrinfra", u"dumpdm",    u"@pscommand", u"oparstrace",
    u"oparsinfra", u"messages",  u"resource",   u"infra",     u"uiinfra",
};

namespace {

std::atomic<Output> currentOutput = nullptr;

/// Makes a text only if there is an output for it. One that can't be made is replaced: to trace a
/// failure must not cause another.
template <typename Make>
void outputIfEnabled(const Make& make) noexcept {
    if (!isOutputEnabled()) {
        return;
    }
    try {
        output(make());
    } catch (...) {
        output(u"(no memory for the trace text)\r\n");
    }
}

} // namespace

void setOutput(Output output) noexcept { currentOutput = output; }

bool isOutputEnabled() noexcept { return currentOutput.load(std::memory_order_relaxed) != nullptr; }

void output(std::u16string_view text) noexcept {
    if (const Output write = currentOutput) {
        write(text);
    }
}

void output(std::uint32_t /*level*/, std::u16string_view text) noexcept { output(text); }

void location(std::u16string_view file, std::int32_t line) noexcept {
    outputIfEnabled([&] { return formatText("%s, line %d\r\n", file, line); });
}

void systemErrorText(std::uint32_t error, std::uint32_t /*mask*/) noexcept {
    outputIfEnabled([&] { return platform::getSystemErrorText(error); });
}

std::int32_t getTraceSetting(const CXString& key, std::int32_t fallback) {
    return platform::getProfileInteger(u"debug", key, fallback, u"trvdbg.ini");
}

void endOutput() noexcept {}

void endSettings() noexcept {}

} // namespace zent::trace
