#include "SampleTickets.h"

#include <initializer_list>
#include <stdexcept>
#include <string_view>

#include "FeatureRequest.h"
#include "TicketSession.h"

namespace zent::bench {

namespace {

using Names = std::initializer_list<std::u16string_view>;

// The features of page tickets, which all have a medium of their own.
constexpr Names medium = {u"media-key",   u"x-dimension", u"y-dimension",
                          u"media-color", u"media-type",  u"media-weight-metric"};
constexpr Names cover = {u"cover-type"};
constexpr Names insert = {u"insert-after-page-number", u"insert-count"};
constexpr Names paperSource = {u"paper-source-number"};
constexpr Names pageOverride = {u"pages", u"sides", u"x-side1-image-shift", u"y-side1-image-shift"};

void setAll(const TicketSession& session, TarvoJtSettingsType settings, Names names) {
    for (const std::u16string_view name : names) {
        require(requestFor(name).set(session.session(), settings));
    }
}

void setPageLevel(const TicketSession& session, const char16_t* feature, std::uint32_t index,
                  const PageTicket& page) {
    require(fnSetPageLevelFeatureFromTarvoJtSettings(session.session(), session.settings(), feature,
                                                     index, page.settings()));
}

/// Puts a page ticket that holds the given features, and a medium, into the session's ticket.
void setPageLevel(const TicketSession& session, const char16_t* feature, std::uint32_t index,
                  Names names) {
    const PageTicket page(session);
    setAll(session, page.settings(), names);
    setAll(session, page.settings(), medium);
    setPageLevel(session, feature, index, page);
}

/// Replaces all of `search` in a text by a number.
std::string withNumber(std::string text, std::string_view search, int number) {
    for (auto at = text.find(search); at != std::string::npos; at = text.find(search, at)) {
        text.replace(at, search.size(), std::to_string(number));
    }
    return text;
}

} // namespace

std::string makeSmallTicket() {
    TicketSession session;
    setAll(session, session.settings(),
           {u"job-name", u"copies", u"sides", u"page-ranges", u"x-dimension", u"y-dimension",
            u"finishings", u"output-bin"});
    return std::string(session.exportTicket());
}

std::string makeFullTicket() {
    constexpr std::uint32_t setMembers = 3;
    TicketSession session;
    for (const FeatureRequest& request : allFeatureRequests()) {
        if (!request.isCollection() && !request.isMemberOnly()) {
            require(request.set(session.session(), session.settings()));
        }
    }
    for (std::uint32_t index = 1; index < setMembers; ++index) {
        for (const auto* name : {u"page-ranges", u"finishings", u"pages-per-subset",
                                 u"force-front-side", u"job-offset"}) {
            require(requestFor(name).set(session.session(), session.settings(), index));
        }
    }
    setPageLevel(session, u"cover-front", 0, cover);
    setPageLevel(session, u"cover-back", 0, cover);
    for (std::uint32_t index = 0; index < setMembers; ++index) {
        setPageLevel(session, u"insert-sheet", index, insert);
        setPageLevel(session, u"pcl-paper-source-col", index, paperSource);
        setPageLevel(session, u"page-overrides", index, pageOverride);
    }
    return std::string(session.exportTicket());
}

// The library makes one override, and its lines are repeated with other page numbers: setting ten
// thousand one by one would take minutes, since each walks the whole ticket.
std::string makeOverridesTicket(int count) {
    constexpr std::string_view opening = "\r\n\t\t\t<value syntax=\"collection\">";
    constexpr std::string_view closing = "\r\n\t\t\t</value>";
    constexpr int lowerMark = 1234567;
    constexpr int upperMark = 7654321;

    TicketSession session;
    setAll(session, session.settings(), {u"job-name", u"copies", u"x-dimension", u"y-dimension"});
    const PageTicket page(session);
    setAll(session, page.settings(), pageOverride);
    setAll(session, page.settings(), medium);
    require(
        fnSetRangeValues(session.session(), page.settings(), u"pages", lowerMark, upperMark, 0));
    setPageLevel(session, u"page-overrides", 0, page);

    const std::string single(session.exportTicket());
    const auto begin = single.find(opening);
    const auto last = single.find(closing, begin);
    if (begin == std::string::npos || last == std::string::npos) {
        throw std::logic_error("the override isn't where it is expected");
    }
    const auto end = last + closing.size();
    const std::string lines = single.substr(begin, end - begin);
    std::string ticket = single.substr(0, begin);
    for (int i = 1; i <= count; ++i) {
        ticket += withNumber(withNumber(lines, std::to_string(lowerMark), 2 * i - 1),
                             std::to_string(upperMark), 2 * i);
    }
    return ticket + single.substr(end);
}

} // namespace zent::bench
