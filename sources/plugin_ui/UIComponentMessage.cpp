#include "plugin_ui/UIComponentMessage.h"

namespace zent {

CXString UIComponentMessage::getDebugText() const {
    return formatText("UIComponentMessage::UIMsgSetPrinterDefault (0x%x), wParam = %ld (0x%x)",
                      kind, wParam, wParam);
}

} // namespace zent
