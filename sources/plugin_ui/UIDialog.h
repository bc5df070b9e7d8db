#pragma once

#include "plugin_ui/DialogHandler.h"
#include "plugin_ui/DialogResource.h"
#include "plugin_ui/ObserverSubject.h"

namespace zent {

/// What tells one dialog from another, besides the features that it shows.
struct DialogFacts {
    /// 0 where whoever makes the dialog sets the template.
    std::uint32_t templateId = 0;
    /// Whether stocks are counted in what the dialog edits, and not in the ticket of the session.
    bool bindStockInformation = false;
    /// Whether the window takes the size that its items need.
    bool fitToContent = true;
    /// The buttons that accept and cancel.
    std::uint16_t okId = 1;
    std::uint16_t cancelId = 2;
    /// An item that no feature shows, such as a heading; 0 if there is none.
    std::uint16_t staticItem = 0;
};

/// A dialog: a template, and the tree of objects that bring its items to life. It edits a copy of
/// the settings, which goes over them when the user accepts. It can be run any number of times. Its
/// observers hear when a modeless run was accepted.
class UIDialog : public DialogHandler, public ObserverSubject {
public:
    /// Loads the template, all of whose items are hidden until their controls show them. Raises
    /// what ResourceLibrary and DialogResource raise.
    UIDialog(UIConfiguration& configuration, const DialogFacts& facts);
    /// Closes a modeless window that is open.
    ~UIDialog() override;

    /// Runs the dialog until the user has accepted (true) or not, over a window that may be null.
    /// Raises ResourceAcquisitionException without a template, or without a window system.
    bool runModal(platform::WindowHandle owner, FeatureSettings& settings);
    /// Opens the dialog and returns at once. The settings must live until it is closed.
    void runModeless(platform::WindowHandle owner, FeatureSettings& settings);

    /// With an empty title the window keeps that of the template.
    void setTitle(const CXString& title) { m_title = title; }
    /// Opens the window to the left of the place and as high; at (0, 0) the window system chooses
    /// the place.
    void setScreenPosition(std::int32_t x, std::int32_t y);
    void setTemplate(const DialogResource& resource) { m_templateResource = resource; }
    void setTemplateId(std::uint32_t id);

    /// Null unless the dialog was opened modeless and is open.
    platform::WindowHandle getModelessWindow() const;

    void onDialogCreated(platform::Dialog& dialog) override;
    void onDialogReady(platform::Dialog& dialog) override;
    bool onCommand(const DialogMessage& message, std::intptr_t& result) override;
    bool onDestroy(const DialogMessage& message, std::intptr_t& result) override;

private:
    void accept();
    void cancel();
    void closeModeless();

    DialogFacts m_facts;
    DialogResource m_templateResource;
    CXString m_title;
    std::int32_t m_screenX = 0;
    std::int32_t m_screenY = 0;
    platform::Dialog* m_dialog = &platform::none<platform::Dialog>(); // while it is open
    platform::Dialog* m_modeless = nullptr;                           // the same, if it is modeless
    std::unique_ptr<ResourceLibrary> m_modelessLibrary; // holds the pictures of the window
};

} // namespace zent
