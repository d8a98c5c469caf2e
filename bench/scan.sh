# bench: scan - the functions and includes scans of a 100,000-line source, against copying it and ctags
# usage: bash bench/scan.sh BINDIR
set -u
bin=${1:?usage: bash bench/scan.sh BINDIR}
. "$(dirname "$(readlink -f "$0")")/turns.sh"
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

"$bin/scan_bench" MAKE "$work/source.cpp" || exit 1
: >"$work/empty.cpp"
ctags_full() { ctags -f - --c++-kinds=f "$work/source.cpp"; }
ctags_start() { ctags -f - --c++-kinds=f "$work/empty.cpp"; }

ctags=
if command -v ctags >/dev/null; then
  ctags="ctags_full ctags_start"
else
  echo "scan: ctags is not installed; going without it" >&2
fi
for turn in 1 2 3; do
  "$bin/scan_bench" "$work/source.cpp" || exit 1
  [ -z "$ctags" ] || turns 5 "$work" $ctags || exit 1
done >"$work/all"
best <"$work/all" >"$work/times"

# Ratios only: the times themselves say more about the machine.
awk '
  { t[$1] = $2 }
  END {
    printf "functions scan: %.2f times one copy of the bytes\n", t["functions"] / t["copy"]
    printf "functions scan: %.2f times a copy line by line\n", t["functions"] / t["copy-lines"]
    printf "includes scan:  %.2f times one copy of the bytes\n", t["includes"] / t["copy"]
    printf "includes scan:  %.2f times a copy line by line\n", t["includes"] / t["copy-lines"]
    if (t["ctags_full"] > 0) {
      printf "ctags (without its start): %.0f times the functions scan\n",
        (t["ctags_full"] - t["ctags_start"]) / t["functions"]
    }
  }' "$work/times"
