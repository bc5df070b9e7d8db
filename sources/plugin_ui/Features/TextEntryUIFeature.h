#pragma once

#include "plugin_ui/Controls/TextBoxUIControl.h"
#include "plugin_ui/Features/UIFeature.h"

namespace zent {

class TextEntryUIFeature;

/// What tells one text from another.
struct TextEntryRow {
    using Class = TextEntryUIFeature;

    FeatureEnum feature{};
    /// A heading, which shows with the feature but is never disabled with it, since it may stand
    /// above several; 0 for none.
    std::uint16_t extraItemId = 0;
    std::uint16_t labelId = 0;
    std::uint16_t editId = 0;
};

/// A feature that is a text. An empty box leaves the feature out of the ticket.
class TextEntryUIFeature : public UIFeature {
public:
    TextEntryUIFeature(UIConfiguration& configuration, const TextEntryRow& row,
                       FeatureEnum parentFeature = jobLevel);

    bool isSupported() override;
    void initializeFeature() override;
    void updateFeatureWithNewSettings() override;
    void handleSubjectUpdate(std::uint16_t subjectId) override;
    /// Refuses a text that is too long for the printer, as one that the ticket brings along may be.
    bool validate(platform::WindowHandle window) override;

    const _FI& getFeature() const { return m_feature; }
    TextBoxUIControl& getTextBox() { return m_textBox; }

protected:
    /// Gives what the ticket holds, the empty text if it holds nothing.
    CXString readText();
    void writeText(const CXString& text);

private:
    _FI m_feature;
    TextBoxUIControl& m_textBox;
};

} // namespace zent
