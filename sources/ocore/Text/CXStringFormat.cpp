// CXString's formatting and its texts from string tables.

#include "ocore/Text/CXString.h"
#include "ocore/Text/FormatOutput.h"
#include "ocore/Text/PrintfFormat.h"
#include "platform/CodePage.h"
#include "platform/ResourceModule.h"

namespace zent {

CXString CXString::formatWide(std::u16string_view format, FormatArguments arguments) {
    FormatOutput output;
    formatPrintf(format, arguments, output);
    return CXString(output.text());
}

CXString formatText(std::string_view format, FormatArguments arguments) {
    FormatOutput output;
    formatPrintf(platform::fromAnsi(format), arguments, output);
    return CXString(output.text());
}

CXString CXString::formatResource(const platform::ResourceModule& module, std::uint32_t id,
                                  FormatArguments arguments) {
    CXString format;
    format.LoadString(module, id);
    return formatWide(format, arguments);
}

bool CXString::LoadString(const platform::ResourceModule& module, std::uint32_t id) {
    constexpr std::int32_t step = 256;
    // A string table holds the length of an entry in 16 bits.
    constexpr std::int32_t most = 65536 + step;
    CXString buffer;
    std::int32_t capacity = 0;
    std::int32_t length = 0;
    do {
        // A text that nearly fills the buffer may have been cut.
        capacity += step;
        length = std::max(module.loadString(id, buffer.getBuffer(capacity), capacity), 0);
        buffer.releaseBuffer(length);
    } while (capacity - length < 2 && capacity < most);
    assign(buffer.view());
    return !isEmpty();
}

} // namespace zent
