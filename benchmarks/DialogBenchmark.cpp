#include "DialogBenchmark.h"

#include <stdexcept>
#include <string_view>

#include <benchmark/benchmark.h>

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "platform/DialogTemplate.h"
#include "plugin_ui/Features/DialogTable.h"
#include "plugin_ui/Features/JobNotesUIFeature.h"
#include "plugin_ui/Features/TextEntryUIFeature.h"

namespace zent::bench {

namespace {

constexpr std::uint16_t pageCount = 12;
constexpr std::uint16_t itemsOfAPage = 60;
constexpr std::size_t featureCount = 60;

template <typename Work>
void add(const char* name, Work work) {
    benchmark::RegisterBenchmark(name, [work](benchmark::State& state) {
        for ([[maybe_unused]] auto each : state) {
            work();
        }
    });
}

void put16(std::vector<std::byte>& bytes, std::uint16_t value) {
    bytes.push_back(static_cast<std::byte>(value & 0xFF));
    bytes.push_back(static_cast<std::byte>(value >> 8));
}

/// A template whose items are buttons, with a text of 15 letters each.
std::vector<std::byte> makeTemplate(std::uint16_t itemCount) {
    std::vector<std::byte> bytes;
    const auto put = [&](std::initializer_list<std::uint16_t> values) {
        for (const std::uint16_t value : values) {
            put16(bytes, value);
        }
    };
    constexpr std::uint16_t popup = 0x8000;
    put({0, popup, 0, 0, itemCount, 0, 0, 300, 200, 0, 0, 0});
    for (std::uint16_t id = 1; id <= itemCount; ++id) {
        constexpr std::uint16_t visibleChild = 0x5000;
        constexpr std::uint16_t button = 0x80;
        put({0, visibleChild, 0, 0, 7, 7, 50, 14, id, 0xFFFF, button});
        for (const char16_t unit : std::u16string_view(u"Two-sided sheet")) {
            put16(bytes, unit);
        }
        put({0, 0});
    }
    return bytes;
}

} // namespace

DialogBenchmark::DialogBenchmark()
    : m_session(ZENTSession::getSessionObject(m_ticket.session())),
      m_stocks(m_session), m_configuration{.capabilities = &m_session.getCapabilities(),
                                           .preferences = *m_session.getUserPreferences(),
                                           .stockInformation = &m_stocks},
      m_base(makeTemplate(2)), m_page(makeTemplate(itemsOfAPage)), m_tree(m_configuration) {
    fillTree();
}

void DialogBenchmark::fillTree() {
    constexpr FeatureEnum texts[] = {
        feature::jobName,           feature::jobAccountID,         feature::jobAccountingUserID,
        feature::jobAccountingData, feature::requestingUserName,   feature::jobRecipientName,
        feature::jobSheetMessage,   feature::jobMessageToOperator, feature::jobPhoneNumber};
    for (std::size_t i = 0; i < featureCount; ++i) {
        m_features.push_back(texts[i % std::size(texts)]);
        m_session.settings().setString(_FI(m_features.back()), u"A text of some length");
        const auto item = static_cast<std::uint16_t>(100 + i);
        m_tree
            .makeChild<TextEntryUIFeature>(
                m_configuration, TextEntryRow{.feature = m_features.back(), .editId = item})
            .setSettings(&m_session.settings());
    }
}

void DialogBenchmark::registerAll() {
    registerConstruction();
    registerMerge();
    registerChange();
}

void DialogBenchmark::registerConstruction() {
    add("dialog/construct/zent", [this] {
        JobNotesUIDialog dialog(m_configuration, ConfigurableUIComponent::jobLevel);
        if (!dialog.configure()) {
            throw std::logic_error("the printer takes no job notes");
        }
    });
}

void DialogBenchmark::registerMerge() {
    add("dialog/merge/zent", [this] {
        DialogResource merged(1, true);
        merged.load(m_base);
        for (std::uint16_t page = 0; page < pageCount; ++page) {
            DialogResource scratch(2, true);
            scratch.load(m_page);
            merged + scratch;
        }
        benchmark::DoNotOptimize(merged.getTemplate());
    });
    add("dialog/merge/read", [this] {
        benchmark::DoNotOptimize(platform::DialogTemplate::read(m_base));
        for (std::uint16_t page = 0; page < pageCount; ++page) {
            benchmark::DoNotOptimize(platform::DialogTemplate::read(m_page));
        }
    });
}

void DialogBenchmark::registerChange() {
    add("dialog/change/zent", [this] {
        platform::Dialog withoutItems;
        std::intptr_t result = 0;
        m_tree.processMessage(DialogMessage(withoutItems, UIM_SETTINGS_CHANGED), result);
    });
    add("dialog/change/read", [this] {
        for (const FeatureEnum feature : m_features) {
            CXString text;
            m_session.settings().getString(_FI(feature), &text);
            benchmark::DoNotOptimize(text.length());
        }
    });
}

} // namespace zent::bench
