#include "plugin_ui/DialogHandler.h"

#include "ocore/CurrentWindowSystem.h"
#include "ocore/ExceptionReport.h"
#include "ocore/Stock/StockInformation.h"

namespace zent {

namespace {

constexpr std::uint32_t titleOfWindow = 0; // reports are titled as their dialog
constexpr std::uint32_t noFurtherText = 0;

const CXString& location() {
    static const CXString name(u"DialogHandler::windowProc()");
    return name;
}

} // namespace

bool DialogHandler::processEvent(platform::WindowHandle dialog, std::uint32_t message,
                                 std::uintptr_t wParam, std::intptr_t lParam,
                                 std::intptr_t& result) {
    result = 0;
    try {
        if (message == platform::event::initDialog) {
            startTree(dialog, result);
            return true;
        }
        return processMessage(DialogMessage(dialog, message, wParam, lParam), result);
    } catch (const std::exception& exception) {
        reportException(dialog, exception, titleOfWindow, location(), noFurtherText, u"");
    } catch (...) {
        if (reportUnknownException(dialog, titleOfWindow, location(), noFurtherText, u"")) {
            throw;
        }
    }
    return false;
}

void DialogHandler::startTree(platform::WindowHandle window, std::intptr_t& result) {
    if (m_bindStockInformation) {
        getConfiguration().stockInformation->setSettings(&m_workingSettings);
    }
    onDialogCreated(window);
    const auto settings = reinterpret_cast<std::intptr_t>(&m_workingSettings);
    processMessage(DialogMessage(window, platform::event::initDialog, 0, settings), result);
    onDialogReady(window);
    processMessage(DialogMessage(window, UIM_SHOW), result);
    DialogMessage(window, UIM_SETTINGS_CHANGED).resend();
    if (getConfiguration().readOnly) {
        DialogMessage(window, UIM_LOCK).resend();
    }
}

void DialogHandler::setTarget(FeatureSettings& settings) {
    m_targetSettings = &settings;
    m_workingSettings.setAttrNodeList(*settings.getAttrNodeList());
}

// Into the list itself: the target may be a view, or be viewed.
void DialogHandler::commitSettings() {
    *m_targetSettings->getAttrNodeList() = *m_workingSettings.getAttrNodeList();
}

} // namespace zent
