#include "ocore/OrdoParse/XmlOutputCallback.h"

namespace zent {

bool XmlOutputBufferCallback::handleOutput(const char* bytes, std::size_t length) {
    m_target->append(bytes, length);
    return true;
}

bool XmlOutputStreamCallback::handleOutput(const char* bytes, std::size_t length) {
    m_target->write(ByteBuffer(bytes, length));
    return true;
}

} // namespace zent
