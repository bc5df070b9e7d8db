#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <xercesc/util/XercesDefs.hpp>

namespace zent {

/// How the names of undeclared elements lie in the parser library's table of them: chains of those
/// that have one hash, which everybody can compute. Names that are made to share it would turn each
/// look-up into a walk over all of them.
class NameChains {
public:
    /// Adds a name that isn't there yet; false if its chain, or another one, is too long now.
    bool add(const XMLCh* name);

private:
    bool grow();
    bool addToChain(XMLSize_t hash);

    // The number of chains. It grows as in the parser library, which has at most three names for
    // four chains.
    XMLSize_t m_modulus = 29;
    std::vector<XMLSize_t> m_hashes;
    std::vector<std::uint16_t> m_lengths;
};

} // namespace zent
