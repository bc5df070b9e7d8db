#include "plugin_ui/Features/TextLength.h"

#include "ocore/Resources/ResourceLibrary.h"
#include "plugin_ui/Reports/UserMessage.h"

namespace zent {

namespace {

constexpr std::uint32_t tooLong = 6211; // with the number of characters

} // namespace

bool validateLength(platform::WindowHandle window, const TextBoxUIControl& box,
                    const _FI& feature) {
    const bool isAccepted = !box.isTooLong() || !box.isEnabled();
    if (!isAccepted) {
        const ResourceLibrary library;
        UserMessage(window, feature.getDisplayString(),
                    CXString::FormatResource(library.getModule(), tooLong, box.getMaxLength()), 0)
            .show();
    }
    return isAccepted;
}

} // namespace zent
