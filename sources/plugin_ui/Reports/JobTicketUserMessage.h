#pragma once

#include "plugin_ui/Reports/UserMessage.h"

namespace zent {

/// A message box on a failure that has to do with a ticket. Below a resource string it names what
/// the failure is about, such as the ticket's file.
class JobTicketUserMessage : public UserMessage {
public:
    /// Raises what ResourceLibrary raises.
    JobTicketUserMessage(platform::WindowHandle owner, std::uint32_t titleId, std::uint32_t bodyId,
                         const CXString& subject, std::uint32_t flags = 0,
                         Severity severity = Severity::error);
    /// Says that a ticket couldn't be read or written, and quotes the exception's error number. The
    /// exception must outlive the message.
    JobTicketUserMessage(platform::WindowHandle owner, std::uint32_t titleId,
                         const CXString& fileName, const std::exception& exception);

    std::unique_ptr<UserMessage> clone() const override;

protected:
    JobTicketUserMessage(const JobTicketUserMessage&) = default;
    JobTicketUserMessage& operator=(const JobTicketUserMessage&) = default;
};

} // namespace zent
