#pragma once

#include "plugin_ui/Features/UIFeature.h"
#include "plugin_ui/UIDialog.h"
#include "support/FakeWindowSystem.h"
#include "support/LibraryTesting.h"
#include "support/ListCapabilities.h"
#include "support/TemplateBuilder.h"

namespace zent::test {

/// A dialog of a test's own items; the tree is for the test to make.
class TestDialog : public UIDialog {
public:
    TestDialog(UIConfiguration& configuration, const TemplateBuilder& items,
               const DialogFacts& facts = {})
        : UIDialog(configuration, facts) {
        DialogResource resource(1, true);
        resource.load(items.build());
        setTemplate(resource);
    }
};

/// A feature that every printer has and that does nothing by itself.
class TestFeature : public UIFeature {
public:
    using UIFeature::UIFeature;
    bool isSupported() override { return true; }
    void updateFeatureWithNewSettings() override {}
    void handleSubjectUpdate(std::uint16_t /*subjectId*/) override {}
};

/// What every dialog of a test stands on: windows, a printer, and a user without preferences.
class DialogFixture : public testing::Test {
protected:
    explicit DialogFixture(std::string_view capabilities, std::uint32_t model = 43)
        : m_capabilities((useResourceLibrary(), capabilitiesOf(capabilities, model))),
          m_configuration{.capabilities = &m_capabilities, .preferences = UserPreferences(u"")} {}

    std::string ticket() const { return textOfList(*m_ticket.getAttrNodeList()); }

    FakeWindowSystem m_windows;
    Capabilities m_capabilities;
    UIConfiguration m_configuration;
    FeatureSettings m_ticket;
};

} // namespace zent::test
