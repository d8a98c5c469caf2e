// Growable arrays of element pointers. Tableau<T> reads itself back from a file,
// Ensemble<T> is assembled in memory only.
//
// While owns is set (the default) the table deletes its elements when they are
// removed with deletion, when it is cleared and when it is destroyed; a table that
// only points at elements of others turns it off. One user, no locking.
#pragma once

#include <cstdint>
#include <memory>

#include "addon/foundation/basic.h"

namespace kesto {

// What indexOf yields for an absent element.
inline constexpr int kErrTab = 0xFFFF;

class BasicTableau : public Basic {
 public:
  // As of qsort: the two arguments point at slots (Basic* const*).
  using Comparison = int (*)(const void* left, const void* right);

  BasicTableau() = default;
  BasicTableau(const BasicTableau&) = delete;
  BasicTableau& operator=(const BasicTableau&) = delete;
  ~BasicTableau() override;

  int count() const { return count_; }
  int capacity() const { return capacity_; }
  void setOwns(bool owns) { owns_ = owns ? 1 : 0; }
  // Slots by which the table grows and shrinks; a step below 1 is ignored.
  void setStep(int step) { step_ = step > 0 ? step : step_; }

  // Positions count from 0 and are not checked.
  Basic* at(int position) const { return items_[position]; }
  void set(int position, Basic* element) { items_[position] = element; }
  void insert(Basic* element, int position);
  void append(Basic* element) { insert(element, count_); }
  // Takes the element out without deleting it.
  Basic* remove(int position);
  void removeAndDelete(int position);
  // By identity; kErrTab when absent.
  int indexOf(const Basic* element) const;
  void swapWithNext(int position);
  // Makes room for n null slots at position at.
  void openGap(int at, int n);

  // Deletes (when owned) and removes n elements; n = 0 means to the end. Right for
  // ranges that start at 0 or end at the table's end, and for those alone: what
  // follows a range in the middle is moved down only in part.
  void removeRange(int from, int n);
  void clear() { removeRange(0, 0); }

  // n = 0 means to the end. None of them is stable.
  void sort(Comparison comparison, int from = 0, int n = 0);
  void sortByText(int from = 0, int n = 0);    // byte order of operator char*
  void sortByNumber(int from = 0, int n = 0);  // operator long int

  // The file form: count (signed 32 bits), then each element's own.
  int fWrite(FILE* file) const override;

 protected:
  // Reads a count and judges it: a negative one fails, and so does one above
  // kTrustedCount that the rest of the file cannot hold at smallest bytes each.
  // Up to kTrustedCount slots are opened unseen: that much memory is harmless, and
  // a table cut off after its count keeps its slots. 1 on success, 0 on failure.
  static constexpr int kTrustedCount = kErrTab - 1;
  static int readCount(FILE* file, long smallest, int* count);

 private:
  void setCapacity(int capacity);
  void release();

  Basic** items_ = nullptr;
  std::int32_t step_ = 10;
  std::int32_t capacity_ = 0;
  std::int32_t count_ = 0;
  std::int32_t owns_ = 1;
};

// What both typed fronts share: the element's type, nothing else.
template <class T>
class TypedTableau : public BasicTableau {
 public:
  T* at(int position) const { return static_cast<T*>(BasicTableau::at(position)); }
  T* operator[](int position) const { return at(position); }
  T* remove(int position) { return static_cast<T*>(BasicTableau::remove(position)); }

  // Sorts by a comparison of two elements: below 0, 0 or above 0.
  template <int (*Compare)(const T& left, const T& right)>
  void sortWith(int from = 0, int n = 0) {
    sort(
        [](const void* left, const void* right) {
          return Compare(static_cast<const T&>(**static_cast<Basic* const*>(left)),
                         static_cast<const T&>(**static_cast<Basic* const*>(right)));
        },
        from, n);
  }
};

// Bytes of the shortest file form of T: its constant kSmallestRecord, else 1.
template <class T>
constexpr long smallestRecord() {
  if constexpr (requires { T::kSmallestRecord; }) {
    return T::kSmallestRecord;
  } else {
    return 1;
  }
}

template <class T>
class Tableau : public TypedTableau<T> {
 public:
  static constexpr long kSmallestRecord = 4;

  // Replaces the elements by those of the file. A failure leaves the elements read
  // so far, and null slots for the others.
  int fRead(FILE* file) override {
    this->removeRange(0, 0);
    int count = 0;
    if (!BasicTableau::readCount(file, smallestRecord<T>(), &count)) {
      return 0;
    }
    this->openGap(0, count);
    for (int i = 0; i < count; ++i) {
      auto element = std::make_unique<T>();
      if (!element->fRead(file)) {
        return 0;
      }
      this->set(i, element.release());
    }
    return 1;
  }
};

template <class T>
class Ensemble : public TypedTableau<T> {};

}  // namespace kesto
