#pragma once

#include <vector>

#include "ocore/Ajt/AjtTicketReader.h"

namespace zent {

/// Something that a ticket says and its stream leaves out: a value, or a whole collection or set of
/// which no line tells anything.
struct AjtOmission {
    // The path from the ticket, such as "page-overrides[2]/media-col/media-grain"; the members of
    // sets are counted from 1.
    CXString path;
    CXString attribute; // what it is known as: for a member of a set the name of the set
    const AttrNode* node = nullptr; // in the ticket
};

namespace ajt {

/// Lists what a ticket holds besides private nodes and those that lines were written for, in the
/// order of the ticket.
std::vector<AjtOmission> listOmissions(const AttrNodeList& ticket, const SpokenNodes& spoken);

} // namespace ajt
} // namespace zent
