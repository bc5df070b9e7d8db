#include "ocore/FeatureSettings/CapabilityInfo.h"

#include <array>

namespace zent {

CXString getCapabilityTypeText(std::uint32_t type) {
    static constexpr std::array<const char16_t*, 12> texts{u"[Integer Range]",
                                                           u"[Is Supported]",
                                                           u"[Supported Features]",
                                                           u"[Supported Values]",
                                                           u"[Upper Limit]",
                                                           u"[Precision]",
                                                           u"[User Definable]",
                                                           u"[Embedded Spaces]",
                                                           u"[Character Restriction]",
                                                           u"[Separate Covers Capable]",
                                                           u"[Insert Multiple Media Capable]",
                                                           u"[Print & Save is TIFF-Capable]"};
    return type >= CAPTYPE_INT_RANGE && type <= CAPTYPE_TIFF_PRINT_SAVE ? texts[type - 1]
                                                                        : u"[UNKNOWN!]";
}

} // namespace zent
