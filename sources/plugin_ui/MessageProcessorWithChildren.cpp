#include "plugin_ui/MessageProcessorWithChildren.h"

#include <algorithm>

#include "plugin_ui/FirstFailure.h"

namespace zent {

namespace {

/// Whether the nodes after one that fails are to hear of a message all the same. A feature that
/// can't be shown mustn't keep others from being shown, locked or taken down.
bool isForEachNode(const DialogMessage& message) {
    switch (message.getMessage()) {
    case platform::event::initDialog:
    case platform::event::destroy:
    case UIM_SHOW:
    case UIM_SETTINGS_CHANGED:
    case UIM_LOCK:
        return true;
    default:
        return false;
    }
}

} // namespace

MessageProcessorWithChildren::MessageProcessorWithChildren() {
    constexpr std::size_t usualCount = 10;
    m_children.reserve(usualCount);
}

// An index is safe where an iterator isn't, since a handler may add children.
bool MessageProcessorWithChildren::processChildren(const DialogMessage& message,
                                                   std::intptr_t& result) {
    FirstFailure failure;
    bool isHandled = false;
    for (std::size_t i = 0; i < m_children.size() && !isHandled; ++i) {
        try {
            isHandled = m_children[i]->processMessage(message, result);
        } catch (...) {
            if (!isForEachNode(message)) {
                throw;
            }
            failure.keepCurrent();
        }
    }
    failure.raise();
    return isHandled;
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
