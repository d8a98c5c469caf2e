# bench: completion - 100,000 keywords in 20 files, against merely reading them; a key, against look
# usage: bash bench/completion.sh BINDIR
set -u
bin=${1:?usage: bash bench/completion.sh BINDIR}
. "$(dirname "$(readlink -f "$0")")/turns.sh"
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

"$bin/completion_bench" MAKE "$work" || exit 1
look_words() { while read -r prefix; do LC_ALL=C look "$prefix" "$work/sorted"; done <"$work/prefixes"; }

look=
if command -v look >/dev/null; then
  look=look_words
  # Both find the same words.
  ours=$("$bin/completion_bench" COUNT "$work") || exit 1
  theirs=$(while read -r prefix; do LC_ALL=C look "$prefix" "$work/sorted" | wc -l; done <"$work/prefixes")
  [ "$ours" = "$theirs" ] || { echo "completion: look finds other words" >&2; exit 1; }
else
  echo "completion: look is not installed; going without it" >&2
fi
for turn in 1 2 3; do
  "$bin/completion_bench" "$work" || exit 1
  [ -z "$look" ] || turns 1 "$work" $look || exit 1
done >"$work/all"
best <"$work/all" >"$work/times"

# Ratios only, but for the key: the times themselves say more about the machine.
awk '
  { t[$1] = $2 }
  END {
    printf "100000 keywords in 20 files of %d bytes in all\n", t["bytes"]
    printf "loading: %.2f times reading their lines, %.2f times reading their bytes at once\n",
      t["load"] / t["read-lines"], t["load"] / t["read"]
    frame = 1000 / 60
    printf "a key:   a frame holds %.0f of them\n", frame / (t["strikes"] / t["prefixes"])
    if (t["look_words"] > 0) {
      printf "a key:   look, its start included, takes %.0f times as long\n", t["look_words"] / t["strikes"]
    }
  }' "$work/times"
