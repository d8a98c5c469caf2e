// The byte order of keywords. Comparing texts all over memory would cost more than reading
// the files they come from, so that characters are sorted as numbers, many at a time. Plain.
#pragma once

#include <vector>

#include "addon/foundation/tableau.h"

namespace kesto {

class Keyword;

// Replaces the table's elements by the keywords, in ascending byte order of their texts,
// which hold no zero bytes; equal ones as they stand in the vector, which stays their owner.
void sortKeywords(std::vector<Keyword>& keywords, Tableau<Keyword>& sorted);

}  // namespace kesto
