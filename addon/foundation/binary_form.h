// The numbers of the binary record form: little-endian, on a stream opened in
// binary mode; and files of one record. The ints return 1 on success, 0 on failure
// (the output is untouched).
#pragma once

#include <cstdint>
#include <cstdio>

#include "addon/foundation/basic.h"

namespace kesto {

// Creates or overwrites the file with the record's file form, and nothing else. False when
// it cannot be created or written whole.
bool writeRecordFile(const char* path, const Basic& record);
// False when it cannot be opened or the record says so.
bool readRecordFile(const char* path, Basic& record);

int writeUint16(FILE* file, std::uint16_t value);
int readUint16(FILE* file, std::uint16_t* value);
int writeInt32(FILE* file, std::int32_t value);
int readInt32(FILE* file, std::int32_t* value);

// Bytes between the stream's position and its end; -1 when it cannot be told.
long remainingBytes(FILE* file);

}  // namespace kesto
