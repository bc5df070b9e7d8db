#include "ocore/Attributes/AttrID.h"

#include "ocore/Faults/Exceptions.h"

namespace zent {

AttrID& AttrID::operator=(const CXString& text) {
    if (text.isEmpty()) {
        raiseEmpty();
    }
    m_text = text;
    return *this;
}

void AttrID::raiseEmpty() {
    Raise<InvalidAttributeIdException>()("AttrID::validateTheID(): supplied value is empty.\r\n");
}

} // namespace zent
