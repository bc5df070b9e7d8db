#include "ocore/Text/PrintfFormat.h"

#include "ocore/Text/FormatSpecifier.h"

namespace zent {

void formatPrintf(std::u16string_view format, FormatArguments arguments, FormatOutput& output) {
    FormatArgumentReader reader(arguments);
    while (!format.empty() && !output.isFull()) {
        const std::size_t literal = std::min(format.find(u'%'), format.size());
        output.append(format.substr(0, literal));
        format.remove_prefix(literal);
        if (format.empty()) {
            break;
        }
        std::u16string_view rest = format.substr(1);
        const auto specifier = FormatSpecifier::parse(rest, reader);
        if (!specifier || !specifier->format(reader, output)) {
            output.append(format.substr(0, format.size() - rest.size()));
        }
        format = rest;
    }
}

} // namespace zent
