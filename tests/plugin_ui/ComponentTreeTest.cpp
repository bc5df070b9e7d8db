#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureSettings.h"
#include "plugin_ui/MessageProcessorWithChildren.h"
#include "plugin_ui/TestDialog.h"
#include "support/LibraryTesting.h"

namespace zent::test {
namespace {

using Log = std::string;

platform::Dialog& noDialog = platform::none<platform::Dialog>();

/// Writes down what reaches it, and answers as its maker wants.
class Node : public MessageProcessorWithChildren {
public:
    Node(Log& log, std::string name, bool accepts = true)
        : m_log(log), m_name(std::move(name)), m_accepts(accepts) {}

    bool validate(platform::WindowHandle /*window*/) override {
        note("asked");
        return m_accepts;
    }
    bool onCommand(const DialogMessage& message, std::intptr_t& result) override {
        note("command");
        return message.getItem() == 9 && m_name == "b" ? true : processChildren(message, result);
    }
    void setPrinterDefault(FeatureSettings& /*settings*/) override { note("default"); }
    void setDefaultText(std::uint32_t id) override { note("text " + std::to_string(id)); }

private:
    void note(const std::string& what) { m_log += m_name + " " + what + "; "; }

    Log& m_log;
    std::string m_name;
    bool m_accepts;
};

TEST(ComponentTreeTest, MessagesGoDepthFirstUntilOneIsHandled) {
    Log log;
    Node root(log, "root");
    root.makeChild<Node>(log, "a").makeChild<Node>(log, "a1");
    root.makeChild<Node>(log, "b");
    root.makeChild<Node>(log, "c");
    std::intptr_t result = 0;
    EXPECT_FALSE(root.processMessage({noDialog, platform::event::command, 8}, result));
    EXPECT_EQ(log, "root command; a command; a1 command; b command; c command; ");
    log.clear();
    EXPECT_TRUE(root.processMessage({noDialog, platform::event::command, 9}, result));
    EXPECT_EQ(log, "root command; a command; a1 command; b command; ");
}

TEST(ComponentTreeTest, TheFirstRefusalEndsAValidation) {
    for (const auto& [secondAccepts, asked, answer] : Rows<bool, const char*, std::intptr_t>{
             {true, "a asked; b asked; c asked; root asked; ", 1},
             {false, "a asked; b asked; ", 2}}) {
        for (const std::uint32_t message : {UIM_VALIDATE, UIM_VALIDATE_FOR_SAVE}) {
            Log log;
            Node root(log, "root");
            root.makeChild<Node>(log, "a");
            root.makeChild<Node>(log, "b", secondAccepts);
            root.makeChild<Node>(log, "c");
            std::intptr_t result = 0;
            root.processMessage({noDialog, message}, result);
            EXPECT_EQ(log, asked);
            EXPECT_EQ(result, answer);
        }
    }
}

TEST(ComponentTreeTest, ComponentMessagesReachWhatIsRegistered) {
    Log log;
    Node elsewhere(log, "elsewhere"); // as a dialog that a button opens
    Node root(log, "root");
    Node& child = root.makeChild<Node>(log, "a");
    child.addComponent(elsewhere);
    FeatureSettings settings;
    root.broadcastPrinterDefault(settings);
    root.broadcastDefaultText(5604);
    EXPECT_EQ(log, "a default; elsewhere default; a text 5604; elsewhere text 5604; ");
    std::intptr_t result = 0;
    log.clear();
    root.sendComponentMessage({3, 0, nullptr}, result);
    EXPECT_EQ(log, "");
    EXPECT_EQ((UIComponentMessage{2, 5604, nullptr}.getDebugText()),
              u"UIComponentMessage::UIMsgSetPrinterDefault (0x2), wParam = 5604 (0x15e4)");
}

class Feature : public TestFeature {
public:
    Feature(UIConfiguration& configuration, bool isThere)
        : TestFeature(configuration), m_isThere(isThere) {}
    bool isSupported() override { return m_isThere; }

private:
    bool m_isThere;
};

TEST(ComponentTreeTest, ConfiguringTakesOutWhatThePrinterLacks) {
    UIConfiguration configuration{.preferences = UserPreferences(u"")};
    Log log;
    ConfigurableUIComponent root(configuration);
    Node& label = root.makeChild<Node>(log, "label");
    EXPECT_FALSE(root.configure()); // what is no feature stays, and doesn't count
    root.makeChild<Feature>(configuration, false);
    auto& kept = root.makeChild<Feature>(configuration, true);
    root.makeChild<Feature>(configuration, false);
    EXPECT_TRUE(root.configure());
    EXPECT_EQ(root.getComponents(), (std::vector<UIComponent*>{&label, &kept}));
    EXPECT_EQ(root.getChildren().size(), 2U);
    root.setParentFeature(feature::pageOverrides);
    EXPECT_EQ(kept.getParentFeature(), feature::pageOverrides);
}

} // namespace
} // namespace zent::test
