#pragma once

// The arguments of the exported calls, from a fuzzer's bytes: sessions, tickets and text as an
// application could have them.

#include <array>
#include <string>
#include <vector>

#include "FuzzInput.h"
#include "SameList.h"
#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "platform/System.h"
#include "zent27.h"

namespace zent::fuzz {

using Text = std::basic_string<ZentChar>;

inline Text wide(const CXString& text) { return {text.view().begin(), text.view().end()}; }

/// The known values of each feature, by its number.
inline const std::vector<Text>& getValues(FeatureEnum feature) {
    static const auto values = [] {
        std::array<std::vector<Text>, 256> found;
        const FeatureValueDataBase table;
        for (std::int32_t value = 0; value < value::firstRunTimeValue; ++value) {
            const FeatureValueReference info = table.findFeatureValueInfo(value);
            if (!info) {
                continue;
            }
            for (const FeatureEnum taker : info->m_features) {
                found.at(taker).push_back(wide(info->m_text));
            }
        }
        return found;
    }();
    return values.at(feature);
}

/// A session for calls that belong to no input.
inline ZentSessionType helperSession() {
    static const ZentSessionType session = [] {
        ZentSessionType opened = nullptr;
        require(fnOpenSession(ZENT_INTERFACE_VERSION, 1, 1, ZENT_INSTRUCTIONS_XML, 1, nullptr, 0,
                              &opened) == ZENT_OK);
        return opened;
    }();
    return session;
}

inline TarvoJtSettingsType ticketOf(ZentSessionType session) {
    TarvoJtSettingsType ticket = nullptr;
    if (session != nullptr) {
        require(fnGetTarvoJtSettingsFromSession(session, &ticket) == ZENT_OK);
    }
    return ticket;
}

/// The arguments of one input, and the sessions and tickets that go with it. What is taken as a
/// pointer to text is valid until the same is taken again.
class SessionArguments {
public:
    SessionArguments(const std::uint8_t* data, std::size_t size) : m_input(data, size) {}
    SessionArguments(const SessionArguments&) = delete;
    SessionArguments& operator=(const SessionArguments&) = delete;
    ~SessionArguments() {
        for (TarvoJtSettingsType& ticket : m_tickets) {
            release(ticket);
        }
        for (ZentSessionType& session : m_sessions) {
            close(session);
        }
    }

    bool isAtEnd() const { return m_input.isAtEnd(); }
    std::size_t getPosition() const { return m_input.getPosition(); }

    /// Begins the next call, one of `count`: a byte for it, whose upper bit lets null be given
    /// where a call wants a pointer, another one for where that is, and one for the session. On a
    /// system where processor faults travel on into the application, so does what the library
    /// raises for null; there null isn't given.
    std::size_t takeCall(std::size_t count) {
        constexpr std::uint8_t nullBit = 0x80;
        const std::uint8_t choice = m_input.takeByte();
        m_nulls = (choice & nullBit) != 0 ? m_input.takeByte() : 0;
        if (platform::unknownExceptionsMayLeave) {
            m_nulls = 0;
        }
        m_place = m_input.takeByte() % (sessionCount + 1);
        return choice % nullBit % count;
    }
    bool givesNull() const { return m_nulls != 0; }
    void giveNoNull() { m_nulls = 0; }
    bool isNull(int bit) const { return (m_nulls >> bit & 1) != 0; }
    /// A pointer for the call: this one or, if its bit says so, null.
    template <typename T>
    T* out(T& variable, int bit = 0) const {
        return isNull(bit) ? nullptr : &variable;
    }

    /// The session of the call, or null.
    ZentSessionType session() const {
        return m_place < sessionCount ? m_sessions.at(m_place) : nullptr;
    }
    /// Puts a session in the place of the call's.
    void keep(ZentSessionType opened) {
        ZentSessionType& place = m_sessions.at(m_place % sessionCount);
        close(place);
        place = opened;
    }
    /// Forgets the session of the call, which has been closed.
    void forgetSession() { m_sessions.at(m_place) = nullptr; }

    /// A ticket that the application owns, which may be null, or that of a session.
    TarvoJtSettingsType takeTicket() {
        const std::size_t choice = m_input.takeByte() % (sessionCount + ticketCount);
        return choice < sessionCount ? ticketOf(m_sessions.at(choice))
                                     : m_tickets.at(choice - sessionCount);
    }
    /// A variable of the application's, or null for the ticket of the call's session.
    TarvoJtSettingsType* takeVariable() {
        const std::size_t choice = m_input.takeByte() % (ticketCount + 1);
        return choice < ticketCount ? &m_tickets.at(choice) : nullptr;
    }
    /// Puts a ticket in such a variable.
    void keep(TarvoJtSettingsType made) {
        require(made != nullptr);
        TarvoJtSettingsType& place = m_tickets.at(m_input.takeByte() % ticketCount);
        release(place);
        place = made;
    }

    std::uint8_t takeByte() { return m_input.takeByte(); }
    std::uint32_t takeNumber() { return m_input.takeNumber(); }
    std::int32_t takeSigned() { return m_input.takeSigned(); }
    std::string takeBytes() { return m_input.takeBytes(); }
    Text takeText() { return m_input.takeText<ZentChar>(); }

    /// A feature's name by its number, any text or null.
    const ZentChar* takeFeature() {
        m_feature = static_cast<FeatureEnum>(m_input.takeByte());
        if (m_feature == feature::none) {
            return nullptr;
        }
        const FeatureDataBase features;
        m_name = features.hasFeature(m_feature)
                     ? wide(features.getFeatureInfo(m_feature).m_nestedID.getName())
                     : takeText();
        return m_name.c_str();
    }
    /// A known value of that feature, any text or null.
    const ZentChar* takeValue() {
        constexpr std::uint8_t ownText = 0xFE;
        constexpr std::uint8_t noValue = 0xFF;
        const std::uint8_t choice = m_input.takeByte();
        const std::vector<Text>& known = getValues(m_feature);
        m_value = choice < ownText && choice < known.size() ? known[choice] : takeText();
        return choice == noValue ? nullptr : m_value.c_str();
    }
    /// A preference's name: one that the library knows, any text or null.
    const ZentChar* takePreference() {
        static const std::array<Text, 11> known{
            wide(u"JOB_NAME_PREFERENCE"),
            wide(u"ACCOUNT_REQUIRED_PREFERENCE"),
            wide(u"ACCT_NUMBER_IN_JT_PREFERENCE"),
            wide(u"USE_LOGON_NAME_PREFERENCE"),
            wide(u"USE_LOGON_NAME_PREFERENCE_RECIPIENT"),
            wide(u"GENERIC_JT_PREFERENCE"),
            wide(u"TOOL_BAR_PREFERENCE"),
            wide(u"CUSTOM_PAPER_SIZE_PREFERENCE"),
            wide(u"IMAGE_SHIFT_UNIT_PREFERENCE"),
            wide(u"PREFERRED_JOB_TICKET"),
            wide(u"MINE"),
        };
        constexpr std::uint8_t noName = 0xFF;
        const std::uint8_t choice = m_input.takeByte();
        m_name = choice < known.size() ? known.at(choice) : takeText();
        return choice == noName ? nullptr : m_name.c_str();
    }
    const ZentChar* takeTitle() {
        constexpr int bit = 6;
        m_title = takeText();
        return isNull(bit) ? nullptr : m_title.c_str();
    }
    /// Any bytes, or what a call gave last, with some of it changed.
    std::string takeDocument(const std::vector<char>& last) {
        constexpr std::uint8_t lastBit = 0x80;
        const std::uint8_t choice = m_input.takeByte();
        if ((choice & lastBit) == 0) {
            return m_input.takeBytes();
        }
        std::string document(last.begin(), last.end());
        for (int i = 0; i < choice % lastBit && !document.empty(); ++i) {
            const std::size_t place = m_input.takeNumber() % document.size();
            document[place] = static_cast<char>(m_input.takeByte());
        }
        return document;
    }

private:
    static constexpr std::size_t sessionCount = 2;
    static constexpr std::size_t ticketCount = 3;

    static void close(ZentSessionType& session) {
        if (session != nullptr) {
            require(fnCloseSession(&session) == ZENT_OK && session == nullptr);
        }
    }
    static void release(TarvoJtSettingsType& ticket) {
        if (ticket != nullptr) {
            require(fnReleaseTarvoJtSettings(helperSession(), &ticket) == ZENT_OK &&
                    ticket == nullptr);
        }
    }

    FuzzInput m_input;
    std::uint8_t m_nulls = 0; // a bit for each argument of the call that is null
    std::size_t m_place = 0;  // the position of the call's session
    FeatureEnum m_feature = feature::none;
    Text m_name;
    Text m_value;
    Text m_title;
    std::array<ZentSessionType, sessionCount> m_sessions{};
    std::array<TarvoJtSettingsType, ticketCount> m_tickets{};
};

} // namespace zent::fuzz
