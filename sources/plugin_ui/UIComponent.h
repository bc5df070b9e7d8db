#pragma once

#include <cstdint>
#include <vector>

#include "plugin_ui/UIComponentMessage.h"

namespace zent {

/// A node of the tree of objects that a dialog consists of. It knows further components, which it
/// doesn't own, and passes component messages on to them.
class UIComponent {
public:
    UIComponent();
    virtual ~UIComponent() = default;
    UIComponent(const UIComponent&) = delete;
    UIComponent& operator=(const UIComponent&) = delete;

    /// Offers the message to each component in order, up to the first that says it has handled it.
    /// Returns what the last one said, false if there is none.
    virtual bool sendComponentMessage(const UIComponentMessage& message, std::intptr_t& result);
    /// The component must outlive this one, or be taken out before.
    virtual void addComponent(UIComponent& component);
    virtual bool onSetPrinterDefaultMessage(const UIComponentMessage& message,
                                            std::intptr_t& result);
    virtual bool onSetDefaultTextMessage(const UIComponentMessage& message, std::intptr_t& result);
    /// Writes the printer default of what the component stands for.
    virtual void setPrinterDefault(FeatureSettings& /*settings*/) {}
    /// Names the item that stands for the printer default.
    virtual void setDefaultText(std::uint32_t /*stringId*/) {}

    /// These begin a walk at this component's own list.
    void broadcastPrinterDefault(FeatureSettings& settings);
    void broadcastDefaultText(std::uint32_t stringId);

    const std::vector<UIComponent*>& getComponents() const { return m_components; }

protected:
    void removeComponent(const UIComponent& component);

private:
    bool offerMessage(const UIComponentMessage& message, std::intptr_t& result);

    std::vector<UIComponent*> m_components;
};

} // namespace zent
