#include "plugin_ui/Reports/JobTicketUserMessage.h"

#include "ocore/Resources/ResourceLibrary.h"
#include "resources/ids.h"

namespace zent {

JobTicketUserMessage::JobTicketUserMessage(platform::WindowHandle owner, std::uint32_t titleId,
                                           std::uint32_t bodyId, const CXString& subject,
                                           std::uint32_t flags, Severity severity)
    : UserMessage(owner, titleId, bodyId, flags, severity) {
    setBody(getBody() + u"\r\n\r\n" + subject);
}

JobTicketUserMessage::JobTicketUserMessage(platform::WindowHandle owner, std::uint32_t titleId,
                                           const CXString& fileName,
                                           const std::exception& exception)
    : JobTicketUserMessage(owner, titleId, IDS_TICKET_FAILURE, fileName) {
    setException(&exception);
}

std::unique_ptr<UserMessage> JobTicketUserMessage::clone() const {
    // The constructor is out of make_unique's reach.
    return std::unique_ptr<UserMessage>(new JobTicketUserMessage(*this));
}

} // namespace zent
