// The numbers of the binary record form: little-endian, on a stream opened in
// binary mode. All return 1 on success, 0 on failure (the output is untouched).
#pragma once

#include <cstdint>
#include <cstdio>

namespace kesto {

int writeUint16(FILE* file, std::uint16_t value);
int readUint16(FILE* file, std::uint16_t* value);
int writeInt32(FILE* file, std::int32_t value);
int readInt32(FILE* file, std::int32_t* value);

// Bytes between the stream's position and its end; -1 when it cannot be told.
long remainingBytes(FILE* file);

}  // namespace kesto
