// The records of delivery: OneDelRep, a group of deliverable files with the directory they
// go to, and Livrage, one file that is about to go there.
#pragma once

#include <cstdint>

#include "addon/foundation/basic.h"
#include "addon/foundation/string.h"

namespace kesto {

class OneDelRep : public Basic {
 public:
  OneDelRep() = default;
  OneDelRep(std::string_view its_type, std::string_view its_directory)
      : type(its_type), directory(its_directory) {}

  // Groups are sorted by it.
  operator char*() const override { return type; }

  String type;  // of the project nodes that belong to the group
  String directory;
  std::int16_t active = 1;   // 0: its files stay where they are
  std::int32_t present = 0;  // only while the groups are rebuilt
};

class Livrage : public Basic {
 public:
  Livrage() = default;
  Livrage(std::string_view its_source, const OneDelRep& its_group)
      : source(its_source), group(&its_group) {}

  String source;
  const OneDelRep* group = nullptr;  // outlives the record
  // Bytes, known just before the copying; larger files count as this many.
  std::uint32_t size = 0;
};

}  // namespace kesto
