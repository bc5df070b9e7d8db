#include "ocore/FeatureSettings/SettingIdentifier.h"

namespace zent {

bool _SI::isInSetOf() const {
    const NestedAttrID& id = getNestedAttrID();
    return !id.isSimple() && id.getParentSyntax(0) == syntax::setOf;
}

} // namespace zent
