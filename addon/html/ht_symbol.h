// What the documentation knows of: symbols (functions, methods, macros), classes and
// files. The project (ht_projet.h) owns them all; the tables in here only refer.
//
// The name of an entry is given once, when it is created: indexes point into it.
// Used by the thread that generates.
#pragma once

#include <string_view>
#include <vector>

#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"
#include "addon/html/name_index.h"

namespace kesto {

class htFile;

class htSymbol : public Basic {
 public:
  htSymbol() = default;
  explicit htSymbol(std::string_view symbol_name) : name(symbol_name) {}
  htSymbol(const htSymbol&) = delete;
  htSymbol& operator=(const htSymbol&) = delete;

  bool hasDocumentation() const { return !documentation.empty(); }
  bool hasDeclaration() const { return !declaration.empty(); }
  // What collections sort by.
  operator char*() const override { return name; }

  String name;
  String brief;
  // Lines, each ended by a line feed, which kMarkedLine precedes in a marked line.
  String documentation;
  String declaration;

  // The file in which a function or macro was first seen.
  const htFile* seen_in = nullptr;
  // Position among the entries of the same name and sort, in order of creation.
  int number = 0;
};

// Ends the text of a line that its author marked with a "~".
inline constexpr char kMarkedLine = '\x03';

class htClass : public htSymbol {
 public:
  htClass() { methods.setOwns(false); }
  explicit htClass(std::string_view class_name) : htSymbol(class_name) { methods.setOwns(false); }

  Tableau<htSymbol> methods;             // in order of creation
  NameIndex method_names;                // of methods
  std::vector<const htFile*> listed_in;  // the files whose classes hold it, in their order
};

class htFile : public htSymbol {
 public:
  htFile() : htFile(std::string_view()) {}
  explicit htFile(std::string_view file_path);

  String path;
  Tableau<htSymbol> macros;     // first seen in it
  Tableau<htSymbol> functions;  // first seen in it
  Tableau<htClass> classes;     // each once
};

}  // namespace kesto
