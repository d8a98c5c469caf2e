// Basic: the persistable root of strings, tables and the records of the features.
// The slot order of the virtual operations is part of the design. Basic's own
// operations stand for "pure": each tells the user so in an "Erreur" box and
// yields 0.
#pragma once

#include <cstdio>

namespace kesto {

class Basic {
 public:
  Basic() = default;
  Basic(const Basic&) = default;
  Basic& operator=(const Basic&) = default;

  // Both take a stream opened in binary mode by the caller; 1 on success, 0 on
  // failure, after which the object is as far as it got.
  virtual int fWrite(FILE* file) const;
  virtual int fRead(FILE* file);
  // The text stays the object's own; null when there is none.
  virtual operator char*() const;
  // Explicit, so that a text never slips into arithmetic.
  virtual explicit operator long int() const;
  virtual ~Basic() = default;
};

}  // namespace kesto
