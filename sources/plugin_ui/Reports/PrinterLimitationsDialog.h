#pragma once

#include "ocore/Text/CXString.h"
#include "platform/WindowSystem.h"

namespace zent {

/// Shows the report on a ticket that asks for more than its printer can do, and lets the user agree
/// to what becomes of it, or merely note it.
class PrinterLimitationsDialog : public platform::DialogProcedure {
public:
    /// The dialog ends with the number of its button, as a message box does.
    static constexpr std::intptr_t agreed = 1;
    static constexpr std::intptr_t refused = 2;

    /// `label` stands above the report. `offersChoice` says whether the user may refuse; otherwise
    /// the only button is to agree.
    PrinterLimitationsDialog(const CXString& title, const CXString& label, const CXString& report,
                             bool offersChoice);

    /// Runs over a window that may be null. Gives what ended the dialog, 0 if it was closed by
    /// other means, -1 if it couldn't be made. Raises what ResourceLibrary raises.
    std::intptr_t run(platform::WindowSystem& system, platform::WindowHandle owner);

    bool processEvent(platform::Dialog& dialog, std::uint32_t message, std::uintptr_t wParam,
                      std::intptr_t lParam, std::intptr_t& result) override;

private:
    void fill(platform::Dialog& dialog) const;

    CXString m_title;
    CXString m_label;
    CXString m_report;
    bool m_offersChoice;
};

} // namespace zent
