#include "CupsPeer.h"

namespace zent::bench {

CupsPeer::CupsPeer() : m_message(ippNew()) {}

CupsPeer::~CupsPeer() { cupsFreeOptions(m_optionCount, m_options); }

void CupsPeer::setOption(const std::string& name, const std::string& value) {
    m_optionCount = cupsAddOption(name.c_str(), value.c_str(), m_optionCount, &m_options);
}

const char* CupsPeer::getOption(const std::string& name) const {
    return cupsGetOption(name.c_str(), m_optionCount, m_options);
}

void CupsPeer::addAttribute(const std::string& name, const std::string& value) {
    ippAddString(m_message.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, name.c_str(), nullptr,
                 value.c_str());
}

void CupsPeer::removeAllAttributes() { m_message.reset(ippNew()); }

const char* CupsPeer::getAttribute(const std::string& name) const {
    ipp_attribute_t* const found = ippFindAttribute(m_message.get(), name.c_str(), IPP_TAG_KEYWORD);
    return ippGetString(found, 0, nullptr);
}

} // namespace zent::bench
