# What several ./kesto run on one machine do to each other, and how they end. The tests'
# Wine stands for the person's; the displays are this check's own.
# usage, from the repository root: bash tests/checks/runs.sh
set -u
export KESTO_PREFIX=$PWD/build/wine-test
work=$PWD/build/test-output/runs
rm -rf "$work"
mkdir -p "$work/other"
printf 'int one;\n' >"$work/one.cpp"
printf 'int other;\n' >"$work/other/other.cpp"
WINEPREFIX=$KESTO_PREFIX wineserver -k # nothing of the tests before is wanted
WINEPREFIX=$KESTO_PREFIX wineserver -w
jobs_begun=
finish() {
  local job
  WINEPREFIX=$KESTO_PREFIX wineserver -k
  for job in $jobs_begun; do kill "$job" 2>/dev/null; done
}
trap finish EXIT
fail() {
  echo "$*"
  tail -n 5 "$work"/*.err
  exit 1
}

display() { # SIZE: a display of that size, named in $shown
  rm -f "$work/display"
  Xvfb -displayfd 3 -screen 0 "${1}x24" -nolisten tcp 3>"$work/display" >/dev/null 2>&1 </dev/null &
  jobs_begun+=" $!"
  await "a display" test -s "$work/display"
  shown=:$(tr -d '\n' <"$work/display")
}
await() { # "what" command...
  local what=$1 tries=0
  shift
  until "$@" 2>/dev/null; do
    tries=$((tries + 1))
    [ "$tries" -lt 300 ] || fail "waited in vain for $what"
    sleep 0.1
  done
}
begin() { # NAME DISPLAY PATH...: a person's run, its process in $begun
  local name=$1 on=$2
  shift 2
  # As a terminal's job: with a process group, and not deaf to Ctrl+C.
  DISPLAY=$on setsid env --default-signal=INT ./kesto run "$@" >"$work/$name.out" 2>"$work/$name.err" </dev/null &
  begun=$!
  jobs_begun+=" $begun"
  await "the editor of $name" grep -q '"event":"editor"' "$work/$name.out"
}
gone() { ! kill -0 "$1" 2>/dev/null; }
has() { grep -qF "$1" "$2"; }

display 1920x1080
first_display=$shown
begin first "$first_display" "$work/one.cpp"
first=$begun
xwininfo -display "$first_display" -name "kesto - Wine desktop" | grep -q -- "-geometry 1920x1080" ||
  fail "the desktop does not take the screen"

# Where the first one's display is, a second start gives its path away, or only calls it.
DISPLAY=$first_display timeout 60 ./kesto run "$work/other/other.cpp" >"$work/second.out" 2>"$work/second.err" ||
  fail "the second start failed"
await "the path of the second start" grep -q '"event":"editor".*other.cpp' "$work/first.out"
has "opens $work/other/other.cpp" "$work/second.err" || fail "the second start does not say what it did"
DISPLAY=$first_display timeout 60 ./kesto run >/dev/null 2>"$work/third.err" || fail "the third start failed"
! has shapes "$work/first.out" || fail "a start without a path opened one"

# A script and a screen of another size are beside it, and end on their own.
display 1024x768
begin beside "$shown" "$work/other"
beside=$begun
has "display $first_display" "$work/beside.err" || fail "the run beside does not say so"
echo 'dump windows' | DISPLAY=$first_display timeout 60 ./kesto run "$work/other" --script - \
  >"$work/script.out" 2>"$work/script.err" || fail "the script failed"
[ "$(grep -o '"class":"CPPFRAME"' "$work/script.out" | wc -l)" = 1 ] || fail "the script meets another's frame"
kill -INT -- "-$beside"
await "the end of the run beside" gone "$beside"
[ -z "$(ls -d "$KESTO_PREFIX"-beside-* 2>/dev/null)" ] || fail "the run beside left its Wine"

# Unsaved text is asked about. The new file that is asked for after it tells of itself, so
# the text has come by then.
export DISPLAY=$first_display
xdotool search --name '^kesto - Wine desktop$' windowfocus --sync mousemove 900 400 click 1
xdotool type 'typed '
xdotool key ctrl+n
await "the new file" grep -qi '"event":"editor".*noname' "$work/first.out"
until has "waits for an answer" "$work/first.err"; do
  gone "$first" && fail "the Workbench ended without a question"
  kill -INT -- "-$first"
  sleep 0.2
done
has "closing the Workbench" "$work/first.err" || fail "the first signal did not close"
# Enter takes the question's Yes.
until gone "$first"; do
  xdotool key Return
  sleep 0.2
done
wait "$first"
[ $? = 130 ] || fail "a run that a signal ended does not say so"
grep -q '^typed' "$work/other/other.cpp" || fail "what was typed is lost"
