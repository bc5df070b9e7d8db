#pragma once

#include <cstdint>

#include <xercesc/util/PanicHandler.hpp>

#include "ocore/OrdoParse/StartMemory.h"

namespace zent {

/// The start of the XML parser library, once per process. Who uses the library asks for the
/// instance first. It is never ended by the library itself; a host that must may call Terminate(),
/// when no document is being read or written, and no document can be made from then on.
class ZNXMLInterface {
public:
    /// Starts the XML system at the first call. Raises OrdoParseException after Terminate() (code
    /// 20) and if the parser library fails to start (code 22).
    static ZNXMLInterface& Instance();
    /// Ends the XML system; before any Instance() it does nothing. Raises OrdoParseException (code
    /// 21) if it was ended before.
    static void Terminate();

    ZNXMLInterface(const ZNXMLInterface&) = delete;
    ZNXMLInterface& operator=(const ZNXMLInterface&) = delete;

private:
    /// The parser library calls this where it can't go on, which happens when memory runs out. Its
    /// own handler would end the process.
    class PanicHandler final : public xercesc::PanicHandler {
    public:
        void panic(PanicReasons reason) override;

        bool isStaticDataMissing = false;
    };
    enum class Stage : std::uint8_t {
        none,
        broken, // a failed start, which can't be used, taken back or repeated
        withoutStaticData,
        complete,
    };

    ZNXMLInterface() = default;
    ~ZNXMLInterface();
    void start();

    StartMemory m_memory;
    PanicHandler m_panicHandler;
    Stage m_stage = Stage::none;
};

} // namespace zent
