# The Windows program of kesto-cli says and writes what the native one does.
# usage, from the repository root: bash tests/checks/cli_windows.sh
set -u
root=$PWD
work=$root/build/test-output/cli_windows
rm -rf "$work"
mkdir -p "$work/native"
cp -r examples/{dialogs,ledger,shapes,keywords} "$work/native"
printf '  use(); // gr\xf6\xdfer\n' >"$work/native/shapes/größe.cpp"
touch -d 2020-01-01 "$work/native/shapes/"*.cpp
mkdir "$work/native/server"
cp -p "$work/native/shapes/main.cpp" "$work/native/server"
cp -a "$work/native" "$work/windows"
mkdir "$work/says"
wide() { printf 'Z:%s' "$1" | tr / '\\'; }
cat >"$work/commands" <<'END'
functions shapes/shapes.cpp shapes/none.cpp
xref use --project shapes
find class Shape --project shapes
find function nothing --project shapes
classes dialogs
stamp dialogs/dialogs.ide --after 5
html ledger
complete WM_SE --keywords keywords/win32-messages.kwd
keywords shapes/shapes.cpp --write
status shapes --server server
tasks shapes
xref a --project none
END
# One start of Wine for them all.
{
  printf '@echo off\r\ncd /d %s\r\n' "$(wide "$work/windows")"
  number=0
  while read -r words; do
    number=$((number + 1))
    printf '%s %s --json <NUL >..\\says\\%s.out 2>..\\says\\%s.err\r\n' \
      "$(wide "$root/build/mingw32/bin/kesto-cli.exe")" "$words" $number $number
    printf 'echo %%errorlevel%% >..\\says\\%s.code\r\n' $number
  done <"$work/commands"
} >"$work/all.bat"
./kesto exec cmd /c "$(wide "$work/all.bat")" >/dev/null 2>&1 </dev/null

failed=0
number=0
cd "$work/native" || exit 1
while read -r -a words; do
  number=$((number + 1))
  said=$work/says/$number
  "$root/build/native/bin/kesto-cli" "${words[@]}" --json >"$work/out" 2>"$work/err" </dev/null
  code=$?
  if [ "$code" != "$(tr -d '\r ' <"$said.code")" ] ||
    ! diff <(sed 's|\\\\|/|g' "$said.out") "$work/out" ||
    [ "$(wc -l <"$work/err")" != "$(wc -l <"$said.err")" ]; then
    echo "kesto-cli ${words[*]}: native $code, Windows $(cat "$said.code")"
    cat "$work/err" "$said.err"
    failed=1
  fi
done <"$work/commands"
diff -r "$work/native" "$work/windows" || failed=1
exit "$failed"
