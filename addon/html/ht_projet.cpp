#include "addon/html/ht_projet.h"

#include <algorithm>
#include <vector>

#include "addon/foundation/path.h"

namespace kesto {

namespace {

// A table of unknown size grows by a part of what it holds: by a fixed step, a hundred
// thousand entries would be moved ten thousand times.
template <class T>
void append(TypedTableau<T>& table, T* entry) {
  constexpr int kSmallestStep = 10;
  table.setStep(std::max(kSmallestStep, table.count() / 2));
  table.append(entry);
}

template <class T>
void sortByName(TypedTableau<T>& table) {
  std::vector<T*> entries(static_cast<std::size_t>(table.count()));
  for (int i = 0; i < table.count(); ++i) {
    entries[static_cast<std::size_t>(i)] = table[i];
  }
  std::stable_sort(entries.begin(), entries.end(),
                   [](const T* a, const T* b) { return a->name.view() < b->name.view(); });
  for (int i = 0; i < table.count(); ++i) {
    table.set(i, entries[static_cast<std::size_t>(i)]);
  }
}

htSymbol& findOrAdd(std::string_view name, EntryKind kind, NameIndex& names,
                    Ensemble<htSymbol>& all, Tableau<htSymbol>& listed, const htFile* in) {
  htSymbol* entry = names.find(name, kind);
  if (entry == nullptr) {
    entry = new htSymbol(name);
    entry->seen_in = in;
    append(all, entry);
    append(listed, entry);
    names.add(*entry);
  }
  return *entry;
}

}  // namespace

htFile::htFile(std::string_view file_path) : htSymbol(fileNamePart(file_path)), path(file_path) {
  macros.setOwns(false);
  functions.setOwns(false);
  classes.setOwns(false);
}

htProjet::htProjet(std::string_view root, std::string_view patterns, std::string_view project_name)
    : htSymbol(project_name), directory(root), filters(patterns) {}

htFile& htProjet::addFile(std::string_view path) {
  auto* const added = new htFile(path);
  append(files, added);
  return *added;
}

htClass& htProjet::findOrAddClass(std::string_view class_name, htFile& in) {
  auto* entry = static_cast<htClass*>(class_names_.find(class_name, EntryKind::kAny));
  if (entry == nullptr) {
    entry = new htClass(class_name);
    append(classes, entry);
    class_names_.add(*entry);
  }
  if (entry->listed_in.empty() || entry->listed_in.back() != &in) {
    entry->listed_in.push_back(&in);
    append(in.classes, entry);
  }
  return *entry;
}

htSymbol& htProjet::findOrAddMacro(std::string_view macro_name, htFile& in, EntryKind kind) {
  return findOrAdd(macro_name, kind, macro_names_, macros, in.macros, &in);
}

htSymbol& htProjet::findOrAddFunction(std::string_view function_name, htFile& in, EntryKind kind) {
  return findOrAdd(function_name, kind, function_names_, functions, in.functions, &in);
}

htSymbol& htProjet::findOrAddMethod(htClass& of, std::string_view method_name, EntryKind kind) {
  return findOrAdd(method_name, kind, of.method_names, methods_, of.methods, nullptr);
}

void htProjet::sort() {
  sortByName(functions);
  sortByName(classes);
  sortByName(macros);
  sortByName(files);
  for (int i = 0; i < classes.count(); ++i) {
    classes[i]->listed_in.clear();
  }
  for (int i = 0; i < files.count(); ++i) {
    const htFile& file = *files[i];
    for (int c = 0; c < file.classes.count(); ++c) {
      file.classes[c]->listed_in.push_back(&file);
    }
  }
}

}  // namespace kesto
