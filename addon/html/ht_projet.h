// htProjet: the model of one generation. Owns every class, symbol and file that it
// creates. Filled by one reader after another, then sorted, then only read; all on the
// thread that generates.
#pragma once

#include <string_view>

#include "addon/html/ht_symbol.h"

namespace kesto {

class htProjet : public htSymbol {
 public:
  htProjet(std::string_view root, std::string_view patterns, std::string_view project_name);

  // Each finds an entry or adds a new one. What is added enters the file's table as well,
  // as does a class that the file does not list yet. The files are read one after the
  // other: what is asked for belongs to the file added last.
  htFile& addFile(std::string_view path);
  htClass& findOrAddClass(std::string_view class_name, htFile& in);
  htSymbol& findOrAddMacro(std::string_view macro_name, htFile& in, EntryKind kind);
  htSymbol& findOrAddFunction(std::string_view function_name, htFile& in, EntryKind kind);
  htSymbol& findOrAddMethod(htClass& of, std::string_view method_name, EntryKind kind);

  bool isFunction(const htSymbol& symbol) const { return function_names_.holds(symbol); }
  bool isMacro(const htSymbol& symbol) const { return macro_names_.holds(symbol); }

  // Sorts the four collections by name; equal names stay in order of creation, so that
  // every entry gets the same pages each time.
  void sort();

  String directory;
  String filters;  // patterns separated by ";"
  Ensemble<htSymbol> functions;
  Ensemble<htClass> classes;
  Ensemble<htSymbol> macros;
  Tableau<htFile> files;

 private:
  Ensemble<htSymbol> methods_;  // of all classes
  NameIndex function_names_;
  NameIndex class_names_;
  NameIndex macro_names_;
};

}  // namespace kesto
