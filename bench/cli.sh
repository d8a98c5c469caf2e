# bench: cli - kesto-cli as whole processes against grep, ripgrep, ctags and doxygen, on googletest ten times over
# usage: bash bench/cli.sh BINDIR [NAME]
set -u
bin=${1:?usage: bash bench/cli.sh BINDIR [NAME]}
name=${2:-Run}
. "$(dirname "$(readlink -f "$0")")/turns.sh"
cli=$bin/kesto-cli
source=/usr/src/googletest
[ -d "$source" ] || {
  echo "cli: no $source (package googletest)" >&2
  exit 1
}
# In memory where that is at hand: thousands of small files on a disk would measure the disk.
fast=${TMPDIR:-/dev/shm}
[ -w "$fast" ] || fast=/tmp
work=$(mktemp -d -p "$fast") || exit 1
trap 'rm -rf "$work"' EXIT
tree=$work/tree
mkdir -p "$work/out" "$tree"
for copy in 1 2 3 4 5 6 7 8 9 10; do
  cp -r "$source" "$tree/$copy"
done
masks=('*.cpp' '*.cc' '*.c')
mapfile -t files < <(find "$tree" -type f \( -name '*.cpp' -o -name '*.cc' -o -name '*.c' -o -name '*.h' \))
echo "${#files[@]} files, $(cat "${files[@]}" | wc -c) bytes, searching $name"

xref() { "$cli" xref "$name" --project "$tree"; }
grep_words() { grep -rnw "${masks[@]/#/--include=}" -e "$name" "$tree"; }
rg_words() { rg -nw -j1 "${masks[@]/#/-g}" -e "$name" "$tree"; }
functions() { "$cli" functions "${files[@]}"; }
ctags_functions() { ctags -f - --languages=C,C++ --kinds-C=f --kinds-C++=f "${files[@]}"; }
html() { "$cli" html "$tree" --json --filters '*.cpp;*.cc;*.c;*.h'; }
# What is on the pages alone, without pictures, indices and listings.
plain_doxygen() {
  doxygen - <<SETTINGS >/dev/null 2>&1
INPUT = "$tree"
OUTPUT_DIRECTORY = "$work/doxygen"
RECURSIVE = YES
FILE_PATTERNS = *.cpp *.cc *.c *.h
GENERATE_LATEX = NO
HAVE_DOT = NO
CLASS_DIAGRAMS = NO
SOURCE_BROWSER = NO
VERBATIM_HEADERS = NO
SEARCHENGINE = NO
QUIET = YES
WARNINGS = NO
SETTINGS
}

searches=(xref grep_words)
! command -v rg >/dev/null || searches+=(rg_words)
{
  for turn in 1 2 3; do
    turns 10 "$work/out" "${searches[@]}" || exit 1
  done
  turns 5 "$work/out" functions ctags_functions && turns 1 "$work/out" html plain_doxygen &&
    turns 5 "$work/out" html && turns 1 "$work/out" html plain_doxygen
} >"$work/all" || exit 1
best <"$work/all" >"$work/times"
for one in "${searches[@]}" functions ctags_functions; do
  echo "$one-rows $(wc -l <"$work/out/$one")"
done >>"$work/times"

# Ratios only: the times themselves say more about the machine.
awk '
  { t[$1] = $2 }
  END {
    printf "xref: %d rows, %.2f times grep -rnw (%d rows)", t["xref-rows"], t["xref"] / t["grep_words"], t["grep_words-rows"]
    if ("rg_words" in t) printf ", %.2f times rg -nw with one thread (%d rows)", t["xref"] / t["rg_words"], t["rg_words-rows"]
    printf "\nfunctions: %d rows; ctags takes %.1f times as long (%d rows)\n", t["functions-rows"], t["ctags_functions"] / t["functions"], t["ctags_functions-rows"]
    printf "html: doxygen takes %.0f times as long\n", t["plain_doxygen"] / t["html"]
  }' "$work/times"
