# The add-on loads on Windows 95 and NT 4.0: a 32-bit DLL that imports system functions of
# those days alone and exports its one entry.
# usage, from the repository root: bash tests/checks/imports.sh [DLL]
set -u
dll=${1:-build/mingw32/bin/Kestoaob.dll}
allowed=tests/checks/old_windows_functions.txt
tables=$(i686-w64-mingw32-objdump -f -p "$dll") || exit 1

wrong=$(printf '%s\n' "$tables" | tr -d '\r' | awk -v allowed="$allowed" '
  BEGIN {
    while ((getline line < allowed) > 0) {
      if (line ~ /^\[/) {
        section = tolower(substr(line, 2, length(line) - 2))
        known[section] = 1
      } else if (line !~ /^#/) {
        count = split(line, names, " ")
        for (i = 1; i <= count; i++) old[section, names[i]] = 1
      }
    }
    if (section == "") print "no list of functions at " allowed
  }
  / file format / { kind = $NF }
  /^architecture:/ { sub(",", "", $2); machine = $2 }
  /DLL Name:/ {
    module = tolower($NF)
    if (!(module in known)) print "imports " $NF ", which is no system DLL on the list"
    next
  }
  /^\tvma:/ && module != "" { listing = 1; next }
  listing && /^\t[0-9a-f]+\t/ {
    imports++
    if (!((module, $3) in old)) print "imports " $3 " of " module
    next
  }
  listing { listing = 0 }
  /^\[Ordinal\/Name Pointer\] Table/ { exporting = 1; next }
  exporting && /^\t\[/ {
    exports++
    if ($NF != "BcwAddOnEntry") print "exports " $NF
    next
  }
  exporting { exporting = 0 }
  END {
    if (kind != "pei-i386" || machine != "i386") print "is " kind ", " machine ": not a 32-bit i386 module"
    if (imports == 0) print "imports nothing that could be read"
    if (exports != 1) print "exports " exports + 0 " names, not one"
  }')
if [ -n "$wrong" ]; then
  printf '%s\n' "$wrong" | sed "s|^|$dll |"
  exit 1
fi
