# bench: find - the searches over a tree of sources, against grep -rnw and against a plain loop that reads it
# windows: yes
# usage: bash bench/find.sh BINDIR [TREE [NAME]]
set -u
bin=${1:?usage: bash bench/find.sh BINDIR [TREE [NAME]]}
tree=${2:-}
name=${3:-Run}
here=$(cd "$(dirname "$(readlink -f "$0")")/.." && pwd)
. "$here/bench/turns.sh"
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

# Without a tree: a common one, as often as it takes to be worth measuring.
if [ -z "$tree" ]; then
  [ -d /usr/src/googletest ] || {
    echo "find: no /usr/src/googletest (package googletest); name a tree of sources" >&2
    exit 1
  }
  tree=$work/tree
  for copy in 1 2 3 4; do
    mkdir -p "$tree/$copy"
    cp -r /usr/src/googletest/. "$tree/$copy"
  done
fi
sources() { find "$tree" -type f \( -name '*.cpp' -o -name '*.cc' -o -name '*.c' \) -print0; }
bytes=$(sources | xargs -0 cat | wc -c)
echo "$(sources | tr -dc '\0' | wc -c) sources, $bytes bytes, searching $name"

grep_words() { grep -rnw --include='*.cpp' --include='*.cc' --include='*.c' -e "$name" "$tree"; }
# A name that is nowhere is no error.
native_cross() { "$bin/kesto-cli" xref "$name" --project "$tree" || [ $? = 1 ]; }
native_method() { "$bin/kesto-cli" find method "$name" --project "$tree" || [ $? = 1 ]; }
native_function() { "$bin/kesto-cli" find function "$name" --project "$tree" || [ $? = 1 ]; }
program=$bin/../../mingw32/bin/find_bench_win.exe
windows() {
  KESTO_TIMEOUT=600 "$here/kesto" exec "$program" "$name" "Z:$(realpath "$tree" | tr / '\\')" |
    tr -d '\r'
}

# Whole processes on this system; under Wine one process that searches again and again.
# These two take turns as well.
for turn in 1 2 3; do
  turns 10 "$work" grep_words native_cross native_method native_function || exit 1
  [ ! -e "$program" ] || windows || exit 1
done >"$work/all"
for one in grep_words native_cross native_method native_function; do
  echo "$one-hits $(wc -l <"$work/$one")"
done >>"$work/all"
best <"$work/all" >"$work/times"

# Ratios only: the times themselves say more about the machine.
awk '
  { t[$1] = $2 }
  END {
    n = split("cross method function", kinds)
    for (i = 1; i <= n; ++i) {
      one = "native_" kinds[i]
      printf "%s: %d hits, %.2f times grep -rnw (%d lines)\n", kinds[i], t[one "-hits"],
        t[one] / t["grep_words"], t["grep_words-hits"]
    }
    if (t["plain"] > 0) {
      printf "Windows, cross:  %d hits, %.2f times a plain loop, %.1f times grep -rnw\n", t["hits"],
        t["cross"] / t["plain"], t["cross"] / t["grep_words"]
      printf "Windows, method: %.2f times a plain loop\n", t["method"] / t["plain"]
      printf "Windows, plain loop: %.1f times grep -rnw\n", t["plain"] / t["grep_words"]
      printf "Windows, memory: %d KB before a hundred searches, %d KB after\n",
        t["memory-before"], t["memory-after"]
    }
  }' "$work/times"
