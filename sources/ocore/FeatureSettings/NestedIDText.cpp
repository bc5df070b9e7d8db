#include "ocore/FeatureSettings/NestedIDText.h"

#include <algorithm>
#include <string_view>

namespace zent {

NestedAttrID makeNestedAttrID(const char16_t* leaf, const char16_t* parents,
                              std::uint32_t namingRole) {
    NestedAttrID id{AttrID(leaf)};
    std::u16string_view rest = parents;
    while (!rest.empty()) {
        const std::u16string_view element = rest.substr(0, rest.find(u'/'));
        rest.remove_prefix(std::min(element.size() + 1, rest.size()));
        const std::size_t colon = element.find(u':');
        const bool isSet = element[colon + 1] == u's';
        const bool isNaming = element.back() == u'!';
        id.addParent(element.substr(0, colon), isSet ? syntax::setOf : syntax::collection,
                     isNaming ? namingRole : NestedAttrID::plainParent);
    }
    return id;
}

} // namespace zent
