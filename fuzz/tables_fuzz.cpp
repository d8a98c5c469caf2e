// Strings and tables: what they read from damaged files, and what they hold after any
// row of changes, next to the standard library's.
#include "addon/foundation/tableau.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "addon/foundation/string.h"
#include "fuzz/fuzz.h"

namespace kesto {

namespace {

// The file form of a value, in memory.
template <class T>
bool write(const T& value, std::string& bytes) {
  char* block = nullptr;
  std::size_t size = 0;
  FILE* const file = open_memstream(&block, &size);
  const bool written = value.fWrite(file) == 1;
  fclose(file);
  bytes.assign(block, size);
  free(block);
  return written;
}

template <class T>
bool read(T& value, std::string_view bytes, std::size_t& taken) {
  std::string copy(bytes);
  FILE* const file = fmemopen(copy.data(), copy.size(), "rb");
  const bool complete = value.fRead(file) == 1;
  taken = static_cast<std::size_t>(ftell(file));
  fclose(file);
  return complete;
}

// Whatever could be read whole is written as long as it was and read back as it is;
// a part of it cannot be read.
template <class T>
void checkRoundTrip(std::string_view bytes) {
  T value;
  std::size_t taken = 0;
  if (!read(value, bytes, taken)) {
    return;
  }
  FUZZ_CHECK(taken <= bytes.size());
  std::string written;
  FUZZ_CHECK(write(value, written));
  FUZZ_CHECK(written.size() == taken);
  T again;
  FUZZ_CHECK(read(again, written, taken));
  FUZZ_CHECK(taken == written.size());
  std::string same;
  FUZZ_CHECK(write(again, same) && same == written);
  T part;
  const std::size_t cut = static_cast<unsigned char>(bytes[0]) % written.size();
  FUZZ_CHECK(!read(part, written.substr(0, cut), taken));
}

// After a failed read only the slots at the end are empty.
void checkSlots(std::string_view bytes) {
  Tableau<String> table;
  std::size_t taken = 0;
  const bool complete = read(table, bytes, taken);
  int filled = 0;
  while (filled < table.count() && table.at(filled) != nullptr) {
    ++filled;
  }
  FUZZ_CHECK(!complete || filled == table.count());
  for (int i = filled; i < table.count(); ++i) {
    FUZZ_CHECK(table.at(i) == nullptr);
  }
  if (!complete || filled == 0) {
    return;
  }
  table.sortByText();
  for (int i = 1; i < filled; ++i) {
    FUZZ_CHECK(strcmp(table.at(i - 1)->text(), table.at(i)->text()) <= 0);
  }
  table.sortByNumber();
  for (int i = 1; i < filled; ++i) {
    FUZZ_CHECK(static_cast<long int>(*table.at(i - 1)) <= static_cast<long int>(*table.at(i)));
  }
}

// The input as a row of changes: a kind and an argument, a byte each.
class Changes {
 public:
  explicit Changes(std::string_view bytes) : rest_(bytes) {}
  bool next(int& kind, int& argument) {
    if (rest_.size() < 2) {
      return false;
    }
    kind = static_cast<unsigned char>(rest_[0]);
    argument = static_cast<unsigned char>(rest_[1]);
    rest_.remove_prefix(2);
    return true;
  }
  std::string_view take(int size) {
    const std::string_view taken = rest_.substr(0, static_cast<std::size_t>(size));
    rest_.remove_prefix(taken.size());
    return taken;
  }

 private:
  std::string_view rest_;
};

void checkTableChanges(std::string_view bytes) {
  Ensemble<String> table;
  std::vector<const Basic*> model;
  Changes changes(bytes);
  int kind = 0;
  int argument = 0;
  while (changes.next(kind, argument)) {
    const int count = static_cast<int>(model.size());
    const int at = argument % (count + 1);
    const auto place = model.begin() + at;
    switch (kind % 7) {
      case 0:
        table.insert(new String(argument), at);
        model.insert(place, table.at(at));
        break;
      case 1:
        table.append(new String(argument));
        model.push_back(table.at(count));
        break;
      case 2:
        if (at < count) {
          table.removeAndDelete(at);
          model.erase(place);
        }
        break;
      case 3:
        if (at + 1 < count) {
          table.swapWithNext(at);
          std::swap(place[0], place[1]);
        }
        break;
      case 4:
        table.openGap(at, kind);
        model.insert(place, static_cast<std::size_t>(kind), nullptr);
        break;
      case 5:
        table.removeRange(at, 0);
        model.erase(place, model.end());
        break;
      default:
        table.setStep(kind);
        table.removeRange(0, at);
        model.erase(model.begin(), at == 0 ? model.end() : place);
        break;
    }
    FUZZ_CHECK(table.count() == static_cast<int>(model.size()));
    FUZZ_CHECK(table.capacity() >= table.count());
    for (int i = 0; i < table.count(); ++i) {
      FUZZ_CHECK(table.at(i) == model[static_cast<std::size_t>(i)]);
    }
  }
}

void checkTextChanges(std::string_view bytes) {
  String text;
  std::string model;
  Changes changes(bytes);
  int kind = 0;
  int argument = 0;
  while (changes.next(kind, argument)) {
    // A part of the text itself has to survive the block that it lies in.
    const std::size_t at = static_cast<std::size_t>(argument) % (model.size() + 1);
    switch (kind % 7) {
      case 0: {
        const std::string_view piece = upToZero(changes.take(argument));
        text = piece;
        model = piece;
        break;
      }
      case 1: {
        const std::string_view piece = upToZero(changes.take(argument));
        text += piece;
        model += piece;
        break;
      }
      case 2:
        text = text.text() + at;
        model = model.substr(at);
        break;
      case 3:
        text += text.text() + at;
        model += model.substr(at);
        break;
      case 4:
        text = std::string_view(text.text(), at);
        model.resize(at);
        break;
      case 5:
        text += text;
        model += model;
        break;
      default:
        text += argument - kind;
        model += std::to_string(argument - kind);
        break;
    }
    model.resize(std::min(model.size(), String::kMaxLength));
    FUZZ_CHECK(text.view() == model && text.length() == static_cast<int>(model.size()));
    FUZZ_CHECK(text == model.c_str() && String(text) == text);
    FUZZ_CHECK(&text[argument] == text.text() + argument || text[argument] == '\0');
  }
}

}  // namespace

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kesto;
  if (size == 0) {
    return 0;
  }
  // The first byte chooses what the others are.
  const std::string_view bytes = inputText(data + 1, size - 1);
  switch (data[0] % 5) {
    case 0:
      checkRoundTrip<String>(bytes);
      break;
    case 1:
      checkRoundTrip<Tableau<String>>(bytes);
      checkSlots(bytes);
      break;
    case 2:
      checkRoundTrip<Tableau<Tableau<String>>>(bytes);
      break;
    case 3:
      checkTableChanges(bytes);
      break;
    default:
      checkTextChanges(bytes);
      break;
  }
  return 0;
}
