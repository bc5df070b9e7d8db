#pragma once

#include <vector>

#include "ocore/Ajt/AjtTicketReader.h"

namespace zent {

/// Something that a ticket says and its stream doesn't: a value, or a collection or set of which
/// the stream doesn't speak at all.
struct AjtOmission {
    // The way there, such as "page-overrides[2]/media-col/media-grain"; the members of sets are
    // counted from 1.
    CXString path;
    CXString attribute; // what it is known as: for a member of a set the name of the set
    const AttrNode* node = nullptr; // in the ticket
};

namespace ajt {

/// What there is in a ticket besides the nodes that are spoken of and the private ones, in the
/// order of the ticket.
std::vector<AjtOmission> listOmissions(const AttrNodeList& ticket, const SpokenNodes& spoken);

} // namespace ajt
} // namespace zent
