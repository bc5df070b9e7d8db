#include "plugin_ui/DialogValidation.h"

#include "plugin_ui/DialogMessage.h"

namespace zent {

bool validateDialog(platform::WindowHandle window) {
    return DialogMessage(window, UIM_VALIDATE).resend() == validation::accepted;
}

bool validateDialogForSave(platform::WindowHandle window) {
    return DialogMessage(window, UIM_VALIDATE_FOR_SAVE).resend() == validation::accepted;
}

} // namespace zent
