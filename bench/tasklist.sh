# bench: tasklist - showing 10,000 tasks in their dialog, in another order and by another state, against filling a plain list box
# windows: yes
# usage: bash bench/tasklist.sh BINDIR
set -u
bin=${1:?usage: bash bench/tasklist.sh BINDIR}
here=$(cd "$(dirname "$(readlink -f "$0")")/.." && pwd)

times=$("$here/kesto" exec "$bin/../../mingw32/bin/task_list_bench_win.exe" | tr -d '\r')
[ -n "$times" ] || exit 1
printf '%s\n' "$times" | awk '
  $1 == "plain" { plain = $2; next }
  { printf "%-6s %7.1f ms, the plain list box %7.1f ms: %.2f times\n", $1 ":", $2, plain, $2 / plain }'
