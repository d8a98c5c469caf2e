# bench: scan - the functions and includes scans of a 100,000-line source, against copying it and ctags
# usage: bash bench/scan.sh BINDIR
set -u
bin=${1:?usage: bash bench/scan.sh BINDIR}
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

"$bin/scan_bench" MAKE "$work/source.cpp" || exit 1
"$bin/scan_bench" "$work/source.cpp" >"$work/times" || exit 1
: >"$work/empty.cpp"

# The median of several runs of ctags on a file, in milliseconds.
ctags_time() {
  local i begun ended
  for i in 1 2 3 4 5 6 7 8 9 10 11; do
    begun=$(date +%s%N)
    ctags -f - --c++-kinds=f "$1" >/dev/null || return 1
    ended=$(date +%s%N)
    echo $((ended - begun))
  done | sort -n | sed -n 6p | awk '{ print $1 / 1e6 }'
}

if command -v ctags >/dev/null; then
  full=$(ctags_time "$work/source.cpp")
  start=$(ctags_time "$work/empty.cpp")
  echo "ctags $(awk -v a="$full" -v b="$start" 'BEGIN { print a - b }')" >>"$work/times"
else
  echo "scan: ctags is not installed; going without it" >&2
fi

# Ratios only: the times themselves say more about the machine.
awk '
  { t[$1] = $2 }
  END {
    printf "functions scan: %.2f times one copy of the bytes\n", t["functions"] / t["copy"]
    printf "functions scan: %.2f times a copy line by line\n", t["functions"] / t["copy-lines"]
    printf "includes scan:  %.2f times one copy of the bytes\n", t["includes"] / t["copy"]
    printf "includes scan:  %.2f times a copy line by line\n", t["includes"] / t["copy-lines"]
    if (t["ctags"] > 0) {
      printf "ctags (without its start): %.0f times the functions scan\n", t["ctags"] / t["functions"]
    }
  }' "$work/times"
