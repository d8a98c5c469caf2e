# bench: groupware - filling the send list and the get list of two trees of 10,000 files under Wine, against walking them and asking each file's time
# windows: yes
# usage: bash bench/groupware.sh BINDIR [FILES]
set -u
bin=${1:?usage: bash bench/groupware.sh BINDIR [FILES]}
files=${2:-10000}
here=$(cd "$(dirname "$(readlink -f "$0")")/.." && pwd)
. "$here/bench/turns.sh"
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

# Folders of a hundred files; of ten, the server misses one, has one that is younger, and
# one that somebody else may take.
tree() { # NAME FILES
  mkdir -p "$work/$1/project" "$work/$1/server"
  (cd "$work/$1/project" && seq "$2" | awk '{ d = int(($1 - 1) / 100); print "part" d "/source_file_" $1 ".cpp" }' >../names &&
    cut -d/ -f1 ../names | sort -u | xargs mkdir -p && xargs touch -d '2026-01-02' <../names &&
    cp -rp . ../server)
  cd "$work/$1/server" || exit 1
  awk 'NR % 10 == 1' ../names | xargs rm
  awk 'NR % 10 == 2' ../names | xargs touch
  awk 'NR % 10 > 2 || NR % 10 == 0' ../names | xargs chmod a-w
  cd "$here" || exit 1
}
windows_path() { printf 'Z:%s' "$(realpath "$1" | tr / '\\')"; }
tree once "$files"
tree twice $((2 * files))
for turn in 1 2; do
  KESTO_TIMEOUT=600 "$here/kesto" exec "$bin/../../mingw32/bin/groupware_bench_win.exe" \
    "$(windows_path "$work/once")" "$(windows_path "$work/twice")" | tr -d '\r' || exit 1
done >"$work/all"
best <"$work/all" >"$work/times"

# Ratios only: the times themselves say more about the machine.
awk '
  { t[$1] = $2 }
  END {
    for (i = 0; i < 2; ++i) {
      printf "%d rows in both lists: %.2f times walking the trees and asking each time\n",
        t["rows-" i], t["lists-" i] / t["plain-" i]
    }
    printf "twice the files: %.2f times the time, walking them %.2f times\n",
      t["lists-1"] / t["lists-0"], t["plain-1"] / t["plain-0"]
  }' "$work/times"
