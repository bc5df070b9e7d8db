#pragma once

#include <vector>

#include "CupsPeer.h"
#include "FeatureRequest.h"
#include "TicketSession.h"

namespace zent::bench {

/// Set and get of one feature, in a ticket that holds all of them, by the library and by libcups
/// on the same names; and the memory probe, of which every call runs two. The names are
/// "set/SUBJECT", "get/SUBJECT" and "probe/HANDLE". An iteration is one call.
///
/// All 136 features are in the ticket; the ones that are set and got are those that have a value of
/// their own. Collections are left out, since their members are features themselves.
class FeatureBenchmark {
public:
    FeatureBenchmark();

    void registerAll();

private:
    void fillCollections();
    void registerLibrary();
    void registerCups();
    void registerProbe();

    std::vector<FeatureRequest> m_requests; // in random order, the same in each run
    TicketSession m_ticket;
    CupsPeer m_cups;    // holds all
    CupsPeer m_written; // filled anew in each round
};

} // namespace zent::bench
