# kesto-cli as whole processes: what it writes, its exit codes, and what befalls programs:
# files that are missing or closed to it, readers that go away, disks that are full.
# usage, from the repository root: bash tests/checks/cli.sh
set -u
root=$PWD
cli=$root/build/native/bin/kesto-cli
work=$root/build/test-output/cli
rm -rf "$work"
mkdir -p "$work"
cd "$work" || exit 1
failed=0
out=
err=
run() { # ARGUMENTS...: fills $out, $err and $code
  "$cli" "$@" >out 2>err </dev/null
  code=$?
  out=$(cat out && echo .)
  out=${out%.}
  err=$(cat err)
}
gives() { # CODE OUTPUT ARGUMENTS...: each line of the output with its end; nothing is told
  local wanted=$1 text=$2
  shift 2
  run "$@"
  if [ "$code" != "$wanted" ] || [ "$out" != "$text" ] || [ -n "$err" ]; then
    echo "kesto-cli $*: $code, wanted $wanted; writes"
    echo "$out$err"
    failed=1
  fi
}
tells() { # PATTERN ARGUMENTS...: code 2, and what standard error says
  local pattern=$1
  shift
  run "$@"
  if [ "$code" != 2 ] || ! grep -qe "$pattern" err; then
    echo "kesto-cli $*: $code, and not \"$pattern\":"
    cat err
    failed=1
  fi
}
is() { # what command...
  local what=$1
  shift
  "$@" || {
    echo "$what"
    failed=1
  }
}
lf=$'\n'
tab=$'\t'

# A project with blanks and letters beyond ASCII in its names and texts.
mkdir -p 'my p/kopf' 'my p/src/.x' 'my p/teil' 'my p/none'
printf 'int first(void)\r\n{\r\n  use();  // gr\xf6\xdfer\r\n}\r\nvoid A::m(int)\nint first(long)\nclass A {\n};\n' >'my p/größe.cpp'
printf '#include <a b.h>\n/* #include "c.h" */\n#include ""\n\tuse(first);\nint last()\n' >'my p/src/s.CC'
printf '  use();\n' | tee 'my p/src/.x/no.c' 'my p/kopf/only.h' >'my p/teil/x.cpp'
printf 'class A : B {\n// \xc3\xb6\n};\n' >'my p/kopf/a.h'
printf 'int f()\nint g()\n' >'my p/teil/l.c'
printf '\tgr\xc3\xb6\xc3\x9fer(\xce\xb1 ? 1);\n' >'my p/src/u.cpp'
mkdir -p plain/Include && cp 'my p/kopf/a.h' plain/Include
cat >'my p/my.ide' <<'END'
Workbench project 1
option "KestoGroupwareServer" "~srv\x00"
node "my.exe" ".exe" {
  path 1 "KOPF;Z:\\no"
  path 3 "teil"
  node "größe.cpp" ".cpp"
}
end
END
gives 0 "my p/größe.cpp:1:first$lf""my p/größe.cpp:6:first$lf""my p/größe.cpp:5:A::m$lf" functions 'my p/größe.cpp'
gives 0 "my p/größe.cpp:1:first$lf""my p/größe.cpp:5:A::m$lf""my p/größe.cpp:6:first$lf" functions --unsorted 'my p/größe.cpp'
gives 0 "a b.h${lf}c.h$lf" includes 'my p/src/s.CC'
gives 1 '' includes 'my p/teil/l.c'
gives 0 "my p/größe.cpp:1:int first(void)$lf" find function first --project 'my p'
gives 0 "my p/teil/l.c:2:int g()$lf" find function g --project 'my p/my.ide'
gives 0 "my p/teil/l.c:2:int g()$lf" find function g --project 'my p' --no-recurse
gives 1 '' find function g --project 'my p' --no-recurse --source-path 'my p/none'
gives 0 "my p/größe.cpp:5:A::m$lf" find method m --project 'my p'
gives 0 "my p/kopf/a.h:1:class A : B {$lf" find class A --project 'my p'
gives 0 "plain/Include/a.h:1:class A : B {$lf" find class A --project plain
gives 0 "{\"file\":\"my p/größe.cpp\",\"line\":7,\"text\":\"class A {\"}$lf" find class A --project 'my p' --include-path 'my p' --headers '*.cpp' --no-recurse --json
gives 0 "my p/größe.cpp:3:  use();  // größer$lf""my p/teil/x.cpp:1:  use();$lf""my p/src/s.CC:4:${tab}use(first);$lf" xref use --project 'my p'
gives 0 "my p/größe.cpp:3:  use();  // größer$lf""my p/src/u.cpp:1:${tab}größer(α ? 1);$lf" xref größer --project 'my p'
gives 0 "my p/src/u.cpp:1:${tab}größer(α ? 1);$lf" xref α --project 'my p'
gives 1 '' xref absent --project 'my p'
(cd 'my p/teil' && "$cli" xref use && "$cli" xref use --project ../src) >out
is "paths from the current folder on" [ "$(cat out)" = "x.cpp:1:  use();$lf../src/s.CC:4:${tab}use(first);" ]

# Standard input, and what keywords are taken and completed.
is "keywords of standard input" [ "$(printf 'int S::a(int v)\nvoid *b(int)\nint c();\n' | "$cli" keywords -)" = "S${lf}a${lf}b" ]
is "functions of standard input" [ "$(printf '\nint f()\n' | "$cli" functions - --json)" = '{"file":"-","line":2,"class":"","name":"f"}' ]
mkfifo pipe
(echo 'int f()' >pipe) &
is "functions of a pipe that has a name" [ "$(timeout 20 "$cli" functions pipe)" = 'pipe:1:f' ]
is "functions of a pipe" [ "$("$cli" functions <(printf '\nint f()\n') | cut -d: -f2-)" = '2:f' ]
gives 0 '' keywords 'my p/größe.cpp' --write
is "the keyword file" [ "$(cat 'my p/größe.kwd')" = $'first\r\nA\r\nm\r\nfirst\r' ]
printf 'print|Writes 5%%%% of it\nprintf|First\nprivate\n[x]\n' >words.kwd
tells 'größe.kwd: holds descriptions' keywords "$(cp words.kwd 'my p/größe.kwd' && echo 'my p/größe.cpp')" --write
gives 0 '' keywords 'my p/größe.cpp' --write --force
gives 0 "print${tab}Writes 5% of it${lf}printf${tab}First${lf}" complete prin --keywords words.kwd
gives 0 "t$lf" complete prin --insert --keywords words.kwd
gives 0 '{"insert":"","status":"Possible :print, printf, private"}'"$lf" complete pri --insert --json --keywords words.kwd
gives 1 '' complete q --keywords words.kwd
is "words of standard input" [ "$("$cli" complete priv --keywords - words.kwd <words.kwd | sort | uniq -c | tr -s ' ')" = ' 2 private' ]

# Tasks: the bytes of a file, by its description. Bugs of 1 to 31 May 1995, and one ended.
word() { printf "\\x$(printf %02x $(($1 & 255)))\\x$(printf %02x $(($1 >> 8 & 255)))"; }
long() { word "$1" && word $(($1 >> 16)); }
text() { word ${#1} && printf '%s\0' "$1"; }
day() { for number in "$1" "$2" 0 "$3" 0 0 0 0; do word "$number"; done; }
task() { # NAME STATE PUBLIC PRIORITY
  long 0 && text "$1" && text Bug && long "$2" && long "$3" && long "$3" && long "$4"
  day 1995 5 1 && day 1995 5 31 && text "what$lf"
}
{
  for number in 0 1 1 1 1 0 1 0 2; do long "$number"; done
  task one 0 1 -5 && task two 3 0 7
} >'my p/my.ide.tsk'
gives 0 "one${tab}Bug${tab}TO DO${tab}-5${tab}1995-05-01${tab}1995-05-31${lf}two${tab}Bug${tab}ended${tab}7${tab}1995-05-01${tab}1995-05-31${lf}" tasks 'my p'
gives 0 '{"name":"two","type":"Bug","state":"ended","public":false,"priority":7,"start":"1995-05-01","end":"1995-05-31","text":"what\n"}'"$lf" tasks 'my p/my.ide' --states ended --states ended --json
gives 0 "to do${tab}1${lf}coded${tab}0${lf}tested${tab}0${lf}ended${tab}1${lf}" tasks 'my p' --counts
run tasks 'my p' --day 2001-05-31
is "the report of a day" [ "$code$(sed -n '1,2p;$p' out)" = "0one (1995-05-01 to 1995-05-31)${lf}Type : Bug, Priority : -5, State : to do${lf}That's all folks !" ]
is "the report of other states" [ "$("$cli" tasks 'my p' --day 2001-05-01 --states ended | head -n 1)" = "two (1995-05-01 to 1995-05-31)" ]
gives 1 "No task today !$lf" tasks 'my p' --day 1995-06-01
is "the order turned round" [ "$("$cli" tasks 'my p' --sort priority --reverse | cut -f1 | tr '\n' ' ')" = 'two one ' ]
tells 'no whole task file' tasks "$(head -c 150 'my p/my.ide.tsk' >'my p/cut.ide.tsk' && echo 'my p/cut.ide')"
is "what was whole of a cut file" grep -q '^one' out
tells -- '--day takes' tasks 'my p' --day 1995-02-29
gives 1 '' tasks dialogs.ide

# The server of the project: a free copy of an edited file, a locked one that is older and
# read-only here, one that is new there.
mkdir -p 'my p/srv/kopf'
touch -d '2020-01-01 12:00:00' 'my p/größe.cpp' 'my p/teil/l.c'
touch -d '2020-01-01 12:00:00.9' 'my p/srv/größe.cpp' 'my p/srv/kopf/new.h'
touch -d '2019-01-01' 'my p/srv/kopf/a.h'
chmod a-w 'my p/srv/kopf/a.h' 'my p/kopf/a.h'
gives 0 "send${tab}größe.cpp${tab}Same${tab}CONFLICT${lf}send${tab}teil/l.c${tab}NEW!${tab}${lf}get${tab}größe.cpp${tab}Same${tab}${tab}ERROR${lf}get${tab}kopf/a.h${tab}Older${tab}locked${tab}ERROR${lf}get${tab}kopf/new.h${tab}NEW!${tab}${tab}Refresh${lf}" status 'my p' --filters 'gr*.cpp;l.c;a.h;new.h'
gives 0 '{"list":"get","file":"kopf/new.h","locked":false,"age":"NEW!","advice":"Refresh"}'"$lf" status 'my p' --get --json --server 'my p/srv' --filters 'n*.h'
tells 'none: No such file' status 'my p' --server none

# Arguments that make no sense, and files that cannot be read.
tells 'there is no command$'
tells 'no command "fin"' fin
tells 'find: it needs function' find method
tells 'a method or a class' find variable x
tells 'no option --jsn' xref a --jsn
tells 'no.cpp: No such file' functions no.cpp 'my p/größe.cpp'
is "the file after a missing one" grep -q 'größe.cpp:1:first' out
tells 'my p: is a folder' includes 'my p'
tells 'no: No such file' html no
tells ' no: No such file' xref a --project no/x.ide
tells '"": No such file' functions ''
tells '"": No such file' find class A --project ''
tells '"": No such file' status . --server ''
mkdir gone
is "a current folder that is gone" [ "$(cd gone && rmdir ../gone && "$cli" find function a --no-recurse 2>&1)" = 'kesto-cli: .: No such file or directory' ]
printf 'Workbench project 1\nnode "a"\nend\n' >bad.ide
tells 'bad.ide:2: "node" needs' xref a --project bad.ide
tells 'words.kwd: is no folder' classes words.kwd
tells 'after needs a number' stamp --after 1x
tells 'no.kwd: No such file' complete a --keywords no.kwd

# What is closed to who runs it: a folder, a source, a place to write to.
mkdir -p closed/secret closed/folder
printf '  use();\n' | tee closed/a.c closed/b.c >closed/folder/c.c
chmod 0 closed/secret closed/b.c
plain() { # with no more rights than anybody has
  if [ "$(id -u)" = 0 ]; then setpriv --bounding-set=-dac_override,-dac_read_search "$@"; else "$@"; fi
}
plain "$cli" xref use --project closed >out 2>err
is "the code of a search that could not read all" [ $? = 2 ]
is "what could be read is found" [ "$(cat out)" = "closed/a.c:1:  use();${lf}closed/folder/c.c:1:  use();" ]
is "what could not be read is named" [ "$(sort err)" = "kesto-cli: closed/b.c: Permission denied${lf}kesto-cli: closed/secret: Permission denied" ]
chmod 700 closed/secret
chmod a-w closed/folder
plain "$cli" classes closed >out 2>err
is "the code of classes that cannot be written" [ $? = 2 ]
is "where they could not be written" grep -q 'closed/folder/.rcfolder.h.kesto-new: Permission denied' err
is "the other classes" [ -e closed/rc.cpp ]

# Readers that go away, streams that are closed, disks that are full.
yes 'int function(int)' | head -n 100000 >long.c
"$cli" functions long.c 2>err | head -n 1 >out
is "a reader that has seen enough" [ "${PIPESTATUS[*]}$(cat out err)" = "0 0long.c:1:function" ]
"$cli" functions long.c >/dev/full 2>err
is "a full disk behind standard output" [ "$?$(cat err)" = "2kesto-cli: standard output: No space left on device" ]
"$cli" --help >/dev/full 2>err
is "the help on a full disk" [ $? = 2 ]
"$cli" functions long.c >&- 2>err
is "no standard output" [ $? = 2 ]
mkdir full
printf 'FILEVERSION 1,2,3,4\n' >full/VERSION.RC
for command in classes stamp html; do
  (trap '' XFSZ && ulimit -f 0 && "$cli" "$command" full 2>&1 >/dev/null) | cat >err
  is "$command says that there is no room" grep -q '^kesto-cli: full/.*: File too large' err
done
is "nothing half written" [ "$(find full -type f)$(cat full/VERSION.RC)" = "full/VERSION.RCFILEVERSION 1,2,3,4" ]

# Versions: the first text stays, the number is told, a tree without versions has nothing.
gives 0 "{\"file\":\"full/VERSION.BAK\"}$lf{\"file\":\"full/VERSION.RC\"}$lf{\"build\":10}$lf" stamp full --after 9 --json
is "a version" [ "$(cat full/VERSION.RC)" = $'FILEVERSION 1, 2, 3, 10\r' ]
gives 1 '' stamp closed

# Colours are for terminals, where nobody has asked for none.
on_terminal() { TERM=xterm script -qec "'$cli' xref größer --project 'my p' --sources 'gr*'" /dev/null </dev/null; }
is "colours" grep -q $'\x1b\\[35mmy p/' <(NO_COLOR='' on_terminal)
is "no colours" [ "$(NO_COLOR=1 on_terminal | tr -d '\r')" = "my p/größe.cpp:3:  use();  // größer" ]

# A make calls it when a script has changed, and only then.
cp -r "$root/examples/dialogs" dialogs
make_dialogs() { make -j 4 -C dialogs KESTO="$cli" FRAMEWORK="$root/tests/rcgen" "$@" >out 2>&1; }
for script in none settings/settings.rc VERSION.RC; do
  [ "$script" = none ] || touch "dialogs/$script"
  ! make_dialogs -q || is "$script is seen to have changed" false
  make_dialogs
  is "$script: the make: $(tail -n 5 out)" grep -q "kesto-cli classes" out
  make_dialogs -q
  is "$script: nothing to do after the make" [ $? = 0 ]
done
is "the program" [ -s dialogs/book.exe ]

# Every command and every option stands in the page and in the manual.
for command in $("$cli" --help | sed -n 's/^  \([a-z]*\) .*/\1/p'); do
  for word in "kesto-cli $command" $("$cli" "$command" --help | grep -o -- '^  --[a-z-]*'); do
    for page in docs/command-line.md docs/kesto-cli.1; do
      is "$page: no $word" grep -qe "$word" <(sed 's/\\-/-/g' "$root/$page")
    done
  done
done
exit "$failed"
