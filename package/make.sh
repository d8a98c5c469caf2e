# The steps of a package; ./kesto package goes them all. The same files and the same date
# make the same bytes. files.txt says what is in it.
# usage, from the repository root:
#   bash package/make.sh stage BIN STAGE           gathers the files in STAGE/files
#   bash package/make.sh list STAGE                names them in STAGE/files/files.lst
#   bash package/make.sh installer STAGE VERSION FILE.exe [makensis options]
#   bash package/make.sh zip STAGE FILE.zip
set -eu
# Windows 95 keeps the time of a file in steps of two seconds.
date=$((${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || echo 946728000)} / 2 * 2))
export TZ=UTC LC_ALL=C SOURCE_DATE_EPOCH=$date
die() {
  printf '%s\n' "$*" >&2
  exit 1
}

members() { # SOURCE: the files of a folder, or the file itself
  if [ ! -d "$1" ]; then
    [ -e "$1" ] || die "the package lacks $1"
    echo "$1"
  elif git rev-parse --git-dir >/dev/null 2>&1; then
    git ls-files -- "$1"
  else
    find "$1" -type f
  fi
}

stage() { # BIN STAGE
  local bin=$1 folder=$2/files kind source place member target names
  rm -rf "$2"
  mkdir -p "$folder"
  while read -r kind source place; do
    case $kind in P | E) ;; *) continue ;; esac
    case $source in bin/*) source=$bin/${source#bin/} ;; esac
    names=$(members "$source")
    [ -n "$names" ] || die "the package lacks what is in $source"
    while IFS= read -r member; do
      target=$place${member#"$source"}
      mkdir -p "$(dirname "$folder/$target")"
      cp "$member" "$folder/$target"
      case $member in
        *.exe | *.dll) i686-w64-mingw32-strip "$folder/$target" ;;
        package/*.TXT) sed -i 's/$/\r/' "$folder/$target" ;;
      esac
      printf '%s %s\n' "$kind" "$target" >>"$2/kinds"
    done <<<"$names"
  done <package/files.txt
  list "$2"
}

# Folders (D) before what is in them, files by their kind, then the folders again (R), the
# deepest first. The installer makes the uninstaller, and the list is in the list.
list() { # STAGE
  local folder=$1/files
  find "$folder" -mindepth 1 -type d -printf '%P\n' | sort >"$1/folders"
  {
    sed 's/^/D /' "$1/folders"
    sort "$1/kinds"
    printf 'P files.lst\nP uninstall.exe\n'
    sort -r "$1/folders" | sed 's/^/R /'
  } | sed 's|/|\\|g; s/$/\r/' >"$folder/files.lst"
  find "$folder" -exec touch -h -d "@$date" {} +
  find "$folder" -type d -exec chmod 755 {} +
  find "$folder" -type f -exec chmod 644 {} +
}

installer() { # STAGE VERSION FILE.exe [makensis options]
  local stage=$1 version=$2 file=$3
  shift 3
  mkdir -p "$(dirname "$file")"
  makensis -V2 -NOCD -DSTAGE="$(realpath "$stage/files")" -DVERSION="$version" -DOUT="$(realpath -m "$file")" "$@" \
    package/installer.nsi
}

archive() { # STAGE FILE.zip
  local file folder
  file=$(realpath -m "$2")
  rm -f "$file"
  mkdir -p "$(dirname "$file")" "$1/zip"
  folder=$1/zip/Kesto
  rm -rf "$folder"
  cp -a "$1/files" "$folder"
  rm -f "$folder/files.lst"
  touch -d "@$date" "$folder"
  (cd "$1/zip" && find Kesto | sort | zip -q -X -9 -@ "$file")
  rm -rf "$1/zip"
}

step=$1
shift
case $step in
  stage | list | installer) "$step" "$@" ;;
  zip) archive "$@" ;;
  *) die "unknown step $step" ;;
esac
