#pragma once

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

} // namespace jobticket
