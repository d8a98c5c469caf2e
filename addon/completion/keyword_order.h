// The byte order of keywords. Comparing texts all over memory would cost more than reading
// the files they come from, so eight characters at a time are sorted as one number. Plain.
#pragma once

#include <cstdint>
#include <vector>

namespace kesto {

class Keyword;

// The keywords' indices in ascending byte order of their texts, which hold no zero bytes;
// equal ones in the order given.
std::vector<std::uint32_t> keywordOrder(const std::vector<Keyword>& keywords);

}  // namespace kesto
