# The add-on runs on an i586: its DLL holds no instruction that came later, in the parts of
# the compiler's libraries neither, and is as small and bare as it is handed out, with its
# symbols beside it.
# usage, from the repository root: bash tests/checks/instructions.sh [DLL]
set -u -o pipefail
dll=${1:-build/mingw32/bin/Kestoaob.dll}
symbols=${dll%.dll}.dbg
known=tests/checks/i586_instructions.txt
largest=400000

wrong=$(
  size=$(stat -c %s "$dll") || exit 1
  [ "$size" -lt "$largest" ] || echo "has $size bytes, $largest are too many"
  sections=$(i686-w64-mingw32-objdump -h "$dll")
  ! grep -q '\.debug_' <<<"$sections" || echo "holds the symbols of a debugger"
  i686-w64-mingw32-nm "$dll" 2>&1 | grep -q 'no symbols' || echo "is not stripped"
  i686-w64-mingw32-objdump -s -j .gnu_debuglink "$dll" 2>/dev/null | grep -q 'Kestoaob\.dbg' ||
    echo "does not name its symbols"
  i686-w64-mingw32-objdump -h "$symbols" | grep -q '\.debug_line' || echo "has no symbols beside it"
  # It holds a checksum of them.
  TZ=UTC i686-w64-mingw32-objdump -p "$symbols" | grep -q '^Time/Date.* 1970$' || echo "tells by its symbols when it was built"

  # Behind the code the linker puts the lists of what to call at start and end.
  names=$(i686-w64-mingw32-nm -n "$symbols" | awk '$2 ~ /[tT]/ { print $1, $3 }')
  end=$(awk '$2 == "___CTOR_LIST__" { print $1 }' <<<"$names")
  [ -n "$end" ] || { echo "has code whose end cannot be told"; exit; }
  read -r size begin < <(awk '$2 == ".text" { print $3, $4 }' <<<"$sections")
  lists=$((0x$begin + 0x$size - 0x$end))
  [ "$lists" -ge 16 ] && [ "$lists" -lt 256 ] || echo "has $lists bytes behind its code"

  # A "nop" that takes an operand is a later one.
  i686-w64-mingw32-objdump -d -M intel --no-show-raw-insn -j .text --stop-address="0x$end" "$dll" |
    awk -v known="$known" -v names=<(echo "$names") '
      BEGIN {
        while ((getline line < known) > 0) {
          if (line ~ /^#/) continue
          count = split(line, words, " ")
          for (i = 1; i <= count; i++) old[words[i]] = 1
        }
        while ((getline line < names) > 0) {
          split(line, words, " ")
          name[words[1]] = words[2]
        }
        prefix["lock"] = prefix["rep"] = prefix["repz"] = prefix["repnz"] = prefix["cs"] = prefix["ds"] = 1
      }
      !/^ *[0-9a-f]+:\t/ { next }
      {
        address = $1
        sub(":", "", address)
        if (address in name) function_name = name[address]
        field = 2
        while ($field in prefix && field < NF) field++
        seen++
        if (!($field in old) || ($field == "nop" && NF > field)) {
          sub(/^[^\t]*\t/, "")
          print function_name ": " $0
        }
      }
      END { if (seen < 10000) print "holds " seen + 0 " instructions that could be read" }' ||
    echo "could not be looked through"
)
if [ -n "$wrong" ]; then
  printf '%s\n' "$wrong" | sort | uniq -c | sed "s|^ *1 ||; s|^|$dll |" | i686-w64-mingw32-c++filt
  exit 1
fi
