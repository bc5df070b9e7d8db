#include "ocore/Attributes/AttrNames.h"

#include "platform/KeepForever.h"

namespace zent::attrNames {

const AttrID& value() {
    static const AttrID& id = keepForever<AttrID>(u"value");
    return id;
}
const AttrID& lowerBound() {
    static const AttrID& id = keepForever<AttrID>(u"lower-bound");
    return id;
}
const AttrID& upperBound() {
    static const AttrID& id = keepForever<AttrID>(u"upper-bound");
    return id;
}
const AttrID& crossFeed() {
    static const AttrID& id = keepForever<AttrID>(u"cross-feed");
    return id;
}
const AttrID& feedDirection() {
    static const AttrID& id = keepForever<AttrID>(u"feed-direction");
    return id;
}
const AttrID& units() {
    static const AttrID& id = keepForever<AttrID>(u"units");
    return id;
}

} // namespace zent::attrNames
