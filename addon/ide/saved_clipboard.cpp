#include "addon/ide/saved_clipboard.h"

#include <algorithm>
#include <cstring>

namespace kesto {
namespace {

constexpr UINT kDibV5 = 17;  // younger than the systems of our headers

// Formats of one family are made by the system, each from any other.
enum class Family { kNone, kText, kPicture, kMetafile };

Family familyOf(UINT format) {
  switch (format) {
    case CF_TEXT:
    case CF_OEMTEXT:
    case CF_UNICODETEXT:
    case CF_LOCALE:
      return Family::kText;
    case CF_BITMAP:
    case CF_DIB:
    case CF_PALETTE:
    case kDibV5:
      return Family::kPicture;
    case CF_METAFILEPICT:
    case CF_ENHMETAFILE:
      return Family::kMetafile;
    default:
      return Family::kNone;
  }
}

enum class Kind { kMemory, kBitmap, kPalette, kMetafilePicture, kEnhancedMetafile, kOwners };

Kind kindOf(UINT format) {
  switch (format) {
    case CF_BITMAP:
    case CF_DSPBITMAP:
      return Kind::kBitmap;
    case CF_PALETTE:
      return Kind::kPalette;
    case CF_METAFILEPICT:
    case CF_DSPMETAFILEPICT:
      return Kind::kMetafilePicture;
    case CF_ENHMETAFILE:
    case CF_DSPENHMETAFILE:
      return Kind::kEnhancedMetafile;
    default:
      return format == CF_OWNERDISPLAY || (format >= CF_PRIVATEFIRST && format <= CF_GDIOBJLAST)
                 ? Kind::kOwners
                 : Kind::kMemory;
  }
}

HGLOBAL copyMemory(HGLOBAL memory) {
  const void* bytes = GlobalLock(memory);
  if (bytes == nullptr) {
    return nullptr;
  }
  const SIZE_T size = GlobalSize(memory);
  // Memory of no size could not be locked.
  const HGLOBAL copy = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, size > 0 ? size : 1);
  if (void* copied = copy != nullptr ? GlobalLock(copy) : nullptr) {
    memcpy(copied, bytes, size);
    GlobalUnlock(copy);
  }
  GlobalUnlock(memory);
  return copy;
}

HPALETTE copyPalette(HPALETTE palette) {
  struct {
    LOGPALETTE head;
    PALETTEENTRY rest[255];
  } colours = {};
  colours.head.palVersion = 0x300;
  colours.head.palNumEntries =
      static_cast<WORD>(GetPaletteEntries(palette, 0, 256, colours.head.palPalEntry));
  return colours.head.palNumEntries > 0 ? CreatePalette(&colours.head) : nullptr;
}

void release(UINT format, HANDLE data) {
  switch (kindOf(format)) {
    case Kind::kMemory:
      GlobalFree(data);
      break;
    case Kind::kBitmap:
    case Kind::kPalette:
      DeleteObject(data);
      break;
    case Kind::kMetafilePicture:
      if (const auto* picture = static_cast<const METAFILEPICT*>(GlobalLock(data))) {
        DeleteMetaFile(picture->hMF);
        GlobalUnlock(data);
      }
      GlobalFree(data);
      break;
    case Kind::kEnhancedMetafile:
      DeleteEnhMetaFile(static_cast<HENHMETAFILE>(data));
      break;
    case Kind::kOwners:
      break;
  }
}

// The size and scale are memory, the metafile in it is none.
HGLOBAL copyMetafilePicture(HGLOBAL data) {
  const HGLOBAL copy = copyMemory(data);
  auto* picture = copy != nullptr ? static_cast<METAFILEPICT*>(GlobalLock(copy)) : nullptr;
  if (picture == nullptr) {
    return nullptr;
  }
  picture->hMF = CopyMetaFileA(picture->hMF, nullptr);
  const bool copied = picture->hMF != nullptr;
  GlobalUnlock(copy);
  if (!copied) {
    GlobalFree(copy);
  }
  return copied ? copy : nullptr;
}

// Null when it cannot be copied.
HANDLE copyOf(UINT format) {
  const Kind kind = kindOf(format);
  const HANDLE data = kind != Kind::kOwners ? GetClipboardData(format) : nullptr;
  if (data == nullptr) {
    return nullptr;
  }
  switch (kind) {
    case Kind::kMemory:
      return copyMemory(data);
    case Kind::kBitmap:
      return CopyImage(data, IMAGE_BITMAP, 0, 0, 0);
    case Kind::kPalette:
      return copyPalette(static_cast<HPALETTE>(data));
    case Kind::kMetafilePicture:
      return copyMetafilePicture(data);
    case Kind::kEnhancedMetafile:
      return CopyEnhMetaFileA(static_cast<HENHMETAFILE>(data), nullptr);
    case Kind::kOwners:
      break;
  }
  return nullptr;
}

}  // namespace

SavedClipboard::~SavedClipboard() {
  for (const Entry& entry : entries_) {
    release(entry.format, entry.data);
  }
}

bool SavedClipboard::madeFromAnother(UINT format) const {
  const Family family = familyOf(format);
  return family != Family::kNone &&
         std::any_of(entries_.begin(), entries_.end(),
                     [family](const Entry& entry) { return familyOf(entry.format) == family; });
}

bool SavedClipboard::take() {
  std::vector<UINT> missing;
  for (UINT format = EnumClipboardFormats(0); format != 0; format = EnumClipboardFormats(format)) {
    if (const HANDLE data = copyOf(format)) {
      entries_.push_back({format, data});
    } else {
      missing.push_back(format);
    }
  }
  return std::all_of(missing.begin(), missing.end(),
                     [this](UINT format) { return madeFromAnother(format); });
}

void SavedClipboard::putBack(Clipboard& clipboard) {
  if (!clipboard.isOpen()) {
    return;
  }
  clipboard.clear();
  for (const Entry& entry : entries_) {
    // The system owns the data once it took it.
    if (SetClipboardData(entry.format, entry.data) == nullptr) {
      release(entry.format, entry.data);
    }
  }
  entries_.clear();
}

}  // namespace kesto
