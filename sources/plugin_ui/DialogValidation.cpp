#include "plugin_ui/DialogValidation.h"

#include "plugin_ui/DialogMessage.h"

namespace zent {

bool validateDialog(platform::Dialog& dialog) {
    return DialogMessage(dialog, UIM_VALIDATE).resend() == validation::accepted;
}

bool validateDialogForSave(platform::Dialog& dialog) {
    return DialogMessage(dialog, UIM_VALIDATE_FOR_SAVE).resend() == validation::accepted;
}

} // namespace zent
