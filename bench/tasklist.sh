# bench: tasklist - showing 10,000 tasks in their dialog, in another order and by another state, against filling a plain list box
# windows: yes
# usage: bash bench/tasklist.sh BINDIR
set -u
bin=${1:?usage: bash bench/tasklist.sh BINDIR}
here=$(cd "$(dirname "$(readlink -f "$0")")/.." && pwd)

. "$here/bench/turns.sh"
times=$(for turn in 1 2 3; do
  "$here/kesto" exec "$bin/../../mingw32/bin/task_list_bench_win.exe" | tr -d '\r' || exit 1
done | best)
[ -n "$times" ] || exit 1
# Ratios only: the times themselves say more about the machine.
printf '%s\n' "$times" | awk '
  { t[$1] = $2 }
  END {
    printf "filling the list: %.2f times filling a plain list box\n", (t["open"] - t["bare"]) / t["plain"]
    printf "another order: %.2f times\n", t["order"] / t["plain"]
    printf "a state shown again: %.2f times\n", t["state"] / t["plain"]
    printf "another order, beside message hooks: %.2f times\n", t["hooked-order"] / t["hooked-plain"]
  }'
