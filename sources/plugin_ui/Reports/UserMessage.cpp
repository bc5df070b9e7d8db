#include "plugin_ui/Reports/UserMessage.h"

#include <atomic>
#include <utility>

#include "ocore/Faults/TarvoException.h"
#include "ocore/Resources/ResourceLibrary.h"

namespace zent {

namespace {

std::atomic<UserMessage::Presenter> currentPresenter = platform::showMessageBox;

CXString loadText(std::uint32_t id) { return ResourceLibrary().getString(id); }

} // namespace

UserMessage::UserMessage(platform::WindowHandle owner)
    : UserMessage(owner, CXString(), CXString(), 0) {}

UserMessage::UserMessage(platform::WindowHandle owner, CXString title, CXString body,
                         std::uint32_t flags, Severity severity)
    : m_owner(owner), m_title(std::move(title)), m_body(std::move(body)), m_flags(flags),
      m_severity(severity) {
    deriveStyle();
}

UserMessage::UserMessage(CXString title, CXString body, std::uint32_t flags, Severity severity)
    : UserMessage(nullptr, std::move(title), std::move(body), flags, severity) {}

UserMessage::UserMessage(platform::WindowHandle owner, std::uint32_t titleId, std::uint32_t bodyId,
                         std::uint32_t flags, Severity severity)
    : UserMessage(owner, loadText(titleId), loadText(bodyId), flags, severity) {}

UserMessage::UserMessage(std::uint32_t titleId, std::uint32_t bodyId, std::uint32_t flags,
                         Severity severity)
    : UserMessage(nullptr, titleId, bodyId, flags, severity) {}

std::unique_ptr<UserMessage> UserMessage::clone() const {
    // The constructor is out of make_unique's reach.
    return std::unique_ptr<UserMessage>(new UserMessage(*this));
}

void UserMessage::setOwner(platform::WindowHandle owner) {
    m_owner = owner;
    deriveStyle();
}

void UserMessage::setTitle(std::uint32_t id) { setTitle(loadText(id)); }

void UserMessage::setBody(const CXString& body) {
    m_body = body;
    quoteException();
}

void UserMessage::setBody(std::uint32_t id) { setBody(loadText(id)); }

void UserMessage::setFlags(std::uint32_t flags) {
    m_flags = flags;
    deriveStyle();
}

void UserMessage::setSeverity(Severity severity) {
    m_severity = severity;
    deriveStyle();
}

void UserMessage::setException(const std::exception* exception) {
    m_exception = exception;
    quoteException();
}

void UserMessage::quoteException() {
    if (m_exception != nullptr) {
        m_body += u"\r\n\r\n" + getErrorNumberText(*m_exception);
    }
}

// A warning's icon has the bits of an error's and a question's, so there is nothing to clear for it
// but information.
void UserMessage::deriveStyle() {
    using namespace messageStyle;
    const auto setIcon = [this](std::uint32_t icon, std::uint32_t cleared) {
        m_flags = (m_flags & ~cleared) | icon;
    };
    switch (m_severity) {
    case Severity::information:
        setIcon(informationIcon, errorIcon | questionIcon);
        break;
    case Severity::warning:
        setIcon(warningIcon, informationIcon);
        break;
    case Severity::question:
        setIcon(questionIcon, informationIcon | errorIcon);
        break;
    default:
        setIcon(errorIcon, informationIcon | questionIcon);
        break;
    }
    m_flags = m_owner != nullptr ? m_flags & ~taskModal : m_flags | taskModal;
}

std::int32_t UserMessage::show() const {
    return currentPresenter.load()(m_owner, m_body, m_title, m_flags);
}

void UserMessage::setPresenter(Presenter presenter) {
    currentPresenter = presenter != nullptr ? presenter : platform::showMessageBox;
}

} // namespace zent
