#include "ocore/Attributes/IppBoolean.h"

#include "ocore/Faults/Exceptions.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {
const CXString& trueText = keepForever<CXString>(u"true");
const CXString& falseText = keepForever<CXString>(u"false");
} // namespace

IppBoolean::IppBoolean(const CXString& text)
    : IppBoolean(text == trueText || text == u"yes" || text == u"1") {}

CXString IppBoolean::getIppValue() const { return m_value ? trueText : falseText; }

void IppBoolean::setIppValue(const CXString& text) {
    if (text != trueText && text != falseText) {
        Raise<UnknownCaseException>()("IppBoolean::setIppValue(): illegal attribute value string "
                                      "specified for this class(%s).\r\n",
                                      text);
    }
    m_value = text == trueText;
}

std::unique_ptr<AttrValue> IppBoolean::clone() const { return std::make_unique<IppBoolean>(*this); }

bool IppBoolean::isEqual(const AttrValue& other) const {
    return isSameKind(other) && static_cast<const IppBoolean&>(other).m_value == m_value;
}

} // namespace zent
