#include "support/EveryCall.h"

namespace zent::test {

std::vector<Call> allCalls() {
    return {
        {"open",
         [](Job&) {
        ZentSessionType opened = nullptr;
        const ZentResult result = Job::open(&opened);
        return result == ZENT_OK ? fnCloseSession(&opened) : result;
         }},
        {"create",
         [](Job& j) {
        TarvoJtSettingsType made = nullptr;
        const ZentResult result = fnCreateNewTarvoJtSettings(j.s, &made);
        return made != nullptr ? fnReleaseTarvoJtSettings(j.s, &made) : result;
         }},
        {"import", [](Job& j) { return j.import(j.xml, ZENT_FORMAT_XML, 1); }},
        {"import, reported", [](Job& j) { return j.import(j.xml, ZENT_FORMAT_XML, 5); }},
        {"import of a blob", [](Job& j) { return j.import(j.blob, ZENT_FORMAT_STATE, 2); }},
        {"export", [](Job& j) { return j.exportAs(ZENT_FORMAT_XML); }, true},
        {"export of a blob", [](Job& j) { return j.exportAs(ZENT_FORMAT_STATE); }, true},
        {"apply",
         [](Job& j) {
        return fnApplyPrinterCapabilitiesToSettings(j.s, 1, nullptr, ZT("Problems"), &j.flag,
                                                    &j.flag2);
         }},
        {"instructions", [](Job& j) { return j.instructions("document"); }, true},
        {"user context",
         [](Job& j) {
        j.size = static_cast<std::uint32_t>(j.output.size());
        return fnUpdateUserContextInformation(j.s, j.blob.data(),
                                              static_cast<std::uint32_t>(j.blob.size()),
                                              j.output.data(), &j.size);
         },
         true},
        {"dialog", [](Job& j) { return fnInvokeTarvoJobTicketDialog(j.s, 0, nullptr, 0); }},
        {"get settings", [](Job& j) { return fnGetTarvoJtSettingsFromSession(j.s, &j.t); }},
        {"is empty", [](Job& j) { return fnIsEmpty(j.s, j.t, &j.flag); }},
        {"is specified", [](Job& j) { return fnIsSpecified(j.s, j.t, ZT("sides"), &j.flag); }},
        {"count", [](Job& j) { return fnGetNumberOfValues(j.s, j.t, ZT("page-ranges"), &j.size); }},
        {"get range",
         [](Job& j) {
        return fnGetRangeValues(j.s, j.t, ZT("page-ranges"), &j.number, &j.number, 0, &j.flag);
         }},
        {"get resolution",
         [](Job& j) {
        return fnGetResolutionValue(j.s, j.t, ZT("printer-resolution"), &j.number, &j.number,
                                    &j.number, 0, &j.flag);
         }},
        {"set number", [](Job& j) { return fnSetNumberValue(j.s, j.t, ZT("copies"), 7, 0); }},
        {"get string",
         [](Job& j) {
        j.size = 0;
        return fnGetStringValue(j.s, j.t, ZT("sides"), nullptr, &j.size, 0, &j.flag);
         }},
        {"get number",
         [](Job& j) { return fnGetNumberValue(j.s, j.t, ZT("copies"), &j.number, 0, &j.flag); }},
        {"get size",
         [](Job& j) { return fnGetStockSizeValues(j.s, j.t, &j.number, &j.number, &j.flag); }},
        {"set string",
         [](Job& j) {
        return fnSetStringValue(j.s, j.t, ZT("job-name"), ZT("a name of my own"), 0);
         }},
        {"set range",
         [](Job& j) { return fnSetRangeValues(j.s, j.t, ZT("page-ranges"), 1, 5, 9); }},
        {"set resolution",
         [](Job& j) {
        return fnSetResolutionValue(j.s, j.t, ZT("printer-resolution"), 6, 6, 3, 0);
         }},
        {"set size", [](Job& j) { return fnSetStockSizeValues(j.s, j.t, 21000, 29700); }},
        {"unspecify", [](Job& j) { return fnUnspecifyFeature(j.s, j.t, ZT("page-ranges")); }},
        {"page settings and back",
         [](Job& j) {
        TarvoJtSettingsType page = nullptr;
        ZentResult result =
            fnCreateTarvoJtSettingsFromPageLevelFeature(j.s, j.t, ZT("page-overrides"), 0, &page);
        if (page != nullptr) {
            result =
                fnSetPageLevelFeatureFromTarvoJtSettings(j.s, j.t, ZT("page-overrides"), 99, page);
            EXPECT_EQ(fnReleaseTarvoJtSettings(j.s, &page), ZENT_OK);
        }
        return result;
         }},
        {"remove page",
         [](Job& j) {
        return fnRemovePageLevelFeatureFromTarvoJtSettings(j.s, j.t, ZT("page-overrides"), 1);
         }},
        {"set text preference",
         [](Job& j) {
        return fnSetPreferenceStringValue(j.s, ZT("MINE"), ZT("a name of my own"));
         }},
        {"get text preference",
         [](Job& j) {
        return fnGetPreferenceStringValue(j.s, ZT("MINE"), nullptr, &j.size, nullptr);
         }},
        {"set bool preference",
         [](Job& j) { return fnSetPreferenceBoolValue(j.s, ZT("MINE"), 1); }},
        {"get bool preference",
         [](Job& j) { return fnGetPreferenceBoolValue(j.s, ZT("MINE"), &j.flag, 1); }},
        {"set number preference",
         [](Job& j) { return fnSetPreferenceNumberValue(j.s, ZT("MINE"), 70000); }},
        {"get number preference",
         [](Job& j) { return fnGetPreferenceNumberValue(j.s, ZT("MINE"), &j.number, 1); }},
        {"set data preference",
         [](Job& j) { return fnSetPreferenceDataValue(j.s, ZT("MINE"), "abcd", 4); }},
        {"get data preference",
         [](Job& j) {
        return fnGetPreferenceDataValue(j.s, ZT("MINE"), nullptr, &j.size, nullptr, 0);
         }},
        {"unspecify all", [](Job& j) { return fnUnspecifyAllFeatures(j.s, j.t); }},
        };
}

} // namespace zent::test
