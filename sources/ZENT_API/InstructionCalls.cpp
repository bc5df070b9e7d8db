#include "ZENT_API/Arguments.h"
#include "ZENT_API/CallFrame.h"
#include "ocore/Resources/Stream.h"

using namespace zent;

extern "C" {

// The buffer isn't emptied for another document, so that what was generated for the last one and
// not fetched comes before it.
ZentResult ZENT_CALL fnGetPrintInstructions(ZentSessionType session, void* buffer, uint32_t* size,
                                            const char* documentName) {
    return inSession(session, __func__, [&](ZENTSession& opened) -> ZentResult {
        uint32_t& bytes = required(size);
        const CXString name = documentName != nullptr ? CXString(documentName) : CXString();
        CachedOutput& cache = opened.instructionsCache();
        if (!cache.isFor(name)) {
            PersistentSettings& state = opened.currentState();
            cache.setKey(name);
            BufferStream stream(&cache.buffer());
            opened.generateInstructions(state, stream, name);
        }
        return cache.handOut(buffer, bytes);
    });
}

} // extern "C"
