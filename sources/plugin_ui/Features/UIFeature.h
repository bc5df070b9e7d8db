#pragma once

#include "ocore/FeatureSettings/FeatureSettings.h"
#include "plugin_ui/ConfigurableUIComponent.h"
#include "plugin_ui/ObserverSubject.h"

namespace zent {

/// As what a feature announces itself to those that depend on it.
enum class FeatureRole : std::uint32_t { none = 0, plex = 1 };

/// Binds controls to a feature of the ticket. It keeps no value of its own: each change that the
/// user makes is written at once to the dialog's working settings, and whether those survive is
/// decided by the dialog.
class UIFeature : public ConfigurableUIComponent, public Observer, public ObserverSubject {
public:
    /// A feature with a role announces itself by UIM_FEATURE_ANNOUNCE when its dialog starts. Who
    /// depends on it attaches itself then, and hears of each change.
    explicit UIFeature(UIConfiguration& configuration, FeatureEnum parentFeature = jobLevel,
                       FeatureRole role = FeatureRole::none)
        : ConfigurableUIComponent(configuration, parentFeature), m_role(role) {}

    /// The dialog's working settings; null before the dialog starts.
    virtual FeatureSettings* getSettings() { return m_settings; }
    /// Whether the printer has the feature. If not, this object goes before the dialog starts.
    virtual bool isSupported() = 0;
    Support getSupport() final { return isSupported() ? Support::supported : Support::unsupported; }
    /// Makes the controls show what the settings hold.
    virtual void updateFeatureWithNewSettings() = 0;
    /// Fills the controls with what the printer offers: once per start of the dialog, after the
    /// children.
    virtual void initializeFeature() {}
    // handleSubjectUpdate() reads the control of that identity and writes its value to the
    // settings.

    bool onInitDialog(const DialogMessage& message, std::intptr_t& result) override;
    bool onSettingsChanged(const DialogMessage& message, std::intptr_t& result) override;
    bool onDestroy(const DialogMessage& message, std::intptr_t& result) override;

    /// Passes the settings on to the children that are features.
    void setSettings(FeatureSettings* settings) override;

protected:
    platform::WindowHandle getWindow() const { return m_dialog->getHandle(); }

    /// Adds a label that shows and hides with the feature.
    void addStaticControl(std::uint16_t item);
    /// These make this feature, or each feature of the dialog, show the settings anew.
    void refreshSelf();
    void refreshDialog();
    void enableSelf();
    void disableSelf();
    /// Tells whoever holds the dialog that the ticket has changed.
    void reportChanged();

    /// The feature that a message announces in the role; null if it announces another.
    static UIFeature* findAnnounced(const DialogMessage& message, FeatureRole role);

private:
    void deliver(std::uint32_t message);
    void announce();

    FeatureRole m_role;
    platform::Dialog* m_dialog = &platform::none<platform::Dialog>();
    FeatureSettings* m_settings = nullptr;
};

} // namespace zent
