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
    ByteBuffer taken = buffer; // first, since it may fail
    noteNewBuffer(buffer);
    m_buffer.swap(taken);
}

void AnlDealer::noteNewBuffer(const ByteBuffer& /*buffer*/) {}

void AnlDealer::completeBuffer(ByteBuffer& /*buffer*/) const {}

} // namespace zent
