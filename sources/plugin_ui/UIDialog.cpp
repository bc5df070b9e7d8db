#include "plugin_ui/UIDialog.h"

#include <utility>

#include "plugin_ui/DialogFitting.h"
#include "plugin_ui/DialogValidation.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent {

namespace {

/// What ends a modal dialog.
constexpr std::intptr_t cancelled = 0;
constexpr std::intptr_t accepted = 1;

} // namespace

UIDialog::UIDialog(UIConfiguration& configuration, std::uint32_t templateId,
                   FeatureEnum parentFeature, bool bindStockInformation, bool fitToContent)
    : DialogHandler(configuration, parentFeature, bindStockInformation),
      m_fitToContent(fitToContent) {
    setTemplateId(templateId);
}

UIDialog::~UIDialog() {
    if (m_modelessWindow != nullptr) {
        closeModeless();
    }
}

void UIDialog::setTemplateId(std::uint32_t id) {
    m_templateResource.setResource(id, true);
    m_templateResource.load(ResourceLibrary());
}

void UIDialog::setButtonIds(std::uint16_t okId, std::uint16_t cancelId) {
    m_okId = okId;
    m_cancelId = cancelId;
}

void UIDialog::setScreenPosition(std::int32_t x, std::int32_t y) {
    m_screenX = x;
    m_screenY = y;
}

bool UIDialog::runModal(platform::WindowHandle owner, FeatureSettings& settings) {
    const ResourceLibrary library;
    setTarget(settings);
    // A dialog that couldn't be made (-1) counts as accepted: the settings stay as they were.
    const bool isAccepted = windowSystem().runModal(m_templateResource.getTemplate(),
                                                    library.getModule(), owner, *this) != cancelled;
    if (isAccepted) {
        commitSettings();
    }
    return isAccepted;
}

void UIDialog::runModeless(platform::WindowHandle owner, FeatureSettings& settings) {
    m_modelessLibrary = std::make_unique<ResourceLibrary>();
    setTarget(settings);
    m_modelessWindow = windowSystem().createModeless(m_templateResource.getTemplate(),
                                                     m_modelessLibrary->getModule(), owner, *this);
}

void UIDialog::onDialogCreated(platform::WindowHandle window) {
    m_dialogWindow = window;
    if (!m_title.isEmpty()) {
        windowSystem().setCaption(window, m_title);
    }
    if (m_fitToContent) {
        fitDialogToContent(window, m_okId);
    }
}

void UIDialog::onDialogReady(platform::WindowHandle window) {
    platform::WindowSystem& system = windowSystem();
    if (m_screenX != 0 || m_screenY != 0) {
        system.moveWindow(window, placePopup(system.getWindowRectangle(window), m_screenX,
                                             m_screenY, system.getWorkArea(window)));
    }
    system.setDefaultButton(window, m_okId); // a template merged in may have brought another
    system.showItem(window, m_okId, true);
    system.showItem(window, m_cancelId, true);
}

bool UIDialog::onCommand(const DialogMessage& message, std::intptr_t& result) {
    if (message.getItem() == m_okId) {
        if (validateDialog(message.getWindow())) {
            accept();
        }
        return true;
    }
    if (message.getItem() == m_cancelId) {
        cancel();
        return true;
    }
    return processChildren(message, result);
}

void UIDialog::accept() {
    if (m_modelessWindow == nullptr) {
        windowSystem().endDialog(m_dialogWindow, accepted);
        return;
    }
    commitSettings();
    closeModeless();
    notifyObservers();
}

void UIDialog::cancel() {
    if (m_modelessWindow == nullptr) {
        windowSystem().endDialog(m_dialogWindow, cancelled);
    } else {
        closeModeless();
    }
}

void UIDialog::closeModeless() {
    windowSystem().destroyDialog(std::exchange(m_modelessWindow, nullptr));
}

bool UIDialog::onDestroy(const DialogMessage& message, std::intptr_t& result) {
    const bool isHandled = DialogHandler::onDestroy(message, result);
    m_dialogWindow = nullptr;
    m_modelessWindow = nullptr; // it may have been closed by its frame
    return isHandled;
}

} // namespace zent
