#pragma once

#include <memory>

#include "plugin_ui/MessageProcessor.h"

namespace zent {

/// Owns further processors, and passes messages on to them in the order in which they were added.
class MessageProcessorWithChildren : public MessageProcessor {
public:
    MessageProcessorWithChildren();

    /// A failure ends the walk, but for messages of a dialog's start and end and for a change of
    /// the settings: those reach each child, and the first failure is raised after them.
    bool processChildren(const DialogMessage& message, std::intptr_t& result) override;
    /// The child, which mustn't be null, becomes a component as well.
    virtual void addChild(std::unique_ptr<MessageProcessor> child);
    /// Makes a child, adds it and gives it.
    template <typename Child, typename... Args>
    Child& makeChild(Args&&... args) {
        auto child = std::make_unique<Child>(std::forward<Args>(args)...);
        Child& made = *child;
        addChild(std::move(child));
        return made;
    }

    const std::vector<std::unique_ptr<MessageProcessor>>& getChildren() const { return m_children; }
    bool hasChild(const MessageProcessor& child) const;

protected:
    /// Takes a child out of both lists and destroys it.
    void removeChild(const MessageProcessor& child);

private:
    std::vector<std::unique_ptr<MessageProcessor>> m_children;
};

} // namespace zent
