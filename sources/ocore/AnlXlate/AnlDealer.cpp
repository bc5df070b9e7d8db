#include "ocore/AnlXlate/AnlDealer.h"

namespace zent {

std::unique_ptr<AttrNodeList> AnlDealer::toNewAttrNodeList() {
    auto list = std::make_unique<AttrNodeList>();
    toAttrNodeList(list.get());
    return list;
}

void AnlDealer::setFromAttrNodeList(const AttrNodeList& source) {
    ByteBuffer buffer;
    anlToBuffer(source, &buffer);
    setBuffer(buffer);
}

void AnlDealer::setBuffer(const ByteBuffer& buffer) {
    noteNewBuffer(buffer);
    if (&buffer != &m_buffer) {
        m_buffer = buffer;
    }
}

void AnlDealer::noteNewBuffer(const ByteBuffer& /*buffer*/) {}

} // namespace zent
