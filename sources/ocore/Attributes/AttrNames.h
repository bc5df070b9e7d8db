#pragma once

#include "ocore/Attributes/AttrID.h"

/// The names inside compound values.
namespace zent::attrNames {

const AttrID& value();
const AttrID& lowerBound();
const AttrID& upperBound();
const AttrID& crossFeed();
const AttrID& feedDirection();
const AttrID& units();

} // namespace zent::attrNames
