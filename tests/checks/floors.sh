# An include only points down, and nothing points round in a circle.
# usage, from the repository root: bash tests/checks/floors.sh
set -u

# Each folder's floor. Files of addon/ itself are its roof; those of workbench/ itself
# say what may be asked of the Workbench's roof, which is app/. The command line is another
# roof over the add-on's core, and a reader of the Workbench's project files.
floors='
ideapi 0
addon/foundation 0
addon/ide 1
addon/mail 2
addon/navigation 3
addon/behaviours 3
addon/completion 3
addon/delivery 3
addon/tasks 3
addon/groupware 3
addon/html 3
addon/rcgen 3
addon/topbar 4
addon/pages 5
addon 6
cli/posix 6
cli 7
workbench/events 0
workbench/windows 0
workbench/project 1
workbench/editor 1
workbench/messages 2
workbench 3
workbench/make 4
workbench/services 4
workbench/script 4
workbench/reach 4
workbench/app 5
'

# Features may look at another feature only where this says so, and why.
sideways='
'

failed=0
complain() {
  printf '%s\n' "$1"
  failed=1
}

# FILE INCLUDED, a line for each include in quotes.
includes=$(grep -rHE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' addon ideapi workbench cli \
  --include='*.h' --include='*.cpp' | sed -E 's/^([^:]+):[^"]*"([^"]*)".*/\1 \2/')
[ -n "$includes" ] || complain "found no includes at all: is this the root of the repository?"

# core FOLDER LIBRARY: the sources of the library, by FOLDER/CMakeLists.txt.
core() {
  awk -v library="$2" '
    $0 ~ "^add_library\\(" library "[ )]" { inside = 1; next }
    inside && /\)/ { exit }
    inside { print $1 }' "$1/CMakeLists.txt" | sed "s|^|$1/|"
}

# Down, by the floors; addon and workbench know nothing of each other.
wrong=$(printf '%s\n' "$includes" | awk -v floors="$floors" -v sideways="$sideways" \
  -v readers="$(core workbench workbench_project)" '
  function folder(path) { sub("/[^/]*$", "", path); return path }
  BEGIN {
    count = split(readers, files, "\n")
    for (i = 1; i <= count; i++) { sub("[.]cpp$", ".h", files[i]); shared[files[i]] = 1 }
    shared["workbench/project/project_file.h"] = 1
    count = split(floors, words, /[ \n]+/)
    for (i = 1; i < count; i++) if (words[i] != "") { floor[words[i]] = words[i + 1]; i++ }
    count = split(sideways, rows, "\n")
    for (i = 1; i <= count; i++) if (split(rows[i], word, " ") >= 2) aside[word[1], word[2]] = 1
  }
  {
    from = folder($1)
    to = folder($2)
    if ($2 !~ /^(addon|ideapi|workbench|cli)\//) {
      print $1 ": includes \"" $2 "\", which is no path from the root"
    } else if (from ~ /^cli/ ? to ~ /^ideapi/ : from ~ /^workbench/ ? to ~ /^addon/ : to ~ /^workbench/) {
      print $1 ": includes \"" $2 "\" of the other program"
    } else if (from ~ /^cli/ && to ~ /^workbench/) {
      if (!($2 in shared)) print $1 ": includes \"" $2 "\", which is no part of a project file"
    } else if (from != to) {
      if (!(from in floor)) print $1 ": its folder has no floor"
      else if (!(to in floor)) print $1 ": the folder of \"" $2 "\" has no floor"
      else if (floor[to] >= floor[from] && !((from, to) in aside))
        print $1 ": includes \"" $2 "\", which is not below it"
    }
  }')
[ -z "$wrong" ] || complain "$wrong"

# No circle of folders. tsort names the folders of one that it finds.
circle=$(printf '%s\n' "$includes" | awk '
  function folder(path) { sub("/[^/]*$", "", path); return path }
  folder($1) != folder($2) { print folder($1), folder($2) }' | sort -u | tsort 2>&1 >/dev/null)
[ -z "$circle" ] || complain "folders include each other in a circle:
$circle"

# The plain core gets along without Windows: its own files and whatever they include.
plain=$(core addon addon_core; core workbench workbench_core; core workbench workbench_project
  core cli cli_core)
for library in addon workbench cli; do
  printf '%s\n' "$plain" | grep -q "^$library/" || complain "found no plain core of $library"
done
while :; do
  more=$(printf '%s\n' "$includes" | awk -v plain="$plain" '
    BEGIN { count = split(plain, files, "\n"); for (i = 1; i <= count; i++) known[files[i]] = 1 }
    known[$1] && !known[$2] { print $2 }' | sort -u)
  [ -n "$more" ] || break
  plain="$plain
$more"
done
for file in $plain; do
  if [ ! -e "$file" ]; then
    complain "$file belongs to the plain core and is not there"
  elif grep -qiE '#[[:space:]]*include[[:space:]]*<(windows|winuser|ole2|objbase|unknwn|commctrl|commdlg|shellapi)\.h>' "$file"; then
    complain "$file: belongs to the plain core and includes a Windows header"
  fi
done
exit "$failed"
