# Opens a documentation site in headless Chromium: its four frames load and each class link
# of the middle frame opens its page in the right one. Then looks up every link of every page.
# usage: bash tests/browser/open_site.sh SITE-FOLDER PROJECT-NAME
set -u
export LC_ALL=C
site=$(realpath "${1:?usage: open_site.sh SITE-FOLDER PROJECT-NAME}") || exit 1
project=${2:?usage: open_site.sh SITE-FOLDER PROJECT-NAME}
here=$(dirname "$(readlink -f "$0")")
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

url() { # a path as the address of a file
  printf 'file://%s' "$(printf '%s' "$1" | sed 's/%/%25/g; s/ /%20/g; s/#/%23/g; s/?/%3F/g')"
}

# Chromium's sandbox does not work for root. One file may look into another only by the switch.
sed "s|@SITE@|$(url "$site/Documentation $project.html" | sed 's/[&|\\]/\\&/g')|" \
  "$here/open_site.html" >"$work/open.html"
timeout 300 chromium --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
  --disable-background-networking --disable-component-update --disable-sync \
  --user-data-dir="$work/profile" --allow-file-access-from-files --virtual-time-budget=3600000 \
  --dump-dom "$(url "$work/open.html")" 2>"$work/errors" |
  sed -n '/<pre id="seen">/,/<\/pre>/p' | sed 's/<[^>]*>//g' | tee "$work/seen"

expected="frame  $project Title.html
frame  $project FileList.html
frame list $project Contents.html
frame space $project Presentation.html"
failed=0
if [ "$(head -n 4 "$work/seen")" != "$expected" ] || ! grep -qx done "$work/seen" ||
  grep -q '^wrong' "$work/seen" || ! grep -qE '^classes ([1-9][0-9]*) of \1$' "$work/seen" ||
  ! grep -qx 'texts windows-1252' "$work/seen"; then
  echo "the browser does not show the site as it should"
  tail -n 5 "$work/errors"
  failed=1
fi

# As Windows tells names apart: not by their case.
(cd "$site" && ls) | tr '[:upper:]' '[:lower:]' | sort -u >"$work/pages"
(cd "$site" && LC_ALL=C grep -haoE '(href ?|src)="[^"]*"' -- *.html) | sed 's/^[^"]*"//; s/"$//' |
  tr '[:upper:]' '[:lower:]' | sort -u >"$work/links"
[ -s "$work/links" ] || {
  echo "the site has no links at all"
  failed=1
}
dead=$(comm -13 "$work/pages" "$work/links")
if [ -n "$dead" ]; then
  echo "links that lead nowhere:"
  printf '%s\n' "$dead" | head -n 20
  failed=1
fi
echo "$(wc -l <"$work/pages") pages, $(wc -l <"$work/links") links"
exit "$failed"
