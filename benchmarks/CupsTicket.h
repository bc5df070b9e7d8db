#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include <cups/cups.h>

#include "ocore/Attributes/AttrNodeList.h"

namespace zent::bench {

struct DeleteMessage {
    void operator()(ipp_t* message) const { ippDelete(message); }
};
using Message = std::unique_ptr<ipp_t, DeleteMessage>;

/// The attributes of a ticket as an IPP message (RFC 8010), which is to libcups what a state blob
/// is to the library. All operations throw std::runtime_error on failure.
class CupsTicket {
public:
    explicit CupsTicket(const AttrNodeList& list);

    /// ippWriteIO into memory. The bytes are valid until the next call.
    std::string_view write();
    /// ippReadIO from memory.
    static Message read(std::string_view bytes);

private:
    Message m_message;
    std::vector<char> m_written;
};

} // namespace zent::bench
