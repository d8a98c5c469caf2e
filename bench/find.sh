# bench: find - the searches over a tree of sources, against grep -rw and against merely reading it
# windows: yes
# usage: bash bench/find.sh BINDIR [TREE [NAME]]
set -u
bin=${1:?usage: bash bench/find.sh BINDIR [TREE [NAME]]}
tree=${2:-}
name=${3:-Run}
here=$(cd "$(dirname "$(readlink -f "$0")")/.." && pwd)
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

# The median of several runs of a command, its output kept, in milliseconds. All read
# from the cache: the first run is not counted.
time_of() {
  local begun ended
  "$@" >"$work/out"
  for _ in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21; do
    begun=$(date +%s%N)
    "$@" >"$work/out"
    ended=$(date +%s%N)
    echo $((ended - begun))
  done | sort -n | sed -n 11p | awk '{ print $1 / 1e6 }'
}
grep_words() { grep -rwn --include='*.cpp' --include='*.cc' --include='*.c' -e "$name" "$tree"; }

{
  echo "native-grep $(time_of grep_words)"
  echo "grep-lines $(wc -l <"$work/out")"
  for kind in cross method function; do
    echo "native-$kind $(time_of "$bin/find_bench" $kind "$name" "$tree")"
    echo "native-$kind-hits $(wc -l <"$work/out")"
  done
} >"$work/times"

program=$bin/../../mingw32/bin/find_bench_win.exe
if [ -e "$program" ]; then
  KESTO_TIMEOUT=600 "$here/kesto" exec "$program" "$name" "Z:$(realpath "$tree" | tr / '\\')" |
    tr -d '\r' >>"$work/times" || exit 1
fi

# Ratios only: the times themselves say more about the machine.
awk '
  { t[$1] = $2 }
  END {
    n = split("cross method function", kinds)
    for (i = 1; i <= n; ++i) {
      printf "%s: %d hits, %.2f times grep -rw (%d lines)\n", kinds[i],
        t["native-" kinds[i] "-hits"], t["native-" kinds[i]] / t["native-grep"], t["grep-lines"]
    }
    if (t["read"] > 0) {
      printf "Windows, cross:  %d hits, %.2f times reading the files\n", t["hits"], t["cross"] / t["read"]
      printf "Windows, method: %.2f times reading the files\n", t["method"] / t["read"]
      printf "Windows, memory: %d KB before a hundred searches, %d KB after\n",
        t["memory-before"], t["memory-after"]
    }
  }' "$work/times"
