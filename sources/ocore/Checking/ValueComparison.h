#pragma once

#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/Capabilities/SupportedValues.h"

namespace zent {

/// Whether a value in a ticket is among what a printer supports. A value is refused on positive
/// evidence only: pairs that nobody has foreseen pass, and so does a comparison that fails.
/// `attribute` is for the trace; `userDefined` says whether users may invent values of it.
bool compareAttrValues(const CXString& attribute, const AttrValue& value,
                       const AttrValue& supported, bool userDefined);
/// The same, with the texts of the capability looked up.
bool compareAttrValues(const CXString& attribute, const AttrValue& value,
                       const SupportedValues& supported, bool userDefined);

/// Whether a media size fits one of the sizes that a printer takes, either way round. With
/// `userDefinedSizes` only those sizes count that are ranges: they bound what users may invent.
bool compareMediaSizes(const AttrNodeList& size, const AttrNodeList& supported,
                       bool userDefinedSizes);
/// Whether one dimension fits; true if either is missing. `rangeSeen` is set if the supported one
/// is a range, and left alone otherwise.
bool validateMediaSizeDimensionInRange(const AttrNode* dimension,
                                       const AttrNode* supportedDimension, bool& rangeSeen,
                                       bool userDefined);

} // namespace zent
