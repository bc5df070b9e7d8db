#include "plugin_ui/Features/TextLength.h"

#include "ocore/Resources/ResourceLibrary.h"
#include "plugin_ui/Reports/UserMessage.h"
#include "resources/ids.h"

namespace zent {

bool validateLength(platform::WindowHandle window, const TextBoxUIControl& box,
                    const _FI& feature) {
    const bool isAccepted = !box.isTooLong() || !box.isEnabled();
    if (!isAccepted) {
        const ResourceLibrary library;
        UserMessage(
            window, feature.getDisplayString(),
            CXString::FormatResource(library.getModule(), IDS_TEXT_TOO_LONG, box.getMaxLength()), 0)
            .show();
    }
    return isAccepted;
}

} // namespace zent
