#include "plugin_ui/UIDialog.h"

#include <utility>

#include "plugin_ui/DialogFitting.h"
#include "plugin_ui/DialogValidation.h"
#include "plugin_ui/Reports/CurrentWindowSystem.h"

namespace zent {

namespace {

/// A modal dialog ends with one of these.
constexpr std::intptr_t cancelled = 0;
constexpr std::intptr_t accepted = 1;

} // namespace

UIDialog::UIDialog(UIConfiguration& configuration, const DialogFacts& facts)
    : DialogHandler(configuration, facts.bindStockInformation), m_facts(facts) {
    if (m_facts.templateId != 0) {
        setTemplateId(m_facts.templateId);
    }
}

UIDialog::~UIDialog() {
    if (m_modeless != nullptr) {
        closeModeless();
    }
}

void UIDialog::setTemplateId(std::uint32_t id) {
    m_templateResource.setResource(id, true);
    m_templateResource.load(ResourceLibrary());
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
    m_modeless = windowSystem().createModeless(m_templateResource.getTemplate(),
                                               m_modelessLibrary->getModule(), owner, *this);
}

platform::WindowHandle UIDialog::getModelessWindow() const {
    return m_modeless != nullptr ? m_modeless->getHandle() : nullptr;
}

void UIDialog::onDialogCreated(platform::Dialog& dialog) {
    m_dialog = &dialog;
    if (!m_title.isEmpty()) {
        dialog.setCaption(m_title);
    }
    if (m_facts.fitToContent) {
        fitDialogToContent(dialog, m_facts.okId);
    }
}

void UIDialog::onDialogReady(platform::Dialog& dialog) {
    if (m_screenX != 0 || m_screenY != 0) {
        dialog.moveTo(
            placePopup(dialog.getWindowRectangle(), m_screenX, m_screenY, dialog.getWorkArea()));
    }
    auto& accepting = dialog.item<platform::ButtonItem>(m_facts.okId);
    accepting.makeDefault(); // for a template that was merged in may have brought another
    accepting.show(true);
    dialog.item(m_facts.cancelId).show(true);
}

bool UIDialog::onCommand(const DialogMessage& message, std::intptr_t& result) {
    if (message.getItem() == m_facts.okId) {
        if (validateDialog(message.getDialog())) {
            accept();
        }
        return true;
    }
    if (message.getItem() == m_facts.cancelId) {
        cancel();
        return true;
    }
    return processChildren(message, result);
}

// Nobody waits for a modeless dialog, so that one commits by itself and tells its observers.
void UIDialog::accept() {
    if (m_modeless == nullptr) {
        m_dialog->end(accepted);
        return;
    }
    commitSettings();
    closeModeless();
    notifyObservers();
}

void UIDialog::cancel() {
    if (m_modeless == nullptr) {
        m_dialog->end(cancelled);
    } else {
        closeModeless();
    }
}

void UIDialog::closeModeless() { std::exchange(m_modeless, nullptr)->destroy(); }

bool UIDialog::onDestroy(const DialogMessage& message, std::intptr_t& result) {
    const bool isHandled = DialogHandler::onDestroy(message, result);
    m_dialog = &platform::none<platform::Dialog>();
    m_modeless = nullptr; // it may have been closed by its frame
    return isHandled;
}

} // namespace zent
