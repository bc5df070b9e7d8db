#include "ocore/Attributes/AttrNames.h"

namespace zent::attrNames {

const AttrID& value() {
    static const AttrID id(u"value");
    return id;
}
const AttrID& lowerBound() {
    static const AttrID id(u"lower-bound");
    return id;
}
const AttrID& upperBound() {
    static const AttrID id(u"upper-bound");
    return id;
}
const AttrID& crossFeed() {
    static const AttrID id(u"cross-feed");
    return id;
}
const AttrID& feedDirection() {
    static const AttrID id(u"feed-direction");
    return id;
}
const AttrID& units() {
    static const AttrID id(u"units");
    return id;
}

} // namespace zent::attrNames
