#include "addon/delivery/delivery_list.h"

#include <cstring>
#include <memory>

#include "addon/foundation/path.h"

namespace kesto {
namespace {

// So much at a time of each of the two files.
constexpr std::size_t kPiece = 65536;

// Pieces in words: the runtime of some systems compares byte by byte.
using Word = std::uint32_t;
constexpr std::size_t kWords = kPiece / sizeof(Word);

bool same(const Word* left, const Word* right, std::size_t size) {
  constexpr std::size_t kStride = 8;
  std::size_t at = 0;
  for (; (at + kStride) * sizeof(Word) <= size; at += kStride) {
    Word differing = 0;
    for (std::size_t i = at; i < at + kStride; ++i) {
      differing |= left[i] ^ right[i];
    }
    if (differing != 0) {
      return false;
    }
  }
  return memcmp(left + at, right + at, size - at * sizeof(Word)) == 0;
}

class Comparison {
 public:
  Comparison(CopyFiles& files, CompareWatch& watch)
      : files_(files),
        watch_(watch),
        left_(std::make_unique<Word[]>(kWords)),
        right_(std::make_unique<Word[]>(kWords)) {}

  bool needsDelivery(const char* source, const char* delivered) {
    const auto size = files_.size(source);
    if (!size) {
      return false;
    }
    if (files_.size(delivered) != size) {
      return true;
    }
    const std::unique_ptr<CopySource> from = files_.open(source);
    const std::unique_ptr<CopySource> to = from ? files_.open(delivered) : nullptr;
    return from != nullptr && (to == nullptr || differ(*from, *to));
  }
  bool ended() const { return ended_; }

 private:
  // What cannot be read differs: the copying will say why.
  bool differ(CopySource& from, CopySource& to) {
    while (goOn()) {
      const long size = readWhole(from, left_.get());
      if (size < 0 || readWhole(to, right_.get()) != size ||
          !same(left_.get(), right_.get(), static_cast<std::size_t>(size))) {
        return true;
      }
      if (size < static_cast<long>(kPiece)) {
        return false;
      }
    }
    return false;
  }
  // A piece may come in smaller ones, of both files differently.
  static long readWhole(CopySource& source, Word* words) {
    char* piece = reinterpret_cast<char*>(words);
    std::size_t size = 0;
    while (size < kPiece) {
      const long more = source.read(piece + size, kPiece - size);
      if (more <= 0) {
        return more < 0 ? more : static_cast<long>(size);
      }
      size += static_cast<std::size_t>(more);
    }
    return static_cast<long>(size);
  }
  bool goOn() {
    ended_ = ended_ || !watch_.goOn();
    return !ended_;
  }

  CopyFiles& files_;
  CompareWatch& watch_;
  std::unique_ptr<Word[]> left_;
  std::unique_ptr<Word[]> right_;
  bool ended_ = false;
};

}  // namespace

std::string deliveredPath(const OneDelRep& group, const String& source) {
  std::string path(group.directory.view());
  path += '\\';
  path += fileNamePart(source.view());
  return path;
}

const OneDelRep* groupWithoutDirectory(const Tableau<OneDelRep>& groups, CopyFiles& files) {
  for (int i = 0; i < groups.count(); ++i) {
    if (!files.exists(groups[i]->directory)) {
      return groups[i];
    }
  }
  return nullptr;
}

bool listDeliveries(const std::vector<DeliveryNode>& nodes, const Tableau<OneDelRep>& groups,
                    CopyFiles& files, CompareWatch& watch, Tableau<Livrage>& deliveries) {
  Comparison comparison(files, watch);
  for (const DeliveryNode& node : nodes) {
    const OneDelRep* group = groupOfType(groups, node.type);
    if (group == nullptr || group->active == 0) {
      continue;
    }
    auto delivery = std::make_unique<Livrage>(node.file, *group);
    if (comparison.needsDelivery(delivery->source,
                                 deliveredPath(*group, delivery->source).c_str())) {
      deliveries.append(delivery.release());
    }
    if (comparison.ended()) {
      return false;
    }
  }
  return true;
}

}  // namespace kesto
