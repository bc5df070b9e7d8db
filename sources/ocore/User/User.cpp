#include "ocore/User/User.h"

#include "ocore/Faults/Trace.h"
#include "platform/Locale.h"
#include "platform/UserIdentity.h"

namespace zent {

namespace {

/// Codes of StockSize.
constexpr std::uint32_t sizeLetter = 2;
constexpr std::uint32_t sizeLegal = 3;
constexpr std::uint32_t sizeA4 = 8;
constexpr std::uint32_t sizeA3 = 9;

CXString traced(const CXString& result, std::uint32_t systemError) {
    if (systemError != 0) {
        trace::systemErrorText(systemError, 0);
    }
    return result;
}

} // namespace

CXString User::getProfileDirectoryPath() {
    std::uint32_t systemError = 0;
    const CXString path = platform::getUserProfileDirectory(systemError);
    return traced(path, systemError);
}

CXString User::getLogonName() {
    std::uint32_t systemError = 0;
    const CXString name = platform::getUserLogonName(systemError);
    return traced(name, systemError);
}

bool User::usesInches() { return platform::getLocaleMeasurement() != u"0"; }

std::uint32_t User::getDefaultStockSize() {
    const CXString paper = platform::getLocalePaperSize();
    // Of an empty text this is the terminator.
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
