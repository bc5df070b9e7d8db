#pragma once

#include "ocore/Attributes/AttrValue.h"

namespace zent {

/// A value of an attribute in a line of text: the values of a list in order, with spaces between
/// them, a range as "(1-5)", a resolution as "(600 x 600, 3)", two dimensions as "(21000 x 29700)".
CXString makeValueText(const CXString& attribute, const AttrValue& value);
/// The same for users: a value that has a name is shown by it.
CXString makeValueDisplay(const CXString& attribute, const AttrValue& value);

} // namespace zent
