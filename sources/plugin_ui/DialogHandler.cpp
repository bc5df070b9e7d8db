#include "plugin_ui/DialogHandler.h"

#include "ocore/Stock/StockInformation.h"
#include "platform/KeepForever.h"
#include "plugin_ui/FirstFailure.h"
#include "plugin_ui/Reports/ExceptionReport.h"

namespace zent {

namespace {

constexpr std::uint32_t titleOfWindow = 0; // reports are titled as their dialog
constexpr std::uint32_t noFurtherText = 0;

std::intptr_t resultOfFailure(std::uint32_t message) {
    const bool isValidation = message == UIM_VALIDATE || message == UIM_VALIDATE_FOR_SAVE;
    return isValidation ? validation::refused : 0;
}

const CXString& location() {
    static const CXString& name = keepForever<CXString>(u"DialogHandler::windowProc()");
    return name;
}

} // namespace

bool DialogHandler::processEvent(platform::Dialog& dialog, std::uint32_t message,
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
        reportException(dialog.getHandle(), exception, titleOfWindow, location(), noFurtherText,
                        u"");
    } catch (...) {
        if (reportUnknownException(dialog.getHandle(), titleOfWindow, location(), noFurtherText,
                                   u"")) {
            throw;
        }
    }
    result = resultOfFailure(message);
    return false;
}

// Each step is taken even if one before it failed: half a dialog with its buttons can be closed,
// one that nobody has shown can't.
void DialogHandler::startTree(platform::Dialog& dialog, std::intptr_t& result) {
    FirstFailure failure;
    const auto deliver = [&](const DialogMessage& message) {
        failure.attempt([&] { processMessage(message, result); });
    };
    m_startedReadOnly = getConfiguration().readOnly;
    if (m_bindStockInformation) {
        getConfiguration().stockInformation->setSettings(&m_workingSettings);
    }
    failure.attempt([&] { onDialogCreated(dialog); });
    const auto settings = reinterpret_cast<std::intptr_t>(&m_workingSettings);
    deliver(DialogMessage(dialog, platform::event::initDialog, 0, settings));
    failure.attempt([&] { onDialogReady(dialog); });
    deliver(DialogMessage(dialog, UIM_SHOW));
    deliver(DialogMessage(dialog, UIM_SETTINGS_CHANGED));
    if (getConfiguration().readOnly) {
        deliver(DialogMessage(dialog, UIM_LOCK));
    }
    failure.raise();
}

bool DialogHandler::onDestroy(const DialogMessage& message, std::intptr_t& result) {
    const bool isHandled = processChildren(message, result);
    getConfiguration().readOnly = m_startedReadOnly;
    return isHandled;
}

void DialogHandler::setTarget(FeatureSettings& settings) {
    m_targetSettings = &settings;
    m_workingSettings.setAttrNodeList(*settings.getAttrNodeList());
}

// The list itself is assigned, since the target may be a view, or be viewed.
void DialogHandler::commitSettings() {
    *m_targetSettings->getAttrNodeList() = *m_workingSettings.getAttrNodeList();
}

} // namespace zent
