#include "tools/help_contexts.h"

#include <map>
#include <optional>
#include <vector>

namespace kesto {
namespace {

constexpr std::uint32_t kMagic = 0x00035F3F;
constexpr std::uint16_t kTreeMagic = 0x293B;
constexpr std::uint16_t kNoPage = 0xFFFF;
constexpr std::size_t kFileHeader = 9;
constexpr std::size_t kTreeHeader = 38;
constexpr std::size_t kLeafHeader = 8;
constexpr std::uint32_t kMostCommonHash = 0x7FFFFFFF;
constexpr std::size_t kSystemDate = 6;  // in |SYSTEM

// Numbers have their least byte first. What lies outside reads as nothing.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}
  std::optional<std::uint32_t> number(std::size_t at, std::size_t width) const {
    if (at > bytes_.size() || bytes_.size() - at < width) {
      return std::nullopt;
    }
    std::uint32_t value = 0;
    for (std::size_t i = width; i-- > 0;) {
      value = value << 8 | static_cast<unsigned char>(bytes_[at + i]);
    }
    return value;
  }
  std::optional<std::string_view> part(std::size_t at, std::size_t size) const {
    if (at > bytes_.size() || bytes_.size() - at < size) {
      return std::nullopt;
    }
    return bytes_.substr(at, size);
  }

 private:
  std::string_view bytes_;
};

void put(std::string& bytes, std::size_t at, std::uint32_t value) {
  for (std::size_t i = 0; i < 4; ++i) {
    bytes[at + i] = static_cast<char>(value >> (8 * i));
  }
}

void append(std::string& bytes, std::uint32_t value, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i) {
    bytes += static_cast<char>(value >> (8 * i));
  }
}

// What a file within the file holds.
std::optional<std::string_view> contentAt(const Bytes& help, std::size_t offset) {
  // An offset near the largest number would come round to the file's beginning.
  const auto header = help.part(offset, kFileHeader);
  const auto used = header ? Bytes(*header).number(4, 4) : std::nullopt;
  return used ? help.part(offset + kFileHeader, *used) : std::nullopt;
}

struct Leaf {
  std::string_view entries;
  std::uint32_t count;
};

// The leaves of a tree in their order, however many levels lead to them.
std::optional<std::vector<Leaf>> leavesOf(std::string_view tree) {
  const Bytes bytes(tree);
  const auto size = bytes.number(4, 2);
  const auto pages = bytes.number(30, 2);
  const auto levels = bytes.number(32, 2);
  auto page = bytes.number(26, 2);
  if (bytes.number(0, 2) != kTreeMagic || !size || !pages || !levels || !page) {
    return std::nullopt;
  }
  const auto page_at = [&](std::uint32_t number) {
    return number < *pages ? bytes.part(kTreeHeader + std::size_t{number} * *size, *size)
                           : std::nullopt;
  };
  for (std::uint32_t level = 1; level < *levels && page; ++level) {
    const auto index = page_at(*page);
    page = index ? Bytes(*index).number(4, 2) : std::nullopt;
  }
  std::vector<Leaf> leaves;
  while (page && *page != kNoPage) {
    const auto leaf = page_at(*page);
    const auto count = leaf ? Bytes(*leaf).number(2, 2) : std::nullopt;
    page = leaf ? Bytes(*leaf).number(6, 2) : std::nullopt;
    // Leaves that lead back to one another would never end.
    if (!count || leaf->size() < kLeafHeader || leaves.size() == *pages) {
      return std::nullopt;
    }
    leaves.push_back({leaf->substr(kLeafHeader), *count});
  }
  return page ? std::optional(leaves) : std::nullopt;
}

struct Place {
  std::size_t entry;  // where the directory says the offset
  std::uint32_t offset;
};
using Directory = std::map<std::string_view, Place>;

std::optional<Directory> directoryOf(std::string_view help, std::uint32_t offset) {
  const auto tree = contentAt(Bytes(help), offset);
  const auto leaves = tree ? leavesOf(*tree) : std::nullopt;
  if (!leaves) {
    return std::nullopt;
  }
  Directory directory;
  for (const Leaf& leaf : *leaves) {
    std::size_t at = 0;
    for (std::uint32_t i = 0; i < leaf.count; ++i) {
      const std::size_t end = leaf.entries.find('\0', at);
      const auto where =
          end != std::string_view::npos ? Bytes(leaf.entries).number(end + 1, 4) : std::nullopt;
      if (!where || !contentAt(Bytes(help), *where)) {
        return std::nullopt;
      }
      const auto entry = static_cast<std::size_t>(leaf.entries.data() - help.data()) + end + 1;
      directory[leaf.entries.substr(at, end - at)] = {entry, *where};
      at = end + 1 + 4;
    }
  }
  return directory;
}

// The places of the topics by the hashes of their words.
std::optional<std::map<std::uint32_t, std::uint32_t>> topicsOf(std::string_view tree) {
  const auto leaves = leavesOf(tree);
  if (!leaves) {
    return std::nullopt;
  }
  std::map<std::uint32_t, std::uint32_t> topics;
  for (const Leaf& leaf : *leaves) {
    const Bytes entries(leaf.entries);
    for (std::uint32_t i = 0; i < leaf.count; ++i) {
      const auto hash = entries.number(i * std::size_t{8}, 4);
      const auto topic = entries.number(i * std::size_t{8} + 4, 4);
      if (!hash || !topic) {
        return std::nullopt;
      }
      topics[*hash] = *topic;
    }
  }
  return topics;
}

std::uint32_t letterValue(char letter) {
  if (letter >= 'a' && letter <= 'z') {
    return static_cast<std::uint32_t>(letter - 'a') + 17;
  }
  if (letter >= 'A' && letter <= 'Z') {
    return static_cast<std::uint32_t>(letter - 'A') + 17;
  }
  if (letter >= '1' && letter <= '9') {
    return static_cast<std::uint32_t>(letter - '0');
  }
  return letter == '0' ? 10 : letter == '.' ? 12 : letter == '_' ? 13 : 0;
}

// The table's bytes in table, or what is wrong.
std::string makeTable(std::string_view tree, std::span<const HelpContext> contexts,
                      std::string& table) {
  const auto topics = topicsOf(tree);
  if (!topics) {
    return "damaged: |CONTEXT cannot be read";
  }
  // Some readers take the hash for a signed number, and so seek in another order.
  if (!topics->empty() && topics->rbegin()->first > kMostCommonHash) {
    return "not every viewer finds a page by a word like one here: take at most five characters";
  }
  append(table, static_cast<std::uint32_t>(contexts.size()), 2);
  std::uint32_t before = 0;
  for (const HelpContext& context : contexts) {
    const auto topic = topics->find(helpWordHash(context.word));
    if (topic == topics->end()) {
      return "no page has the word \"" + std::string(context.word) + "\"";
    }
    if (context.number <= before) {
      return "the number of \"" + std::string(context.word) + "\" does not ascend";
    }
    before = context.number;
    append(table, context.number, 4);
    append(table, topic->second, 4);
  }
  return {};
}

}  // namespace

std::uint32_t helpWordHash(std::string_view word) {
  std::uint32_t hash = 0;
  for (const char letter : word) {
    const std::uint32_t value = letterValue(letter);
    if (value == 0) {
      return 0;
    }
    hash = hash * 43 + value;
  }
  return hash;
}

std::string fillHelpContexts(std::string& help, std::span<const HelpContext> contexts) {
  const Bytes bytes(help);
  const auto root = bytes.number(4, 4);
  if (bytes.number(0, 4) != kMagic || bytes.number(12, 4) != help.size()) {
    return "this is no help file, or not the whole of one";
  }
  const auto directory = directoryOf(help, *root);
  if (!directory) {
    return "damaged: the directory cannot be read";
  }
  for (const char* name : {"|SYSTEM", "|CONTEXT", "|CTXOMAP"}) {
    if (!directory->contains(name)) {
      return std::string("damaged: it has no ") + name;
    }
  }
  const Place map = directory->at("|CTXOMAP");
  const std::size_t old_size = contentAt(bytes, map.offset)->size();
  const std::uint32_t system = directory->at("|SYSTEM").offset;
  std::string table;
  std::string wrong =
      makeTable(*contentAt(bytes, directory->at("|CONTEXT").offset), contexts, table);
  if (wrong.empty() && contentAt(bytes, system)->size() < kSystemDate + 4) {
    wrong = "damaged: |SYSTEM is too short";
  }
  if (!wrong.empty()) {
    return wrong;
  }
  // Everything behind the table moves; unsigned numbers go round where it gets smaller.
  const auto growth = static_cast<std::uint32_t>(table.size() - old_size);
  put(help, system + kFileHeader + kSystemDate, 0);
  for (const auto& [name, place] : *directory) {
    if (place.offset > map.offset) {
      put(help, place.entry, place.offset + growth);
    }
  }
  if (*root > map.offset) {
    put(help, 4, *root + growth);
  }
  put(help, 12, static_cast<std::uint32_t>(help.size()) + growth);
  put(help, map.offset, static_cast<std::uint32_t>(table.size() + kFileHeader));
  put(help, map.offset + 4, static_cast<std::uint32_t>(table.size()));
  help.replace(map.offset + kFileHeader, old_size, table);
  return {};
}

}  // namespace kesto
