# bench: rcgen - classes for 240 resource scripts, against merely reading them and writing the same files
# usage: bash bench/rcgen.sh BINDIR
set -u
bin=${1:?usage: bash bench/rcgen.sh BINDIR}
# In memory where that is at hand: the files are flushed to their disk, which would be
# what is measured. TMPDIR names another place.
fast=${TMPDIR:-/dev/shm}
[ -w "$fast" ] || fast=/tmp
work=$(mktemp -d -p "$fast") || exit 1
trap 'rm -rf "$work"' EXIT

"$bin/rcgen_bench" "$work" >"$work/times" || exit 1

# Ratios only: the times themselves say more about the machine.
awk '
  { t[$1] = $2 }
  END {
    printf "%d scripts of %d bytes in all, %d files of %d bytes made of them\n", t["scripts"],
      t["script-bytes"], t["outputs"], t["output-bytes"]
    printf "first run:  %.2f times reading and writing the same bytes\n", t["first"] / t["plain"]
    printf "second run: %d scripts read, %d files written, %.3f times the first\n",
      t["second-reads"], t["second-writes"], t["second"] / t["first"]
    printf "stamping:   %d version files, %.2f times reading and writing them\n", t["stamped"],
      t["stamp"] / t["stamp-plain"]
  }' "$work/times"
