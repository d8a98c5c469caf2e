# bench: soak - memory and handles of the Workbench from round 100 to round 1,000 of a scripted day
# windows: yes
# usage: bash bench/soak.sh BINDIR [ROUNDS]
set -u
bin=${1:?usage: bash bench/soak.sh BINDIR [ROUNDS]}/../../mingw32/bin
rounds=${2:-1000}
here=$(cd "$(dirname "$(readlink -f "$0")")/.." && pwd)
scenario=$here/tests/scenarios/soak
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

[ "$rounds" -ge 300 ] 2>/dev/null || {
  echo "soak: the first of at least 300 rounds to compare is the hundredth" >&2
  exit 1
}
windows_path() { printf 'Z:%s' "$(realpath "$1" | tr / '\\')"; }

cp -r "$scenario" "$work/soak"
# The outer rounds end with a count, the inner ones are counted.
awk -v outer=$((rounds / 100)) '/^repeat / { $2 = ++repeats == 1 ? outer : 100 } { print }' \
  "$scenario.wbs" >"$work/soak.wbs"
KESTO_TIMEOUT=60 "$here/kesto" exec reg delete \
  'HKLM\SOFTWARE\Borland\Borland C++\5.0\Ide\AddOns\Kestoaob' /f >/dev/null 2>&1
KESTO_TIMEOUT=$((rounds * 20)) "$here/kesto" exec "$bin/workbench.exe" "$(windows_path "$work/soak")" \
  --addon "$(windows_path "$bin/Kestoaob.dll")" --script "$(windows_path "$work/soak.wbs")" \
  >"$work/events" || {
  tail -n 3 "$work/events" >&2
  exit 1
}
grep '"event":"leak"' "$work/events" && exit 1
bash "$scenario.check" "$work" "$work/events"
