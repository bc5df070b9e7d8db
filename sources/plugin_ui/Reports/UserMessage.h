#pragma once

#include <cstdint>
#include <exception>
#include <memory>

#include "ocore/Text/CXString.h"
#include "platform/System.h"

namespace zent {

/// These are bits of a message box's style.
namespace messageStyle {
constexpr std::uint32_t okCancel = 1;
constexpr std::uint32_t errorIcon = 16;
constexpr std::uint32_t questionIcon = 32;
constexpr std::uint32_t warningIcon = 48;
constexpr std::uint32_t informationIcon = 64;
constexpr std::uint32_t taskModal = 8192;
} // namespace messageStyle

/// show() answers with the button that was pressed.
namespace messageAnswer {
constexpr std::int32_t ok = 1;
constexpr std::int32_t cancel = 2;
} // namespace messageAnswer

/// A message box waiting to be shown. The style's icon follows from the severity, and its modality
/// from whether there is an owner window; both are kept current by each setter.
class UserMessage {
public:
    enum class Severity : std::uint32_t { information = 1, warning = 2, error = 3, question = 4 };

    explicit UserMessage(platform::WindowHandle owner);
    UserMessage(platform::WindowHandle owner, CXString title, CXString body, std::uint32_t flags,
                Severity severity = Severity::error);
    UserMessage(CXString title, CXString body, std::uint32_t flags,
                Severity severity = Severity::error);
    /// Takes title and body by the numbers of resource strings; raises what ResourceLibrary raises.
    UserMessage(platform::WindowHandle owner, std::uint32_t titleId, std::uint32_t bodyId,
                std::uint32_t flags, Severity severity = Severity::error);
    UserMessage(std::uint32_t titleId, std::uint32_t bodyId, std::uint32_t flags,
                Severity severity = Severity::error);
    virtual ~UserMessage() = default;

    virtual std::unique_ptr<UserMessage> clone() const;

    void setOwner(platform::WindowHandle owner);
    void setTitle(const CXString& title) { m_title = title; }
    void setTitle(std::uint32_t id);
    /// Appends the error number of the exception that is set.
    void setBody(const CXString& body);
    void setBody(std::uint32_t id);
    void setFlags(std::uint32_t flags);
    void setSeverity(Severity severity);
    /// Quotes an exception, which must outlive the message, by its error number; null quotes none
    /// from now on.
    void setException(const std::exception* exception);

    platform::WindowHandle getOwner() const { return m_owner; }
    const CXString& getTitle() const { return m_title; }
    const CXString& getBody() const { return m_body; }
    std::uint32_t getFlags() const { return m_flags; }

    /// Shows the box and returns the button pressed.
    std::int32_t show() const;

    /// Tests put their own function in the place of the one that shows boxes, and null restores it.
    using Presenter = std::int32_t (*)(platform::WindowHandle owner, std::u16string_view body,
                                       std::u16string_view title, std::uint32_t flags);
    static void setPresenter(Presenter presenter);

protected:
    UserMessage(const UserMessage&) = default;
    UserMessage& operator=(const UserMessage&) = default;

private:
    void deriveStyle();
    void quoteException();

    platform::WindowHandle m_owner = nullptr;
    CXString m_title;
    CXString m_body;
    std::uint32_t m_flags = 0;
    Severity m_severity = Severity::error;
    const std::exception* m_exception = nullptr;
};

} // namespace zent
