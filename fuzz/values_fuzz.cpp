// Texts that come from outside: paths, titles, lists, numbers, text files, and the
// options that a project keeps.
#include <algorithm>
#include <climits>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "addon/delivery/project_options.h"
#include "addon/foundation/path.h"
#include "addon/foundation/settings_values.h"
#include "addon/foundation/text_file.h"
#include "addon/groupware/project_options.h"
#include "addon/html/project_options.h"
#include "addon/mail/project_options.h"
#include "addon/rcgen/project_options.h"
#include "fuzz/fuzz.h"

namespace kesto {

namespace {

void checkPath(std::string_view path) {
  const std::string_view name = fileNamePart(path);
  const std::string_view directory = directoryPart(path);
  FUZZ_CHECK(isWithin(name, path) && isWithin(directory, path));
  const bool separated = path.find_first_of("\\/") != std::string_view::npos;
  FUZZ_CHECK(directory.size() + name.size() + (separated ? 1 : 0) == path.size());
  const String joined = joinPath(directory, name);
  FUZZ_CHECK(fileNamePart(joined.view()) == name);

  String upper(name);
  upperAscii(upper);
  FUZZ_CHECK(titleMatches(path, upper.view()));
  FUZZ_CHECK(titleMatches(std::string(path) + ":2", upper.view()));
  FUZZ_CHECK(!titleMatches(path, std::string(path) + "X"));
}

void checkTitle(std::string_view title) {
  for (const std::size_t limit : {kTitleLimit, title.size()}) {
    const std::string_view file = fileOfTitle(title, limit);
    FUZZ_CHECK(title.starts_with(file) && file.size() <= limit);
    FUZZ_CHECK(fileOfTitle(file, limit) == file);
    FUZZ_CHECK(file.find_first_of(":*", 2) == std::string_view::npos);
  }
  const std::string_view shown = documentationTitle(title);
  FUZZ_CHECK(title.starts_with(shown) && documentationTitle(shown) == shown);
  FUZZ_CHECK(documentationTitle(std::string(shown) + " *") == shown);
  const std::string_view file = fileWithoutLine(title);
  FUZZ_CHECK(title.starts_with(file) && fileWithoutLine(file) == file);
}

bool isBlank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

void checkList(std::string_view list) {
  std::string_view rest = list;
  std::string_view entry;
  std::size_t end = 0;  // of the entry before, its blanks and its ";" included
  while (nextListEntry(rest, entry)) {
    FUZZ_CHECK(!entry.empty() && entry.find(';') == std::string_view::npos);
    FUZZ_CHECK(entry.front() != ' ' && entry.back() != ' ');
    const std::size_t start = static_cast<std::size_t>(entry.data() - list.data());
    FUZZ_CHECK(start >= end);
    FUZZ_CHECK(isBlank(list.substr(end, start - end)));
    const std::size_t next = std::min(list.find(';', end), list.size());
    FUZZ_CHECK(isBlank(list.substr(start + entry.size(), next - start - entry.size())));
    end = std::min(next + 1, list.size());
  }
  // What ended the list: nothing at all between two ";", or the end.
  FUZZ_CHECK(isBlank(list.substr(end, list.find(';', end) - end)));
}

void checkNumber(const char* text) {
  const int value = parseInteger(text, 1);
  const int other = parseInteger(text, 2);
  FUZZ_CHECK(value == other || (value == 1 && other == 2));
  if (value == other) {
    char digits[kIntegerTextSize];
    formatInteger(value, digits);
    FUZZ_CHECK(parseInteger(digits, 1) == value && parseInteger(digits, 2) == value);
  }
}

std::string withoutReturns(std::string_view text) {
  std::string rest(text);
  std::erase(rest, '\r');
  return rest;
}

void checkTextFile(std::string_view bytes) {
  std::string text(bytes);
  takeTextMode(text);
  const std::string_view before_end = bytes.substr(0, bytes.find('\x1A'));
  FUZZ_CHECK(text.size() <= before_end.size());
  // Only CRs go, one for each pair that there was.
  std::size_t pairs = 0;
  for (std::size_t at = 0; (at = before_end.find("\r\n", at)) != std::string_view::npos; ++at) {
    ++pairs;
  }
  FUZZ_CHECK(text.size() + pairs == before_end.size());
  FUZZ_CHECK(withoutReturns(text) == withoutReturns(before_end));

  const std::size_t limit = 2 + bytes.size() % 100;
  const bool whole = text.find('\0') == std::string::npos;
  std::string pieces;
  std::string_view piece;
  TextLines lines(text, limit);
  while (lines.next(piece)) {
    FUZZ_CHECK(isWithin(piece, text) && piece.size() < limit);
    FUZZ_CHECK(piece.find('\n') >= piece.size() - 1);
    FUZZ_CHECK(piece.starts_with(withoutLineEnd(piece)));
    pieces += piece;
  }
  FUZZ_CHECK(whole ? pieces == text : pieces.size() < text.size());
}

// Options as a project file holds them. Each value lies in a block of its own length,
// so that a read beyond it is seen.
class StoredOptions : public ProjectOptionStore {
 public:
  int get(const char* name, const void** data) override {
    const auto found = values_.find(std::string_view(name));
    if (found == values_.end()) {
      return 0;
    }
    *data = found->second.bytes.data();
    return found->second.claimed;
  }
  void set(const char* name, const void* data, int size) override {
    put(name, {static_cast<const char*>(data), static_cast<std::size_t>(size)}, size);
  }
  void put(std::string_view name, std::string_view bytes, int claimed) {
    values_.insert_or_assign(std::string(name),
                             Value{std::vector<char>(bytes.begin(), bytes.end()), claimed});
  }
  std::map<std::string, std::string> contents() const {
    std::map<std::string, std::string> all;
    for (const auto& [name, value] : values_) {
      all[name] = std::string(value.bytes.begin(), value.bytes.end());
    }
    return all;
  }

 private:
  struct Value {
    std::vector<char> bytes;
    int claimed;
  };
  std::map<std::string, Value, std::less<>> values_;
};

// A line is "name=bytes"; "name?bytes" claims more bytes than a terminated text has.
void fill(StoredOptions& store, std::string_view lines) {
  while (!lines.empty()) {
    const std::string_view line = takeLine(lines);
    const std::size_t mark = line.find_first_of("=?");
    if (mark == std::string_view::npos) {
      continue;
    }
    const std::string_view name = upToZero(line.substr(0, mark));
    const std::string_view bytes = line.substr(mark + 1);
    if (line[mark] == '=') {
      store.put(name, bytes, static_cast<int>(bytes.size()));
    } else {
      store.put(name, std::string(bytes) + '\0', INT_MAX);
    }
  }
}

struct AllOptions {
  DeliveryProjectOptions delivery;
  Ensemble<String> recipients;
  GroupwareProjectOptions groupware;
  HtmlProjectOptions html;
  RcgenProjectOptions rcgen;

  void read(ProjectOptionStore& store) {
    delivery.readCount(store);
    delivery.readGroups(store);
    delivery.tool_present.read(store);
    readRecipients(store, recipients);
    groupware.server_directory.read(store);
    html.enabled.read(store);
    html.automatic.read(store);
    html.filters.read(store);
    rcgen.dialog_classes.read(store);
    rcgen.version_stamping.read(store);
  }
  void write(ProjectOptionStore& store) const {
    delivery.writeGroups(store);
    delivery.writeActive(store);
    delivery.tool_present.write(store);
    writeRecipients(store, recipients);
    groupware.server_directory.write(store);
    html.enabled.write(store);
    html.automatic.write(store);
    html.filters.write(store);
    rcgen.dialog_classes.write(store);
    rcgen.version_stamping.write(store);
  }
};

void checkOptions(std::string_view lines) {
  StoredOptions damaged;
  fill(damaged, lines);
  AllOptions options;
  options.read(damaged);
  FUZZ_CHECK(options.delivery.groups.count() <= kOptionListLimit);
  FUZZ_CHECK(options.recipients.count() <= kOptionListLimit);
  StoredOptions first;
  options.write(first);
  AllOptions again;
  again.read(first);
  StoredOptions second;
  again.write(second);
  FUZZ_CHECK(first.contents() == second.contents());
  FUZZ_CHECK(again.recipients.count() == options.recipients.count());
  FUZZ_CHECK(again.delivery.groups.count() == options.delivery.groups.count());
  FUZZ_CHECK(again.html.filters.value == options.html.filters.value);
}

}  // namespace

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kesto;
  const std::string_view whole = inputText(data, size);
  checkTextFile(whole);
  checkOptions(whole);
  const std::string text(upToZero(whole));
  checkPath(text);
  checkTitle(text);
  checkList(text);
  checkNumber(text.c_str());
  return 0;
}
