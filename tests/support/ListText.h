#pragma once

#include <string>
#include <string_view>

#include "ocore/Attributes/AttrNodeList.h"

namespace zent::test {

/// A node list as one line, so that tests are rows of texts, and the list of such a line. Nodes are
/// separated by spaces:
///
/// copies=2                    an integer sides=one-sided             a keyword
/// job-name=name:Report        a value of any other syntax media-col{media-color=red}  a collection
/// finishings[value=enum:3]    a set value(lower-bound=1)        a range
/// printer-resolution<units=3> a resolution !copies=2                   a private node
std::string textOfList(const AttrNodeList& list);
AttrNodeList listOf(std::string_view text);

} // namespace zent::test
