#include "addon/foundation/binary_form.h"

#include <memory>

namespace kesto {

namespace {

struct CloseFile {
  void operator()(FILE* file) const { fclose(file); }
};
using File = std::unique_ptr<FILE, CloseFile>;

// With a buffer that suits whole files.
File openFile(const char* path, const char* mode) {
  constexpr std::size_t kBuffer = std::size_t{64} * 1024;
  File file(fopen(path, mode));
  if (file != nullptr) {
    setvbuf(file.get(), nullptr, _IOFBF, kBuffer);
  }
  return file;
}

int writeBytes(FILE* file, std::uint32_t value, std::size_t size) {
  unsigned char bytes[4];
  for (std::size_t i = 0; i < size; ++i) {
    bytes[i] = static_cast<unsigned char>(value >> (8 * i));
  }
  return fwrite(bytes, size, 1, file) == 1;
}

int readBytes(FILE* file, std::uint32_t* value, std::size_t size) {
  unsigned char bytes[4];
  if (fread(bytes, 1, size, file) != size) {
    return 0;
  }
  *value = 0;
  for (std::size_t i = 0; i < size; ++i) {
    *value |= static_cast<std::uint32_t>(bytes[i]) << (8 * i);
  }
  return 1;
}

}  // namespace

bool writeRecordFile(const char* path, const Basic& record) {
  File file = openFile(path, "wb");
  if (file == nullptr) {
    return false;
  }
  // Of what is written as it closes, a run-time library may hide that it was not.
  const bool written = record.fWrite(file.get()) != 0 && fflush(file.get()) == 0;
  return fclose(file.release()) == 0 && written;
}

bool readRecordFile(const char* path, Basic& record) {
  const File file = openFile(path, "rb");
  return file != nullptr && record.fRead(file.get()) != 0;
}

int writeUint16(FILE* file, std::uint16_t value) {
  return writeBytes(file, value, 2);
}

int readUint16(FILE* file, std::uint16_t* value) {
  std::uint32_t wide = 0;
  if (!readBytes(file, &wide, 2)) {
    return 0;
  }
  *value = static_cast<std::uint16_t>(wide);
  return 1;
}

int writeInt32(FILE* file, std::int32_t value) {
  return writeBytes(file, static_cast<std::uint32_t>(value), 4);
}

int readInt32(FILE* file, std::int32_t* value) {
  std::uint32_t wide = 0;
  if (!readBytes(file, &wide, 4)) {
    return 0;
  }
  *value = static_cast<std::int32_t>(wide);
  return 1;
}

long remainingBytes(FILE* file) {
  const long here = ftell(file);
  if (here < 0 || fseek(file, 0, SEEK_END) != 0) {
    return -1;
  }
  const long end = ftell(file);
  if (fseek(file, here, SEEK_SET) != 0 || end < here) {
    return -1;
  }
  return end - here;
}

}  // namespace kesto
