#pragma once

#include "plugin_ui/Controls/TextBoxUIControl.h"
#include "plugin_ui/Features/UIFeature.h"

namespace zent {

/// A feature that is a text. An empty box leaves the feature out of the ticket.
class TextEntryUIFeature : public UIFeature {
public:
    /// `extraItemId` is a heading, or 0, which shows with the feature but is never disabled with
    /// it: it may stand above several.
    TextEntryUIFeature(UIConfiguration& configuration, std::uint16_t extraItemId,
                       std::uint16_t labelId, std::uint16_t editId, FeatureEnum feature);

    bool isSupported() override;
    void initializeFeature() override;
    void updateFeatureWithNewSettings() override;
    void handleSubjectUpdate(std::uint16_t subjectId) override;
    /// Refuses a text that is too long for the printer: what the ticket brings along may be.
    bool validate(platform::WindowHandle window) override;

    const _FI& getFeature() const { return m_feature; }
    TextBoxUIControl& getTextBox() { return m_textBox; }

protected:
    /// What the ticket holds; empty if it holds nothing.
    CXString readText();
    void writeText(const CXString& text);

private:
    _FI m_feature;
    TextBoxUIControl& m_textBox;
};

} // namespace zent
