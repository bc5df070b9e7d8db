#pragma once

#include <string>

#include "XercesFloor.h"
#include "Zlib.h"
#include "ocore/Models/PrinterModel.h"
#include "ocore/Resources/ResourceLibrary.h"

namespace zent::bench {

/// Opening and closing a session, and what it loads when it first needs the printer's capabilities.
/// The names are
///
/// - "session/open", with no preferences stored, and "session/open-stored", with some;
/// - "session/first" and "session/second": the two first sessions of a process;
/// - "capabilities/SUBJECT": by the library and by its floor, zlib and Xerces-C's own tree.
class SessionBenchmark {
public:
    SessionBenchmark();

    void registerAll();

private:
    static void registerOpening();
    static void registerFirstSessions();
    void registerCapabilities();

    ResourceLibrary m_library; // stays loaded, as long as a session would be open
    PrinterModel m_model;
    std::string m_stream;
    std::size_t m_documentSize;
    XercesParse m_xerces;
    Inflater m_inflater;
};

} // namespace zent::bench
