#include "addon/foundation/tableau.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "addon/foundation/binary_form.h"

namespace kesto {

namespace {

constexpr std::size_t kSlotSize = sizeof(void*);

const Basic& element(const void* slot) {
  return **static_cast<Basic* const*>(slot);
}

int compareTexts(const void* left, const void* right) {
  return strcmp(static_cast<char*>(element(left)), static_cast<char*>(element(right)));
}

int compareNumbers(const void* left, const void* right) {
  const auto a = static_cast<long int>(element(left));
  const auto b = static_cast<long int>(element(right));
  return (a > b) - (a < b);
}

}  // namespace

BasicTableau::~BasicTableau() {
  removeRange(0, 0);
}

void BasicTableau::setCapacity(int capacity) {
  capacity_ = capacity;
  items_ = static_cast<Basic**>(realloc(items_, static_cast<std::size_t>(capacity) * kSlotSize));
}

void BasicTableau::release() {
  free(items_);
  items_ = nullptr;
  capacity_ = 0;
}

void BasicTableau::insert(Basic* element, int position) {
  if (capacity_ < count_ + 1) {
    setCapacity(capacity_ + step_);
  }
  std::copy_backward(items_ + position, items_ + count_, items_ + count_ + 1);
  items_[position] = element;
  ++count_;
}

Basic* BasicTableau::remove(int position) {
  Basic* removed = items_[position];
  std::copy(items_ + position + 1, items_ + count_, items_ + position);
  --count_;
  if (count_ < capacity_ - step_) {
    if (count_ == 0) {
      release();
    } else {
      setCapacity(capacity_ - step_);
    }
  }
  return removed;
}

void BasicTableau::removeAndDelete(int position) {
  Basic* removed = remove(position);
  if (owns_) {
    delete removed;
  }
}

int BasicTableau::indexOf(const Basic* element) const {
  for (int i = 0; i < count_; ++i) {
    if (items_[i] == element) {
      return i;
    }
  }
  return kErrTab;
}

void BasicTableau::swapWithNext(int position) {
  std::swap(items_[position], items_[position + 1]);
}

void BasicTableau::openGap(int at, int n) {
  if (n <= 0) {
    return;
  }
  if (capacity_ < count_ + n) {
    setCapacity(((count_ + n) / step_ + 1) * step_);
  }
  std::copy_backward(items_ + at, items_ + count_, items_ + count_ + n);
  std::fill_n(items_ + at, n, nullptr);
  count_ += n;
}

void BasicTableau::removeRange(int from, int n) {
  if (from < 0 || from > count_ || n < 0) {
    return;
  }
  if (n == 0 || n > count_ - from) {
    n = count_ - from;
  }
  if (owns_) {
    for (int i = from; i < from + n; ++i) {
      delete items_[i];
    }
  }
  for (int i = from; i < count_ - (from + n); ++i) {
    items_[i] = items_[i + n];
  }
  count_ -= n;
  if (count_ == 0) {
    release();
  } else if (const int fitting = (count_ / step_ + 1) * step_; fitting < capacity_) {
    setCapacity(fitting);
  }
}

void BasicTableau::sort(Comparison comparison, int from, int n) {
  if (count_ == 0 || from < 0 || from >= count_) {
    return;
  }
  const int range = n <= 0 || n > count_ - from ? count_ - from : n;
  qsort(items_ + from, static_cast<std::size_t>(range), kSlotSize, comparison);
}

void BasicTableau::sortByText(int from, int n) {
  sort(compareTexts, from, n);
}

void BasicTableau::sortByNumber(int from, int n) {
  sort(compareNumbers, from, n);
}

int BasicTableau::fWrite(FILE* file) const {
  if (!writeInt32(file, count_)) {
    return 0;
  }
  for (int i = 0; i < count_; ++i) {
    // A slot left null by a failed read has no file form.
    if (items_[i] == nullptr || !items_[i]->fWrite(file)) {
      return 0;
    }
  }
  return 1;
}

int BasicTableau::readCount(FILE* file, long smallest, int* count) {
  std::int32_t read = 0;
  if (!readInt32(file, &read) || read < 0) {
    return 0;
  }
  if (read > kTrustedCount && remainingBytes(file) / smallest < read) {
    return 0;
  }
  *count = read;
  return 1;
}

}  // namespace kesto
