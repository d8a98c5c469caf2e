#!/bin/sh
# Makes the library, bin/till.lib, with the cross compiler.
set -e
prefix=i686-w64-mingw32
mkdir -p bin
for source in money receipt; do
  $prefix-g++-win32 -Wall -O2 -Iinclude -c -o "bin/$source.o" "$source.cpp"
done
rm -f bin/till.lib
$prefix-ar rcs bin/till.lib bin/money.o bin/receipt.o
