#include "plugin_ui/Reports/PrinterLimitationsDialog.h"

#include "ocore/Resources/ResourceLibrary.h"
#include "resources/ids.h"

namespace zent {

namespace {

namespace item {
constexpr std::uint16_t agree = 1;
constexpr std::uint16_t refuse = 2; // stands alone, for agreeing, where there is no choice
} // namespace item

} // namespace

PrinterLimitationsDialog::PrinterLimitationsDialog(const CXString& title, const CXString& label,
                                                   const CXString& report, bool offersChoice)
    : m_title(title), m_label(label), m_report(report), m_offersChoice(offersChoice) {}

// This is no tree of components, for there is no ticket to edit: the report is shown and answered.
std::intptr_t PrinterLimitationsDialog::run(platform::WindowSystem& system,
                                            platform::WindowHandle owner) {
    const ResourceLibrary library;
    const ResourceData dialog = library.loadDialog(IDD_TICKET_CHECK);
    return system.runModal(dialog.getBytes().bytes(), library.getModule(), owner, *this);
}

bool PrinterLimitationsDialog::processEvent(platform::Dialog& dialog, std::uint32_t message,
                                            std::uintptr_t wParam, std::intptr_t /*lParam*/,
                                            std::intptr_t& /*result*/) {
    if (message == platform::event::initDialog) {
        fill(dialog);
        return true;
    }
    if (message != platform::event::command) {
        return false;
    }
    const auto button = static_cast<std::uint16_t>(wParam);
    if (button != item::agree && button != item::refuse) {
        return false;
    }
    const bool isRefusal = button == item::refuse && m_offersChoice;
    dialog.end(isRefusal ? refused : agreed);
    return true;
}

void PrinterLimitationsDialog::fill(platform::Dialog& dialog) const {
    dialog.setCaption(m_title);
    dialog.item(IDC_TICKET_CHECK_LABEL).setText(m_label);
    dialog.item(IDC_TICKET_CHECK_REPORT).setText(m_report);
    if (!m_offersChoice) {
        // The button on the right stays, so that the row looks as it does in other boxes.
        platform::DialogItem& agreeing = dialog.item(item::agree);
        platform::DialogItem& remaining = dialog.item(item::refuse);
        remaining.setText(agreeing.getText());
        agreeing.remove();
        remaining.focus();
    }
}

} // namespace zent
