#include "ocore/OrdoParse/ZNXMLInterface.h"

#include <new>

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>

#include "ocore/OrdoParse/CompiledDtd.h"
#include "ocore/OrdoParse/OrdoParseException.h"
#include "ocore/OwnedCriticalResource.h"
#include "platform/KeepForever.h"

namespace zent {

namespace {

CriticalResource& guard = keepForever<CriticalResource>(u"ZNXMLInterface");
ZNXMLInterface* instance = nullptr;
bool alreadyTerminated = false;

} // namespace

ZNXMLInterface::ZNXMLInterface() {
    try {
        xercesc::XMLPlatformUtils::Initialize();
    } catch (const xercesc::OutOfMemoryException&) {
        throw std::bad_alloc();
    } catch (const xercesc::XMLException& exception) {
        raiseOrdoParse(ordoParseCode::xmlExceptionInStart,
                       "ZNXMLInterface::ZNXMLInterface(): Error during Xerces-c initialization. "
                       "Exception message is %s\r\n",
                       exception.getMessage());
    }
}

ZNXMLInterface::~ZNXMLInterface() {
    CompiledDtd::forget(); // it is made of the parser library's objects
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
    return *instance;
}

void ZNXMLInterface::Terminate() {
    const OwnedCriticalResource hold(guard);
    if (alreadyTerminated) {
        raiseOrdoParse(ordoParseCode::terminatedTwice,
                       "ZNXMLInterface::Terminate(): Terminate called more than once per "
                       "process!\r\n");
    }
    delete instance;
    instance = nullptr;
}

} // namespace zent
