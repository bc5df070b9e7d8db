#pragma once

#include "plugin_ui/DialogHandler.h"
#include "plugin_ui/DialogResource.h"
#include "plugin_ui/ObserverSubject.h"

namespace zent {

/// A dialog: a template, and the tree of objects behind its items. It edits a copy of the settings,
/// which goes over them when the user accepts. It can be run any number of times. Its observers
/// hear of a modeless run that was accepted.
class UIDialog : public DialogHandler, public ObserverSubject {
public:
    /// Loads the template, all of whose items are hidden until their controls show them. Raises
    /// what ResourceLibrary and DialogResource raise. `fitToContent`: the window takes the size
    /// that its items need.
    UIDialog(UIConfiguration& configuration, std::uint32_t templateId, FeatureEnum parentFeature,
             bool bindStockInformation, bool fitToContent = true);
    /// Without a template, which is to be set.
    UIDialog(UIConfiguration& configuration, FeatureEnum parentFeature, bool bindStockInformation)
        : DialogHandler(configuration, parentFeature, bindStockInformation) {}
    /// Closes a modeless window that is open.
    ~UIDialog() override;

    /// Runs the dialog until the user has accepted (true) or not, over a window that may be null.
    /// Raises ResourceAcquisitionException without a template, or without a window system.
    bool runModal(platform::WindowHandle owner, FeatureSettings& settings);
    /// Opens the dialog and returns at once. The settings must live until it is closed.
    void runModeless(platform::WindowHandle owner, FeatureSettings& settings);

    /// The items of the buttons that accept and cancel.
    void setButtonIds(std::uint16_t okId, std::uint16_t cancelId);
    /// Empty: as the template has it.
    void setTitle(const CXString& title) { m_title = title; }
    /// Opens the window to the left of the place and as high. (0, 0): where the window system
    /// likes.
    void setScreenPosition(std::int32_t x, std::int32_t y);
    void setTemplate(const DialogResource& resource) { m_templateResource = resource; }
    void setTemplateId(std::uint32_t id);

    std::uint16_t getOkId() const { return m_okId; }
    std::uint16_t getCancelId() const { return m_cancelId; }
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

    DialogResource m_templateResource;
    CXString m_title;
    std::uint16_t m_okId = 1;
    std::uint16_t m_cancelId = 2;
    bool m_fitToContent = true;
    std::int32_t m_screenX = 0;
    std::int32_t m_screenY = 0;
    platform::Dialog* m_dialog = &platform::none<platform::Dialog>(); // while it is open
    platform::Dialog* m_modeless = nullptr;                           // the same, if it is modeless
    std::unique_ptr<ResourceLibrary> m_modelessLibrary; // holds the pictures of the window
};

} // namespace zent
