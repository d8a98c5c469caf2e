# bench: tasks - load, sort and report of 10,000 tasks, against merely reading their file
# usage: bash bench/tasks.sh BINDIR
set -u
bin=${1:?usage: bash bench/tasks.sh BINDIR}
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

"$bin/tasks_bench" "$work" >"$work/times" || exit 1

# Ratios only: the times themselves say more about the machine.
awk '
  { t[$1] = $2 }
  END {
    printf "%d tasks, a file of %d bytes\n", t["tasks"], t["bytes"]
    printf "loading, sorting and the report: %.1f times reading the file\n", t["work"] / t["read"]
    printf "  loading %.1f, sorting %.1f, the report %.1f\n", t["load"] / t["read"],
      t["sort"] / t["read"], t["report"] / t["read"]
    printf "sorting, against tasks in any order: sorted %.2f, turned round %.2f, all equal %.2f, up and down %.2f, saw %.2f\n",
      t["sort-sorted"] / t["sort-any"], t["sort-turned"] / t["sort-any"], t["sort-equal"] / t["sort-any"],
      t["sort-hill"] / t["sort-any"], t["sort-saw"] / t["sort-any"]
  }' "$work/times"
