// The parser library can be started once in a process, and counts a start that fails as done. So
// the start keeps account of how far it has come: a lack of memory that it can recover from is
// tried again by the next call, and any other failure is final.

#include "ocore/OrdoParse/ZNXMLInterface.h"

#include <new>

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLInitializer.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "ocore/Faults/OwnedCriticalResource.h"
#include "ocore/OrdoParse/CompiledDtd.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

CriticalResource& guard = keepForever<CriticalResource>(u"ZNXMLInterface");
ZNXMLInterface* instance = nullptr;
bool alreadyTerminated = false;

} // namespace

void ZNXMLInterface::PanicHandler::panic(PanicReasons reason) {
    if (reason != Panic_AllStaticInitErr) {
        throw std::bad_alloc();
    }
    isStaticDataMissing = true; // it is started last, and can be made anew
}

void ZNXMLInterface::start() {
    struct StaticData : xercesc::XMLInitializer {
        using XMLInitializer::initializeStaticData;
    };
    m_panicHandler.isStaticDataMissing = false;
    if (m_stage == Stage::withoutStaticData) {
        StaticData::initializeStaticData();
    } else {
        m_stage = Stage::broken;
        xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr,
                                              &m_panicHandler, &m_memory);
        m_memory.endStart();
    }
    m_stage = m_panicHandler.isStaticDataMissing ? Stage::withoutStaticData : Stage::complete;
}

ZNXMLInterface::~ZNXMLInterface() {
    CompiledDtd::forget(); // it consists of the parser library's objects
    xercesc::XMLPlatformUtils::Terminate();
    alreadyTerminated = true;
}

ZNXMLInterface& ZNXMLInterface::Instance() {
    const OwnedCriticalResource hold(guard);
    if (alreadyTerminated) {
        raiseOrdoParse(ordoParseCode::startAfterTermination,
                       "ZNXMLInterface::Instance(): XML system already terminated once. Process "
                       "can't create another one!\r\n");
    }
    if (instance == nullptr) {
        instance = new ZNXMLInterface;
    }
    try {
        if (instance->m_stage == Stage::none || instance->m_stage == Stage::withoutStaticData) {
            instance->start();
        }
    } catch (const xercesc::OutOfMemoryException&) {
        throw std::bad_alloc();
    } catch (const xercesc::XMLException& exception) {
        raiseOrdoParse(ordoParseCode::xmlExceptionInStart,
                       "ZNXMLInterface::ZNXMLInterface(): Error during Xerces-c initialization. "
                       "Exception message is %s\r\n",
                       exception.getMessage());
    }
    if (instance->m_stage != Stage::complete) {
        throw std::bad_alloc();
    }
    return *instance;
}

void ZNXMLInterface::Terminate() {
    const OwnedCriticalResource hold(guard);
    if (alreadyTerminated) {
        raiseOrdoParse(ordoParseCode::terminatedTwice,
                       "ZNXMLInterface::Terminate(): Terminate called more than once per "
                       "process!\r\n");
    }
    if (instance != nullptr && instance->m_stage == Stage::complete) {
        delete instance;
        instance = nullptr;
    }
}

} // namespace zent
