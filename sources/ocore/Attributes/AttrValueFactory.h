#pragma once

#include "ocore/Attributes/AttrValue.h"

namespace zent {

/// The one place where values are made from text.
class AttrValueFactory {
public:
    /// A value of AVTE 2 to 9; raises UnknownCaseException for every other number.
    static std::unique_ptr<AttrValue> createSimpleAttrValue(AVTE type, const CXString& value);

    /// A value by its syntax keyword. A keyword that isn't known gives an IppNull that keeps the
    /// keyword; a list keyword raises UnknownCaseException, since lists are filled by their reader.
    static std::unique_ptr<AttrValue> createAttrValue(const CXString& syntax,
                                                      const CXString& value);
};

} // namespace zent
