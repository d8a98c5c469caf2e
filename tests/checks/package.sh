# The package, from an empty Wine on: two of the same bytes, refused where it would do harm,
# installed, used, put over an older version, and taken away.
# usage, from the repository root, with a display: bash tests/checks/package.sh
set -u
work=$PWD/build/test-output/package
export WINEPREFIX=$PWD/build/wine-package WINEARCH=win32 WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe,winedbg.exe=d"
disk=$WINEPREFIX/drive_c
folder=$disk/Tools/Kesto
menu="$disk/ProgramData/Microsoft/Windows/Start Menu/Programs/Kesto"
addon_key='HKLM\SOFTWARE\Borland\Borland C++\5.0\Ide\AddOns\Kestoaob'
uninstall_key='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\Kesto'
rm -rf "$work"
mkdir -p "$work"
job=
trap '[ -z "$job" ] || kill "$job" 2>/dev/null; wineserver -k' EXIT
fail() {
  echo "$*"
  exit 1
}
ends() { # CODE what command...: insists on its exit code
  local wanted=$1 what=$2 code
  shift 2
  "$@" </dev/null >"$work/output" 2>&1
  code=$?
  [ "$code" = "$wanted" ] || { cat "$work/output"; fail "$what ended with $code, not $wanted"; }
}
value() { # KEY NAME
  wine reg query "$1" /v "$2" 2>/dev/null | tr -d '\r' | sed -n "s/^ *$2  *REG_[A-Z]*  *//p"
}
value_is() { # KEY NAME TEXT what
  local has
  has=$(value "$1" "$2")
  [ "$has" = "$3" ] || fail "$4: $2 is \"$has\", not \"$3\""
}
picture() { # FOLDER: all that it holds
  (cd "$1" && find . -type f -exec sha256sum {} + | sort -k 2)
}
names() { # FOLDER
  (cd "$1" && find . | grep -v '^./\(windows/\|users/[^/]*/\(Temp\|AppData/Local/Temp\)/\)' | sort)
}

# Wine is as it was new: either just made, or as the last of these runs has left it, all of
# whose traces were looked for.
if [ -e "$WINEPREFIX/empty" ]; then
  rm "$WINEPREFIX/empty"
else
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  wineboot -i >/dev/null 2>&1 </dev/null || fail "Wine could not be prepared"
  # A desktop, so that windows have captions.
  wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d kesto /f >/dev/null 2>&1
  wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v kesto /d 1024x768 /f >/dev/null 2>&1
  wineserver -w
fi
names "$disk" >"$work/before"

ends 0 "packaging" ./kesto package "$work/one"
(umask 077 && TZ=Asia/Tokyo ends 0 "packaging again" ./kesto package "$work/two") || exit 1
diff -r "$work/one" "$work/two" || fail "two packages of the same are not the same"
(cd "$work/one" && sha256sum --quiet -c SHA256SUMS) || fail "the checksums are others"
setup=$(echo "$work"/one/*-setup.exe)
stage=build/package/files
i686-w64-mingw32-objdump -t $stage/Kestoaob.dll | grep -q '^no symbols' || fail "the module has symbols"
zip -sf "$work"/one/*.zip | sed -n 's/^ *Kesto\/\(.*[^/]\)$/\1/p' | sort >"$work/zipped"
tr -d '\r' <$stage/files.lst | tr '\\' / | sed -n 's/^[PE] //p' | grep -v '^files.lst$\|^uninstall.exe$' | sort |
  diff - "$work/zipped" || fail "the archive holds something else than the installer"

# An older version: another module, an example that was another, two that are no more and
# some that were not yet.
export SOURCE_DATE_EPOCH=1000000000
old=$work/old
cp -a build/package "$old"
echo older >>"$old/files/Kestoaob.dll"
echo older >"$old/files/Examples/shapes/canvas.cpp"
mkdir "$old/files/Examples/gone"
echo older | tee "$old/files/Examples/gone/gone.cpp" >"$old/files/Examples/gone/mine.cpp"
rm -r "$old/files/Keywords/c++.kwd" "$old/files/Examples/ledger" "$old/files/kesto-cli.exe"
sed -i '/c++.kwd/d; /ledger/d; /kesto-cli.exe/d' "$old/kinds"
printf 'E Examples/gone/%s\n' gone.cpp mine.cpp >>"$old/kinds"
bash package/make.sh list "$old"
bash package/make.sh installer "$old" 1.1 "$work/old.exe" >/dev/null || fail "no older installer"

# Where the registry takes nothing, nothing is installed. (Below a key that does not last
# none can be made that does.)
mkdir -p "$work/refused/files"
echo text >"$work/refused/files/README.TXT"
echo E README.TXT >"$work/refused/kinds"
bash package/make.sh list "$work/refused"
bash package/make.sh installer "$work/refused" 1.2 "$work/refused.exe" '-DADDON_KEY=HARDWARE\Kesto' >/dev/null
ends 2 "an installation without a registry" wine "$work/refused.exe" /S '/D=C:\Tools\Kesto'
# Files that were in the folder before are nobody's to replace.
mkdir -p "$folder"
echo mine >"$folder/README.TXT"
ends 2 "an installation over a person's file" wine "$work/old.exe" /S '/D=C:\Tools\Kesto'
[ "$(find "$disk/Tools" -type f -exec cat {} +)" = mine ] || fail "a refused installation left something"
value_is "$addon_key" Path '' "a refused installation"
rm -r "$disk/Tools"

# One that was cut short had placed a part, and not registered yet.
mkdir -p "$folder/~kesto.new" "$folder/Keywords"
cp "$old/files/Kestoaob.cnt" "$old/files/files.lst" "$folder"
ends 0 "the older version's installation" wine "$work/old.exe" /S '/D=C:\Tools\Kesto'
value_is "$addon_key" Path 'C:\Tools\Kesto\Kestoaob.dll' "the IDE's entry"
for file in main.cpp ../gone/mine.cpp; do echo '// mine' >>"$folder/Examples/shapes/$file"; done
echo note >"$folder/Examples/note.txt"
echo mine >"$folder/kesto-cli.exe"
wine reg add "$addon_key\\Menus" /v Size /d 3 /f >/dev/null 2>&1

# In use, by a Workbench from elsewhere that finds the module by its entry.
mkdir "$work/elsewhere"
cp $stage/workbench.exe "$work/elsewhere"
printf 'edit main.cpp\nclick-title main.cpp 0\nwait menu\nkey Escape\necho up\nwait-file done\nquit\n' >"$work/hold.wbs"
wine "$work/elsewhere/workbench.exe" 'C:\Tools\Kesto\Examples\shapes' --script "$work/hold.wbs" \
  >"$work/hold.jsonl" 2>/dev/null </dev/null &
job=$!
until grep -qs '"text":"up"' "$work/hold.jsonl"; do
  kill -0 "$job" 2>/dev/null || { tail -n 3 "$work/hold.jsonl"; fail "the registered module is not used"; }
  sleep 0.1
done
picture "$folder" >"$work/picture"
ends 2 "an installation over a module in use" wine "$setup" /S '/D=C:\Tools\Kesto'
ends 2 "an uninstallation in use" wine "$folder/uninstall.exe" /S '_?=C:\Tools\Kesto'
ends 2 "a second installation elsewhere" wine "$setup" /S '/D=C:\Other'
picture "$folder" | diff "$work/picture" - || fail "a refused installation changed something"
[ ! -e "$disk/Other" ] || fail "there is a second installation"
value_is "$uninstall_key" DisplayVersion 1.1 "a refused upgrade"
touch "$folder/Examples/shapes/done"
wait "$job"
job=
rm "$folder/Examples/shapes/done"

# What stands where a folder is to be is met when other files have been replaced already.
echo mine >"$folder/Examples/ledger"
picture "$folder" >"$work/picture"
ends 2 "an upgrade that cannot be finished" wine "$setup" /S
picture "$folder" | diff "$work/picture" - || fail "an upgrade that could not be finished is not undone"
value_is "$addon_key" Path 'C:\Tools\Kesto\Kestoaob.dll' "an upgrade that could not be finished"
rm "$folder/Examples/ledger"

# The new version over it, without naming the folder.
ends 0 "the upgrade" wine "$setup" /S
echo '// mine' >>"$work/mine"
cat $stage/Examples/shapes/main.cpp "$work/mine" | cmp - "$folder/Examples/shapes/main.cpp" || fail "an edit is lost"
tail -n 1 "$folder/Examples/gone/mine.cpp" | cmp - "$work/mine" || fail "an edit of an example that is gone is lost"
(cd $stage && find . -type f ! -path ./Examples/shapes/main.cpp -exec cmp {} "$folder"/{} \;) >"$work/differs" 2>&1
[ ! -s "$work/differs" ] || { head -n 5 "$work/differs"; fail "not all files are those of the new version"; }
[ "$(cat "$folder/kesto-cli.exe.old")" = mine ] || fail "a file with a new program's name is lost"
[ "$(ls "$folder"/*.old)" = "$folder/kesto-cli.exe.old" ] || fail "what was of Kesto is kept"
[ ! -e "$folder/Examples/gone/gone.cpp" ] || fail "a file of the older version is left"
[ -z "$(ls -d "$folder"/~* 2>/dev/null)" ] || fail "the upgrade left its own folders"
value_is "$addon_key\\Menus" Size 3 "the upgrade"
value_is "$uninstall_key" DisplayName "Kesto $(sed -n 's/#define KESTO_VERSION "\(.*\)"/\1/p' addon/foundation/version.h)" \
  "Add/Remove Programs"
[ "$(find "$menu" -name '*.lnk' | wc -l)" = 4 ] || fail "the Start menu lacks an entry"

# The installed Workbench with the installed module; the functions fill columns of 3.
cat >"$work/use.wbs" <<'WBS'
edit shapes.cpp
click-title shapes.cpp 0
wait menu
choose 1000
wait command id 1000
quit
WBS
ends 0 "the installed Workbench" wine "$folder/workbench.exe" 'C:\Tools\Kesto\Examples\shapes' --script "$work/use.wbs"
grep -q '"break":true' "$work/output" || fail "the setting of the menu's columns has no effect"

gone() { # DATA: waits for the end of an uninstaller, which goes on in a copy of itself
  wineserver -w
  value_is "$addon_key" Path '' "the uninstallation"
  value_is "$uninstall_key" DisplayName '' "the uninstallation"
  [ ! -e "$menu" ] || fail "the Start menu keeps its entries"
}
ends 0 "the uninstaller" wine "$folder/uninstall.exe" /S
gone
(cd "$disk/Tools" && find . -type f | sort) >"$work/left"
printf './Kesto/%s\n' Examples/gone/mine.cpp Examples/note.txt Examples/shapes/main.cpp kesto-cli.exe.old | diff - "$work/left" ||
  fail "other files are left than a person's"
value_is "$addon_key\\Menus" Size 3 "the uninstallation"

rm -r "$disk/Tools"
ends 0 "the installation" wine "$setup" /S
ends 0 "the uninstaller, settings included" wine "$disk/Program Files/Kesto/uninstall.exe" /S /SETTINGS
gone
wineserver -w
names "$disk" | diff "$work/before" - || fail "files are left"
! grep -i 'kestoaob\|software\\\\kesto\|uninstall\\\\kesto\|AddOns' "$WINEPREFIX"/*.reg || fail "keys are left"
: >"$WINEPREFIX/empty"
