// Who a job is from and for, what it is charged to, and the notes that go with it.

#include "ocore/Ajt/AjtGroups.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/Resources/ResourceLibrary.h"
#include "resources/ids.h"

namespace zent::ajt {

namespace {

/// Puts a text on one line, with a space in place of each line end.
CXString onOneLine(const CXString& text) {
    CXString line = text;
    // Pairs are replaced before single ones, so that a pair gives one space.
    for (const std::u16string_view lineEnd : {u"\r\n", u"\n\r", u"\r", u"\n"}) {
        line = replaceAll(line, lineEnd, u" ");
    }
    return line;
}

void writeIfSet(const Job& job, std::string_view keyword, FeatureEnum feature, Output& output) {
    CXString text;
    if (job.ticket.takeString(feature, &text)) {
        output << keyword << onOneLine(text) << "\n";
    }
}

void writeOrDefault(const Job& job, std::string_view keyword, FeatureEnum feature,
                    std::uint32_t defaultStringID, Output& output) {
    CXString text;
    const bool isSet = job.ticket.takeString(feature, &text);
    output << keyword << (isSet ? onOneLine(text) : ResourceLibrary().getString(defaultStringID))
           << "\n";
}

/// The phone number has no line of its own: it goes before the message.
void writeMessage(const Job& job, Output& output) {
    CXString phoneNumber;
    CXString message;
    const bool hasPhoneNumber = job.ticket.takeString(feature::jobPhoneNumber, &phoneNumber);
    const bool hasMessage = job.ticket.takeString(feature::jobSheetMessage, &message);
    if (hasPhoneNumber || hasMessage) {
        output << "%TRVmessage: " << onOneLine(phoneNumber)
               << (hasPhoneNumber && hasMessage ? " " : "") << onOneLine(message) << "\n";
    }
}

} // namespace

void writeIdentification(const Job& job, Output& output) {
    writeIfSet(job, "%TRVaccount: ", feature::jobAccountID, output);
    writeOrDefault(job, "%TRVtitle: ", feature::jobName, IDS_UNTITLED_JOB, output);
    writeOrDefault(job, "%TRVsenderName: ", feature::requestingUserName, IDS_UNKNOWN_USER, output);
    writeIfSet(job, "%TRVrecipientName: ", feature::jobRecipientName, output);
    writeMessage(job, output);
    writeIfSet(job, "%TRVjobStartMessage: ", feature::jobMessageToOperator, output);
}

} // namespace zent::ajt
