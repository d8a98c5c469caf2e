# The rules of the house that a look at the files can tell.
# usage, from the repository root: bash tests/checks/house.sh
set -u
longest=500

wrong=$(
  # What tests and scenarios work on is text for them, not code of the house.
  find addon ideapi workbench cli tests bench fuzz \( -path tests/scenarios -o -path 'tests/*/data' \) -prune -o \
    -type f \( -name '*.h' -o -name '*.cpp' \) -print 2>/dev/null | sort |
    while read -r file; do
      lines=$(wc -l <"$file")
      [ "$lines" -le "$longest" ] || echo "$file: $lines lines, more than $longest"
      case $file in
        *.h)
          grep -q '^#pragma once' "$file" || echo "$file: has no #pragma once"
          head -n 1 "$file" | grep -q '^//' || echo "$file: does not open with a comment"
          ;;
      esac
      case $file in
        tests/*) grep -nHE '(^|[^A-Za-z_])(Sleep|SleepEx|sleep_for|usleep) *\(' "$file" |
          sed 's/$/   (a test waits for what happens, not for time)/' ;;
      esac
    done
)
[ -e addon ] || wrong="this is not the root of the repository"
if [ -n "$wrong" ]; then
  printf '%s\n' "$wrong"
  exit 1
fi
