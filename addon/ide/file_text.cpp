#include "addon/ide/file_text.h"

#include <algorithm>
#include <new>

#include "addon/ide/access.h"

namespace kesto {
namespace {

constexpr long kChunk = 32000;

struct StreamRead {
  FileText text;
  bool complete = true;  // false when a read reported a negative count
};

StreamRead readOpenStream(IFileStream& stream) {
  const long length = std::max(0L, stream.Seek(0, kStreamFromEnd));
  stream.Seek(0, kStreamFromStart);
  std::unique_ptr<char[]> buffer(new (std::nothrow) char[static_cast<size_t>(length) + 1]);
  if (buffer == nullptr) {
    return {};
  }
  long done = 0;
  long last = 0;
  while (done < length) {
    last = stream.Read(buffer.get() + done, std::min(kChunk, length - done));
    if (last <= 0) {
      break;
    }
    done += last;
  }
  buffer[static_cast<size_t>(done)] = '\0';
  return {FileText(std::move(buffer), done), last >= 0};
}

}  // namespace

FileText readFileText(const char* file) {
  const ComPtr<IIde> ide = acquireIde();
  const ComPtr<IFileStream> stream(ide ? ide->CreateFileStream() : nullptr);
  const ComPtr<IIdeString> name = makeIdeString(file);
  if (!stream || !name) {
    return {};
  }
  bool opened = stream->Open(name.get(), kStreamBufferOrFile) != 0;
  StreamRead read;
  read.complete = opened;
  if (opened) {
    read = readOpenStream(*stream.get());
  }
  if (!read.complete) {
    // The second try looks where the first did not: on the disk when no editor
    // holds the file, else in the editor.
    const int mode = stream->GetState() == 0 ? kStreamFile : kStreamBuffer;
    opened = stream->Open(name.get(), mode) != 0;
    // The first read's buffer goes with its owner, which the analyzer does not see.
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    read = opened ? readOpenStream(*stream.get()) : StreamRead{};
  }
  stream->Close();
  return std::move(read.text);
}

}  // namespace kesto
