#include "ocore/Faults/Exceptions.h"

namespace zent {

CXString RegistryRequestException::getExplanation() const {
    const CXString& message = getMessage();
    const std::int32_t end = message.find(u"\r\n");
    CXString line = end < 0 ? CXString() : message.mid(end);
    line.trim();
    return line;
}

} // namespace zent
