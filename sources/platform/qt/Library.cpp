#include "platform/KeepForever.h"
#include "platform/qt/Application.h"
#include "platform/qt/QtWindowSystem.h"

/// The one function that this library exports: it gives the window system for the calling thread;
/// null if that can't have one.
extern "C" [[gnu::visibility("default")]] zent::platform::WindowSystem* zentQtWindowSystem() {
    using namespace zent::platform::qt;
    static auto& windowSystem = zent::keepForever<QtWindowSystem>();
    return hasApplication() ? &windowSystem : nullptr;
}
