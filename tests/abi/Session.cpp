#include "abi/Session.h"

#include <gtest/gtest.h>

namespace zent::test {

namespace {

std::string shown(ZentResult result, ZentBool found, const std::string& value) {
    if (result != ZENT_OK) {
        return "result " + std::to_string(result);
    }
    return found != 0 ? value : "none";
}

} // namespace

std::string narrow(const Text& text) {
    std::string ascii;
    for (const ZentChar unit : text) {
        ascii += static_cast<char>(unit);
    }
    return ascii;
}

Session::Session(bool silent, std::uint32_t model) {
    EXPECT_EQ(fnOpenSession(ZENT_INTERFACE_VERSION, model, 2, ZENT_INSTRUCTIONS_XML, silent,
                            nullptr, 0, &m_handle),
              ZENT_OK);
    EXPECT_EQ(fnGetTarvoJtSettingsFromSession(m_handle, &m_ticket), ZENT_OK);
    EXPECT_EQ(fnUnspecifyAllFeatures(m_handle, m_ticket), ZENT_OK);
}

Session::~Session() { EXPECT_EQ(fnCloseSession(&m_handle), ZENT_OK); }

TarvoJtSettingsType Session::newSettings() const {
    TarvoJtSettingsType settings = nullptr;
    EXPECT_EQ(fnCreateNewTarvoJtSettings(m_handle, &settings), ZENT_OK);
    return settings;
}

void Session::release(TarvoJtSettingsType settings) const {
    EXPECT_EQ(fnReleaseTarvoJtSettings(m_handle, &settings), ZENT_OK);
    EXPECT_EQ(settings, nullptr);
}

Imported Session::tryImport(std::string_view data, std::uint32_t format, std::uint32_t mode) const {
    Imported imported;
    const Text title;
    imported.result =
        fnImportJobTicket(m_handle, data.data(), static_cast<std::uint32_t>(data.size()), format,
                          mode, nullptr, title.c_str(), &imported.problems, &imported.applied);
    return imported;
}

void Session::import(std::string_view data, std::uint32_t format) const {
    const Imported imported = tryImport(data, format, ZENT_APPLY_SILENT_KEEP);
    EXPECT_EQ(imported.result, ZENT_OK);
    EXPECT_EQ(imported.applied, 1);
}

std::uint32_t Session::exportSize(std::uint32_t format) const {
    std::uint32_t size = 0;
    EXPECT_EQ(fnExportJobTicket(m_handle, nullptr, &size, format), ZENT_OK);
    return size;
}

std::string Session::exported(std::uint32_t format) const {
    std::uint32_t size = exportSize(format);
    std::string bytes(size, '?');
    EXPECT_EQ(fnExportJobTicket(m_handle, bytes.data(), &size, format), ZENT_OK);
    EXPECT_EQ(size, bytes.size());
    return bytes;
}

ZentResult Session::setString(const char* feature, const char* value, std::uint32_t index) const {
    return fnSetStringValue(m_handle, m_ticket, wide(feature).c_str(), wide(value).c_str(), index);
}

ZentResult Session::setNumber(const char* feature, std::int32_t value, std::uint32_t index) const {
    return fnSetNumberValue(m_handle, m_ticket, wide(feature).c_str(), value, index);
}

std::string stringOf(const Session& session, TarvoJtSettingsType settings, const char* feature,
                     std::uint32_t index) {
    ZentChar buffer[64] = {};
    std::uint32_t size = 64;
    ZentBool found = 2;
    const ZentResult result = fnGetStringValue(session.handle(), settings, wide(feature).c_str(),
                                               buffer, &size, index, &found);
    return shown(result, found, narrow(buffer));
}

std::string numberOf(const Session& session, TarvoJtSettingsType settings, const char* feature,
                     std::uint32_t index) {
    std::int32_t number = 0;
    ZentBool found = 2;
    const ZentResult result =
        fnGetNumberValue(session.handle(), settings, wide(feature).c_str(), &number, index, &found);
    return shown(result, found, std::to_string(number));
}

std::string rangeOf(const Session& session, TarvoJtSettingsType settings, const char* feature,
                    std::uint32_t index) {
    std::int32_t lower = 0;
    std::int32_t upper = 0;
    ZentBool found = 2;
    const ZentResult result = fnGetRangeValues(session.handle(), settings, wide(feature).c_str(),
                                               &lower, &upper, index, &found);
    return shown(result, found, std::to_string(lower) + ".." + std::to_string(upper));
}

std::string resolutionOf(const Session& session, TarvoJtSettingsType settings, const char* feature,
                         std::uint32_t index) {
    std::int32_t crossFeed = -1;
    std::int32_t feed = -1;
    std::int32_t units = -1;
    ZentBool found = 2;
    const ZentResult result =
        fnGetResolutionValue(session.handle(), settings, wide(feature).c_str(), &crossFeed, &feed,
                             &units, index, &found);
    if (result == ZENT_OK && found == 0) {
        EXPECT_TRUE(crossFeed == 0 && feed == 0 && units == 0); // written in any case
    }
    return shown(result, found,
                 std::to_string(crossFeed) + "x" + std::to_string(feed) + "/" +
                     std::to_string(units));
}

std::string sizeOf(const Session& session, TarvoJtSettingsType settings) {
    std::int32_t width = 0;
    std::int32_t height = 0;
    ZentBool found = 2;
    const ZentResult result =
        fnGetStockSizeValues(session.handle(), settings, &width, &height, &found);
    return shown(result, found, std::to_string(width) + "x" + std::to_string(height));
}

std::string countOf(const Session& session, TarvoJtSettingsType settings, const char* feature) {
    std::uint32_t count = 99;
    const ZentResult result =
        fnGetNumberOfValues(session.handle(), settings, wide(feature).c_str(), &count);
    return shown(result, 1, std::to_string(count));
}

} // namespace zent::test
