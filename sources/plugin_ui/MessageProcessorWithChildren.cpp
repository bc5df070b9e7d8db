#include "plugin_ui/MessageProcessorWithChildren.h"

#include <algorithm>

namespace zent {

MessageProcessorWithChildren::MessageProcessorWithChildren() {
    constexpr std::size_t usualCount = 10;
    m_children.reserve(usualCount);
}

// By index: a handler may add children.
bool MessageProcessorWithChildren::processChildren(const DialogMessage& message,
                                                   std::intptr_t& result) {
    for (std::size_t i = 0; i < m_children.size(); ++i) {
        if (m_children[i]->processMessage(message, result)) {
            return true;
        }
    }
    return false;
}

void MessageProcessorWithChildren::addChild(std::unique_ptr<MessageProcessor> child) {
    MessageProcessor& added = *child;
    m_children.push_back(std::move(child));
    addComponent(added);
}

bool MessageProcessorWithChildren::hasChild(const MessageProcessor& child) const {
    return std::ranges::find(m_children, &child, &std::unique_ptr<MessageProcessor>::get) !=
           m_children.end();
}

void MessageProcessorWithChildren::removeChild(const MessageProcessor& child) {
    removeComponent(child);
    std::erase_if(m_children, [&](const auto& owned) { return owned.get() == &child; });
}

} // namespace zent
