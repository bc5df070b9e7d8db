#include "ocore/User/User.h"

#include "ocore/Faults/Exceptions.h"
#include "ocore/Faults/Trace.h"
#include "platform/Locale.h"
#include "platform/UserIdentity.h"

namespace zent {

namespace {

/// The codes of StockSize for the papers of locales.
constexpr std::uint32_t sizeLetter = 2;
constexpr std::uint32_t sizeLegal = 3;
constexpr std::uint32_t sizeA4 = 8;
constexpr std::uint32_t sizeA3 = 9;

/// Traces what went wrong on the way without being a failure.
void traceError(std::uint32_t systemError) {
    if (systemError != 0) {
        trace::systemErrorText(systemError, 0);
    }
}

/// Support staff know these texts, which therefore name the same functions on every system.
void requireFound(const platform::UserProfile& profile) {
    const Raise<UserInformationRequestException> raise;
    switch (profile.status) {
    case platform::ProfileStatus::found:
        break;
    case platform::ProfileStatus::noFunction:
        raise("User::getProfileDirectoryPath(): Failed call to GetProcAddress for the "
              "GetUserProfileDirectory(). LastError of 0x%lx.\r\n",
              profile.error);
    case platform::ProfileStatus::tokenRefused:
        Raise<ProcessTokenRequestException>()(
            "WindowsProcessToken::WindowsProcessToken(): Call to OpenProcessToken(0x%lx) failed "
            "with LastError of 0x%lx.\r\n",
            profile.access, profile.error);
    case platform::ProfileStatus::directoryRefused:
        raise("User::getProfileDirectoryPath(): Failed call to GetUserProfileDirectory() to fill "
              "in the buffer with token handle of 0x%lx. LastError of 0x%lx.\r\n",
              profile.token, profile.error);
    case platform::ProfileStatus::noDirectory:
        raise("User::GetUserProfileDirectory(): Failed call to GetWindowsDirectory() to fill in "
              "the buffer. LastError of 0x%lx.\r\n",
              profile.error);
    }
}

} // namespace

CXString User::getProfileDirectoryPath() {
    return getProfileDirectoryPath(platform::findUserProfile());
}

CXString User::getProfileDirectoryPath(const platform::UserProfile& profile) {
    requireFound(profile);
    traceError(profile.error);
    return CXString(profile.directory);
}

CXString User::getLogonName() {
    std::uint32_t systemError = 0;
    CXString name(platform::getUserLogonName(systemError));
    traceError(systemError);
    return name;
}

bool User::usesInches() { return platform::getLocaleMeasurement() != u"0"; }

std::uint32_t User::getDefaultStockSize() {
    const std::u16string paper = platform::getLocalePaperSize();
    // The first unit of an empty text is its terminator.
    switch (paper.c_str()[0]) {
    case u'1':
        return sizeLetter;
    case u'5':
        return sizeLegal;
    case u'8':
        return sizeA3;
    case u'9':
        return sizeA4;
    default:
        return usesInches() ? sizeLetter : sizeA4;
    }
}

} // namespace zent
