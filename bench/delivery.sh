# bench: delivery - comparing and copying 500 files of 200 MB, against a plain loop that reads, or reads and writes, the same
# windows: yes
# usage: bash bench/delivery.sh BINDIR
set -u
bin=${1:?usage: bash bench/delivery.sh BINDIR}
here=$(cd "$(dirname "$(readlink -f "$0")")/.." && pwd)
program=$bin/../../mingw32/bin/delivery_bench_win.exe
# In memory where that is at hand: the disk would be what is measured. TMPDIR names another
# place.
fast=${TMPDIR:-/dev/shm}
[ -w "$fast" ] || fast=/tmp
work=$(mktemp -d -p "$fast") || exit 1
trap 'rm -rf "$work"' EXIT

mkdir "$work/from" "$work/to" "$work/plain"
# From 1 KB to 799 KB, 400 on average, of other bytes each.
head -c 204800000 /dev/urandom >"$work/bytes"
offset=0
for i in $(seq 500); do
  size=$((i * 7919 % 500 * 1638 + 819))
  [ $((offset + size)) -le 204800000 ] || size=$((204800000 - offset))
  tail -c +$((offset + 1)) "$work/bytes" | head -c "$size" >"$work/from/target$i.exe"
  offset=$((offset + size))
done
rm "$work/bytes"

windows() { printf 'Z:%s' "$(realpath "$1" | tr / '\\')"; }
KESTO_TIMEOUT=600 "$here/kesto" exec "$program" "$(windows "$work/from")" "$(windows "$work/to")" \
  "$(windows "$work/plain")" >"$work/times" || exit 1

# Ratios only: the times themselves say more about the machine.
tr -d '\r' <"$work/times" | awk '
  { t[$1] = $2 }
  END {
    printf "%d files, %d bytes\n", t["files"], t["bytes"]
    printf "comparing: %.2f times reading both sides\n", t["compare"] / t["read"]
    printf "copying:   %.2f times the plain copy, %.2f times over former copies\n",
      t["copy"] / t["plain"], t["copy-over"] / t["plain-over"]
  }'
