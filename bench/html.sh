# bench: html - the documentation of a tree of sources against doxygen, and against twice the tree
# usage: bash bench/html.sh BINDIR [TREE]
set -u
bin=${1:?usage: bash bench/html.sh BINDIR [TREE]}
source=${2:-/usr/src/googletest}
. "$(dirname "$(readlink -f "$0")")/turns.sh"
# In memory where that is at hand: thousands of small files on a disk would measure the
# disk. TMPDIR names another place.
fast=${TMPDIR:-/dev/shm}
[ -w "$fast" ] || fast=/tmp
work=$(mktemp -d -p "$fast") || exit 1
trap 'rm -rf "$work"' EXIT
smallest=5000000
command -v doxygen >/dev/null || {
  echo "html: no doxygen to compare with (package doxygen)" >&2
  exit 1
}
[ -d "$source" ] || {
  echo "html: no $source (package googletest); name a tree of sources" >&2
  exit 1
}

sources() { find "$1" -type f \( -name '*.cpp' -o -name '*.cc' -o -name '*.c' -o -name '*.h' \) -print0; }
size_of() { sources "$1" | xargs -0 cat | wc -c; }

# Copies of the tree until it is worth measuring, each with names of its own, so that
# twice the copies are twice the names.
copies=$((smallest / $(size_of "$source") + 1))
copy() { # FROM-NUMBER TO-NUMBER DIRECTORY
  local number
  for number in $(seq "$1" "$2"); do
    mkdir -p "$3/$number"
    cp -r "$source/." "$3/$number"
    sources "$3/$number" | xargs -0 sed -E -i "s/\<[A-Za-z_]*[A-Z][A-Za-z0-9_]*\>/&_$number/g"
  done
}
copy 1 "$copies" "$work/once"
mkdir "$work/twice"
cp -r "$work/once/." "$work/twice"
copy $((copies + 1)) $((2 * copies)) "$work/twice"

# The rounds after the first read from the cache and write over what is there.
once() { "$bin/kesto-cli" html "$work/once" --filters '*.cpp;*.cc;*.c;*.h' --json; }
twice() { "$bin/kesto-cli" html "$work/twice" --filters '*.cpp;*.cc;*.c;*.h' --json; }
plain_doxygen() {
  doxygen - <<SETTINGS >/dev/null 2>&1
INPUT = "$work/once"
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

mkdir "$work/out"
{
  # Doxygen takes long enough for a few rounds to do.
  turns 1 "$work/out" once plain_doxygen && turns 10 "$work/out" once twice &&
    turns 1 "$work/out" once plain_doxygen
} >"$work/all" || exit 1
best <"$work/all" >"$work/times"
number() { sed 's/.*"'"$1"'":\([0-9]*\).*/\1/' "$work/out/$2"; }
files=$(number files once)
pages=$(number pages once)
pages_twice=$(number pages twice)
echo "$(size_of "$work/once") bytes in $files files, $pages pages"
awk -v pages="$pages" -v pages_twice="$pages_twice" \
  -v made="$(find "$work/doxygen" -name '*.html' | wc -l)" '
  { t[$1] = $2 }
  END {
    printf "doxygen takes %.0f times as long (%d pages)\n", t["plain_doxygen"] / t["once"], made
    printf "twice the tree, %.2f times the pages: %.2f times as long\n", pages_twice / pages, t["twice"] / t["once"]
  }' "$work/times"
