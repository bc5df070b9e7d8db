#pragma once

#include <string>
#include <string_view>

#include "Zlib.h"

namespace zent::bench {

/// What is deflated in a state blob.
struct BlobContent {
    BlobContent() = default;
    explicit BlobContent(std::string_view state);

    std::string_view document() const;
    /// Expands the stream and gives the document in it: the least that reading a blob begins with.
    std::string_view expandDocument(Inflater& inflater) const;

    std::string stream;
    std::string expanded; // a structure of fixed size, and a document
};

} // namespace zent::bench
