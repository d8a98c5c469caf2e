# bench: typing - process time of a key in a source of a hundred thousand lines, against an edit control of the system
# windows: yes
# usage: bash bench/typing.sh BINDIR
set -u
bin=${1:?usage: bash bench/typing.sh BINDIR}
here=$(cd "$(dirname "$(readlink -f "$0")")/.." && pwd)
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

programs=$bin/../../mingw32/bin
KESTO_TIMEOUT=900 "$here/kesto" exec "$programs/typing_bench_win.exe" "Z:$(echo "$work" | tr / '\\')" \
  "Z:$(realpath "$programs/Kestoaob.dll" | tr / '\\')" | tr -d '\r' >"$work/times"
[ -s "$work/times" ] || exit 1
awk '{ printf "%-34s %6.2f ms a key, the edit control %6.2f ms: %.2f times\n", $1 ":", $2, $3, $2 / $3 }' "$work/times"
