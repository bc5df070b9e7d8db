#pragma once

#include <cstdint>
#include <string>

#include "ExitStatus.h"
#include "zent27.h"

namespace jobticket {

/// An exported call that failed: which one, on what, with what result. Its status follows from the
/// result.
class LibraryError : public ProgramError {
public:
    /// `subject` is the feature or file that the call was about; may be empty.
    LibraryError(ZentResult result, const char* call, const std::string& subject);

    ZentResult getResult() const { return m_result; }

private:
    ZentResult m_result;
};

/// Raises LibraryError for any result but ZENT_OK.
void check(ZentResult result, const char* call, const std::string& subject = {});

/// What an exported call hands out in a buffer: it is asked first for the size and then for the
/// content. `call` takes the buffer and the size; `name` and `subject` are for messages.
template <typename Content, typename Call>
Content fetch(const char* name, const std::string& subject, const Call& call) {
    std::uint32_t size = 0;
    check(call(nullptr, &size), name, subject);
    Content content(size, typename Content::value_type());
    check(call(content.data(), &size), name, subject);
    return content;
}

} // namespace jobticket
