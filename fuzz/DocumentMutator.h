#pragma once

// Mutations of documents by their elements. A fuzzer that changes single bytes seldom gets past the
// parser: tags no longer match, and names that the document type doesn't declare are refused.

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

namespace zent::fuzz {

using Random = std::minstd_rand;

/// A number below the limit; 0 for the limit 0.
inline std::size_t below(Random& random, std::size_t limit) {
    return limit == 0 ? 0 : random() % limit;
}

/// The document with one element removed, repeated, moved into another, wrapped, renamed, of
/// another syntax or with another text, by the names of the document type and the values of the
/// features. All before the first tag stays as it is. A document without an element stays the same.
std::string mutateDocument(const std::string& document, Random& random);

/// Puts an element of the other document into the document.
std::string crossDocuments(const std::string& document, const std::string& other, Random& random);

} // namespace zent::fuzz
