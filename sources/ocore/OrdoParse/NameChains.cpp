#include "ocore/OrdoParse/NameChains.h"

#include <algorithm>
#include <limits>

#include <xercesc/util/XMLString.hpp>

#include "ocore/OrdoParse/XmlLimits.h"

namespace zent {

bool NameChains::add(const XMLCh* name) {
    const XMLSize_t hash = xercesc::XMLString::hash(name, std::numeric_limits<XMLSize_t>::max());
    const bool isFull = m_hashes.size() >= m_modulus * 3 / 4;
    m_lengths.resize(m_modulus);
    m_hashes.push_back(hash);
    return isFull ? grow() : addToChain(hash);
}

bool NameChains::grow() {
    m_modulus = m_modulus * 2 + 1;
    m_lengths.assign(m_modulus, 0);
    return std::ranges::all_of(m_hashes, [this](XMLSize_t hash) { return addToChain(hash); });
}

bool NameChains::addToChain(XMLSize_t hash) {
    return ++m_lengths[hash % m_modulus] <= xmlLimits::namesOfOneHash;
}

} // namespace zent
