// Whole sessions: any sequence of the exported calls on a few sessions and tickets, with whatever
// an application could hand over, and null where a pointer is wanted. Every call must end with a
// result that it may have, sizes and texts must be what they are said to be, and what was set must
// be there.
//
// Input: the calls and their arguments as SessionArguments takes them.
//
// No window opens: FuzzUser stands for the user and for the window system.

#include <algorithm>

#include "CallPlaces.h"
#include "FuzzUser.h"
#include "SessionArguments.h"
#include "support/ScratchUser.h"

namespace zent::fuzz {

namespace {

/// Plays one input.
class Play : private SessionArguments {
public:
    using SessionArguments::SessionArguments;

    void run() {
        constexpr int mostCalls = 60;
        for (int i = 0; i < mostCalls && !isAtEnd(); ++i) {
            m_places.push_back(getPosition());
            (this->*calls[takeCall(calls.size())])();
        }
    }

    /// The places at which its calls began.
    const std::vector<std::size_t>& getPlaces() const { return m_places; }

private:
    using Call = void (Play::*)();
    static const std::vector<Call> calls;

    // Bounds on what takes much time: a nesting may double a ticket, and long tickets make all
    // calls slow.
    static constexpr int mostNestings = 8;
    static constexpr int mostOpenings = 4;
    static constexpr int mostWritings = 4;
    static constexpr std::int32_t untouched = -77;

    // Results

    /// Whether the call succeeded. A failure must be one that it names.
    bool succeeds(ZentResult result) const {
        require(result >= ZENT_OK && result <= ZENT_ERR_UNKNOWN);
        require(result != ZENT_ERR_STD_EXCEPTION && result != ZENT_ERR_OUT_OF_MEMORY);
        require(result != ZENT_ERR_UNKNOWN || givesNull());
        return result == ZENT_OK;
    }
    static void requireFlag(ZentBool flag) { require(flag == 0 || flag == 1); }

    /// Asks for the size, offers too little, then just enough. Whether the call succeeds.
    template <typename Unit, typename Work>
    bool fetch(std::vector<Unit>& target, Work work) {
        constexpr Unit filler{0x55};
        std::uint32_t size = 0;
        std::uint32_t* const asked = out(size, 7);
        if (!succeeds(work(nullptr, asked)) || asked == nullptr) {
            return false;
        }
        const std::uint32_t needed = size;
        target.assign(needed, filler);
        target.shrink_to_fit();
        if (needed > 0) {
            --size;
            require(work(target.data(), &size) == ZENT_ERR_BUFFER_TOO_SMALL && size == needed);
            require(target.front() == filler && target.back() == filler);
        }
        require(work(target.data(), &size) == ZENT_OK && size == needed);
        return true;
    }
    template <typename Work>
    bool fetchText(Text& target, Work work) {
        std::vector<ZentChar> units;
        if (!fetch(units, work)) {
            return false;
        }
        require(!units.empty() && units.back() == 0);
        target.assign(units.begin(), units.end() - 1);
        return true;
    }

    // Sessions and tickets

    void callOpen() {
        const std::uint8_t otherVersion = takeByte();
        const std::uint32_t model = takeNumber();
        const std::uint32_t language = takeNumber();
        const std::uint32_t form = takeNumber();
        const std::uint8_t flags = takeByte();
        const Text name = takeText();
        ZentSessionType opened = nullptr;
        if (++m_openings > mostOpenings) {
            return;
        }
        const ZentResult result =
            fnOpenSession(ZENT_INTERFACE_VERSION + otherVersion, model, language, form, flags & 1,
                          name.c_str(), flags & 2, out(opened));
        require(succeeds(result) == (opened != nullptr));
        if (opened != nullptr) {
            keep(opened);
        }
    }
    void callClose() {
        ZentSessionType closed = session();
        if (succeeds(fnCloseSession(out(closed)))) {
            require(closed == nullptr);
            forgetSession();
        }
    }
    void callGetTicket() {
        TarvoJtSettingsType ticket = nullptr;
        if (succeeds(fnGetTarvoJtSettingsFromSession(session(), out(ticket)))) {
            require(ticket == ticketOf(session()));
        }
    }
    void callCreate() {
        TarvoJtSettingsType made = nullptr;
        if (succeeds(fnCreateNewTarvoJtSettings(session(), out(made)))) {
            keep(made);
        }
    }
    void callRelease() {
        if (TarvoJtSettingsType* const variable = takeVariable()) {
            succeeds(fnReleaseTarvoJtSettings(session(), out(*variable)));
            return;
        }
        const TarvoJtSettingsType own = ticketOf(session());
        TarvoJtSettingsType variable = own;
        succeeds(fnReleaseTarvoJtSettings(session(), out(variable)));
        require(variable == own);
    }

    // Reading features

    void callIsEmpty() {
        const TarvoJtSettingsType ticket = takeTicket();
        ZentBool empty = 0;
        succeeds(fnIsEmpty(session(), ticket, out(empty)));
        requireFlag(empty);
    }
    void callIsSpecified() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        ZentBool specified = 0;
        succeeds(fnIsSpecified(session(), ticket, feature, out(specified)));
        requireFlag(specified);
    }
    void callCount() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        std::uint32_t count = 0;
        succeeds(fnGetNumberOfValues(session(), ticket, feature, out(count)));
    }
    void callGetText() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        const std::uint32_t index = takeNumber();
        ZentBool found = 0;
        ZentBool* const isFound = out(found);
        Text text;
        fetchText(text, [&](ZentChar* buffer, std::uint32_t* size) {
            return fnGetStringValue(session(), ticket, feature, buffer, size, index, isFound);
        });
        requireFlag(found);
        require(found == 1 || text.empty());
    }
    void callGetNumber() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        const std::uint32_t index = takeNumber();
        std::int32_t number = untouched;
        ZentBool found = 0;
        succeeds(fnGetNumberValue(session(), ticket, feature, out(number), index, out(found, 3)));
        requireFlag(found);
        require(found == 1 || number == untouched);
    }
    void callGetRange() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        const std::uint32_t index = takeNumber();
        std::int32_t lower = untouched;
        std::int32_t upper = untouched;
        ZentBool found = 0;
        succeeds(fnGetRangeValues(session(), ticket, feature, out(lower), out(upper, 1), index,
                                  out(found, 3)));
        requireFlag(found);
        require(found == 1 || (lower == untouched && upper == untouched));
    }
    void callGetResolution() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        const std::uint32_t index = takeNumber();
        std::array<std::int32_t, 3> numbers{};
        ZentBool found = 0;
        succeeds(fnGetResolutionValue(session(), ticket, feature, out(numbers[0]),
                                      out(numbers[1], 1), out(numbers[2], 2), index,
                                      out(found, 3)));
        requireFlag(found);
    }
    void callGetStockSize() {
        const TarvoJtSettingsType ticket = takeTicket();
        std::int32_t width = untouched;
        std::int32_t height = untouched;
        ZentBool found = 0;
        succeeds(
            fnGetStockSizeValues(session(), ticket, out(width), out(height, 1), out(found, 3)));
        requireFlag(found);
        require(found == 1 || (width == untouched && height == untouched));
    }

    // Writing features. What can be read back must be what was set.

    void callSetText() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        const ZentChar* const value = takeValue();
        const std::uint32_t index = takeNumber();
        if (!succeeds(fnSetStringValue(session(), ticket, feature, value, index)) || index != 0) {
            return;
        }
        ZentBool found = 0;
        Text read;
        if (fetchText(read, [&](ZentChar* buffer, std::uint32_t* size) {
                return fnGetStringValue(session(), ticket, feature, buffer, size, 0, &found);
            })) {
            require(read == (value == nullptr ? Text() : Text(value)));
        }
    }
    void callSetNumber() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        const std::int32_t number = takeSigned();
        const std::uint32_t index = takeNumber();
        if (!succeeds(fnSetNumberValue(session(), ticket, feature, number, index)) || index != 0) {
            return;
        }
        std::int32_t read = 0;
        ZentBool found = 0;
        if (succeeds(fnGetNumberValue(session(), ticket, feature, &read, 0, &found))) {
            require(found == 1 && read == number);
        }
    }
    void callSetRange() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        const std::int32_t lower = takeSigned();
        const std::int32_t upper = takeSigned();
        const std::uint32_t index = takeNumber();
        if (!succeeds(fnSetRangeValues(session(), ticket, feature, lower, upper, index)) ||
            index != 0) {
            return;
        }
        std::int32_t readLower = 0;
        std::int32_t readUpper = 0;
        ZentBool found = 0;
        if (succeeds(
                fnGetRangeValues(session(), ticket, feature, &readLower, &readUpper, 0, &found))) {
            require(found == 1 && readLower == lower && readUpper == upper);
        }
    }
    void callSetResolution() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        const std::array<std::int32_t, 3> numbers{takeSigned(), takeSigned(), takeSigned()};
        const std::uint32_t index = takeNumber();
        if (!succeeds(fnSetResolutionValue(session(), ticket, feature, numbers[0], numbers[1],
                                           numbers[2], index)) ||
            index != 0) {
            return;
        }
        std::array<std::int32_t, 3> read{};
        ZentBool found = 0;
        if (succeeds(fnGetResolutionValue(session(), ticket, feature, &read[0], &read[1], &read[2],
                                          0, &found))) {
            require(found == 0 || read == numbers);
        }
    }
    void callSetStockSize() {
        const TarvoJtSettingsType ticket = takeTicket();
        const std::int32_t width = takeSigned();
        const std::int32_t height = takeSigned();
        if (!succeeds(fnSetStockSizeValues(session(), ticket, width, height))) {
            return;
        }
        std::int32_t readWidth = 0;
        std::int32_t readHeight = 0;
        ZentBool found = 0;
        require(fnGetStockSizeValues(session(), ticket, &readWidth, &readHeight, &found) ==
                ZENT_OK);
        require(found == 0 || std::minmax(readWidth, readHeight) == std::minmax(width, height));
    }
    void callUnspecify() {
        const TarvoJtSettingsType ticket = takeTicket();
        succeeds(fnUnspecifyFeature(session(), ticket, takeFeature()));
    }
    void callUnspecifyAll() {
        const TarvoJtSettingsType ticket = takeTicket();
        if (succeeds(fnUnspecifyAllFeatures(session(), ticket))) {
            ZentBool empty = 0;
            require(fnIsEmpty(session(), ticket, &empty) == ZENT_OK && empty == 1);
        }
    }

    // Page-level features

    void callTakePage() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        const std::uint32_t index = takeNumber();
        TarvoJtSettingsType made = nullptr;
        if (succeeds(fnCreateTarvoJtSettingsFromPageLevelFeature(session(), ticket, feature, index,
                                                                 out(made)))) {
            keep(made);
        }
    }
    void callSetPage() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        const std::uint32_t index = takeNumber();
        const TarvoJtSettingsType source = takeTicket();
        if (++m_nestings <= mostNestings) {
            succeeds(fnSetPageLevelFeatureFromTarvoJtSettings(session(), ticket, feature, index,
                                                              source));
        }
    }
    void callRemovePage() {
        const TarvoJtSettingsType ticket = takeTicket();
        const ZentChar* const feature = takeFeature();
        succeeds(
            fnRemovePageLevelFeatureFromTarvoJtSettings(session(), ticket, feature, takeNumber()));
    }

    // Whole tickets

    void callImport() {
        const std::string document = takeDocument(m_bytes);
        const std::uint32_t format = takeNumber();
        const std::uint32_t mode = takeNumber();
        const ZentChar* const title = takeTitle();
        m_user.prepare();
        ZentBool problems = 0;
        ZentBool applied = 0;
        const char* const data = document.empty() ? nullptr : out(document.front(), 5);
        const bool done = succeeds(
            fnImportJobTicket(session(), data, static_cast<std::uint32_t>(document.size()), format,
                              mode, nullptr, title, out(problems), out(applied, 1)));
        requireFlag(problems);
        require(applied == 0 || (applied == 1 && done));
    }
    bool fetchTicket(std::uint32_t format) {
        return fetch(m_bytes, [&](void* buffer, std::uint32_t* size) {
            return fnExportJobTicket(session(), buffer, size, format);
        });
    }
    void callExport() { fetchTicket(takeNumber()); }
    void callUpdateUser() {
        const std::string blob = takeDocument(m_bytes);
        const char* const data = blob.empty() ? nullptr : out(blob.front(), 5);
        fetch(m_bytes, [&](void* buffer, std::uint32_t* size) {
            return fnUpdateUserContextInformation(
                session(), data, static_cast<std::uint32_t>(blob.size()), buffer, size);
        });
    }
    void callInstructions() {
        const std::string name = takeBytes();
        const auto ask = [&](void* buffer, std::uint32_t* size) {
            return fnGetPrintInstructions(session(), buffer, size,
                                          name.empty() ? nullptr : name.c_str());
        };
        std::vector<char> again;
        if (fetch(m_bytes, ask) && fetch(again, ask)) {
            require(again == m_bytes);
        }
    }
    void callApply() {
        const std::uint32_t mode = takeNumber();
        const ZentChar* const title = takeTitle();
        m_user.prepare();
        ZentBool problems = 0;
        ZentBool usable = 0;
        const bool done = succeeds(fnApplyPrinterCapabilitiesToSettings(
            session(), mode, nullptr, title, out(problems), out(usable, 1)));
        requireFlag(problems);
        requireFlag(usable);
        if (done && mode == ZENT_APPLY_SILENT_REPAIR) {
            require(fnApplyPrinterCapabilitiesToSettings(session(), mode, nullptr, nullptr,
                                                         &problems, &usable) == ZENT_OK);
            require(problems == 0 && usable == 1);
        }
    }
    void callDialog() {
        const std::uint32_t kind = takeNumber();
        m_user.prepare();
        succeeds(fnInvokeTarvoJobTicketDialog(session(), kind, nullptr, 0));
    }
    /// A ticket that goes out and comes in again stays the same sooner or later: what is empty is
    /// written, but not read, and may leave a list empty.
    void travel() {
        constexpr int mostRounds = 50;
        const std::uint32_t format = takeByte() % 2 + 1;
        giveNoNull();
        if (!fetchTicket(format)) {
            return;
        }
        std::vector<char> before;
        for (int round = 0; m_bytes != before; ++round) {
            before = m_bytes;
            if (!comesIn(format)) {
                require(round == 0);
                return;
            }
            require(round < mostRounds && fetchTicket(format));
        }
    }
    bool comesIn(std::uint32_t format) {
        ZentBool problems = 0;
        ZentBool applied = 0;
        return succeeds(fnImportJobTicket(
            session(), m_bytes.data(), static_cast<std::uint32_t>(m_bytes.size()), format,
            ZENT_APPLY_SILENT_KEEP, nullptr, nullptr, &problems, &applied));
    }

    // Preferences. What was set must be there.

    bool mayWrite() { return ++m_writings <= mostWritings; }
    bool readText(const ZentChar* name, const ZentChar* otherwise, Text& text) {
        return fetchText(text, [&](ZentChar* buffer, std::uint32_t* size) {
            return fnGetPreferenceStringValue(session(), name, buffer, size, otherwise);
        });
    }
    bool readData(const ZentChar* name, const std::string& otherwise, std::vector<char>& data) {
        return fetch(data, [&](void* buffer, std::uint32_t* size) {
            return fnGetPreferenceDataValue(session(), name, buffer, size, otherwise.data(),
                                            static_cast<std::uint32_t>(otherwise.size()));
        });
    }

    void callGetBoolPreference() {
        const ZentChar* const name = takePreference();
        ZentBool value = 0;
        succeeds(fnGetPreferenceBoolValue(session(), name, out(value), takeByte()));
        requireFlag(value);
    }
    void callGetNumberPreference() {
        const ZentChar* const name = takePreference();
        std::int32_t value = 0;
        succeeds(fnGetPreferenceNumberValue(session(), name, out(value), takeSigned()));
    }
    void callGetTextPreference() {
        const ZentChar* const name = takePreference();
        const Text otherwise = takeText();
        Text text;
        readText(name, otherwise.c_str(), text);
    }
    void callGetDataPreference() {
        const ZentChar* const name = takePreference();
        std::vector<char> data;
        readData(name, takeBytes(), data);
    }
    void callSetBoolPreference() {
        const ZentChar* const name = takePreference();
        const ZentBool value = takeByte();
        if (mayWrite() && succeeds(fnSetPreferenceBoolValue(session(), name, value))) {
            ZentBool read = 0;
            require(fnGetPreferenceBoolValue(session(), name, &read, 0) == ZENT_OK);
            require(read == (value != 0));
        }
    }
    void callSetNumberPreference() {
        const ZentChar* const name = takePreference();
        const std::int32_t value = takeSigned();
        if (mayWrite() && succeeds(fnSetPreferenceNumberValue(session(), name, value))) {
            std::int32_t read = 0;
            require(fnGetPreferenceNumberValue(session(), name, &read, 0) == ZENT_OK);
            require(read == value);
        }
    }
    void callSetTextPreference() {
        const ZentChar* const name = takePreference();
        const Text value = takeText();
        if (mayWrite() && succeeds(fnSetPreferenceStringValue(session(), name, value.c_str()))) {
            Text read;
            require(givesNull() || readText(name, nullptr, read));
            require(givesNull() || read == value);
        }
    }
    void callSetDataPreference() {
        const ZentChar* const name = takePreference();
        const std::string value = takeBytes();
        if (mayWrite() &&
            succeeds(fnSetPreferenceDataValue(session(), name, value.data(),
                                              static_cast<std::uint32_t>(value.size())))) {
            std::vector<char> read;
            require(givesNull() || readData(name, {}, read));
            require(givesNull() || std::string(read.begin(), read.end()) == value);
        }
    }

    FuzzUser m_user{*this};
    std::vector<char> m_bytes; // the bytes that a call gave last
    std::vector<std::size_t> m_places;
    int m_nestings = 0;
    int m_openings = 0;
    int m_writings = 0;
};

// An input names them by their places; make-session-corpus reads them here.
const std::vector<Play::Call> Play::calls{
    &Play::callOpen,
    &Play::callClose,
    &Play::callGetTicket,
    &Play::callCreate,
    &Play::callRelease,
    &Play::callIsEmpty,
    &Play::callIsSpecified,
    &Play::callCount,
    &Play::callGetText,
    &Play::callGetNumber,
    &Play::callGetRange,
    &Play::callGetResolution,
    &Play::callGetStockSize,
    &Play::callSetText,
    &Play::callSetNumber,
    &Play::callSetRange,
    &Play::callSetResolution,
    &Play::callSetStockSize,
    &Play::callUnspecify,
    &Play::callUnspecifyAll,
    &Play::callTakePage,
    &Play::callSetPage,
    &Play::callRemovePage,
    &Play::callImport,
    &Play::callExport,
    &Play::callUpdateUser,
    &Play::callInstructions,
    &Play::callApply,
    &Play::callDialog,
    &Play::callGetBoolPreference,
    &Play::callGetNumberPreference,
    &Play::callGetTextPreference,
    &Play::callGetDataPreference,
    &Play::callSetBoolPreference,
    &Play::callSetNumberPreference,
    &Play::callSetTextPreference,
    &Play::callSetDataPreference,
    &Play::travel,
};

} // namespace

} // namespace zent::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static zent::test::ScratchUser scratch;
    scratch.clear();
    zent::fuzz::Play play(data, size);
    play.run();
    zent::fuzz::CallPlaces::note(std::string(data, data + size), play.getPlaces());
    return 0;
}
