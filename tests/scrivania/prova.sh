#!/bin/sh
# prova.sh BUILD FOLDER: installs the program's part of a build into the folder, then has the tools of the desktop
# judge what it finds there, and asks them what the program's files are.
set -eu
fail() { echo "$1" >&2; exit 1; }

rm -rf "$2"
mkdir -p "$2"
cmake --install "$1" --component programma --prefix "$2/usr" >/dev/null
share=$2/usr/share
name=org.sagomi.Sagomi

desktop-file-validate "$share/applications/$name.desktop"
appstreamcli validate --no-net "$share/metainfo/$name.metainfo.xml"
xmllint --noout "$share/mime/packages/$name.xml" "$share/metainfo/$name.metainfo.xml"
for icon in apps/$name mimetypes/application-x-sagomi-giunto mimetypes/application-x-sagomi-trave; do
  file=$share/icons/hicolor/scalable/$icon.svg
  xmllint --noout "$file"
  rsvg-convert -w 48 -h 48 "$file" -o "$2/icona.png"
  [ -s "$2/icona.png" ] || fail "$file draws nothing"
done

# What the entry of the menu starts and shows is there.
[ -x "$2/usr/bin/$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$share/applications/$name.desktop")" ] || fail "no program"
[ "$(sed -n 's/^Icon=//p' "$share/applications/$name.desktop")" = "$name" ] || fail "another icon"
for file in Sagomi.hlp GiuntoFlangiato.hlp FormuleGiunto.rtf Sagomi.xls; do
  [ -s "$share/sagomi/$file" ] || fail "no $file"
done

# A file manager knows the files, whatever the case of their letters, and who opens them.
export XDG_DATA_DIRS="$share" XDG_DATA_HOME="$share"
update-mime-database "$share/mime"
update-desktop-database "$share/applications"
knows() {
  echo 0 >"$2" # an empty file is plain text, whatever its name
  found=$(gio info -a standard::content-type "$2" |
          sed -n 's/.*standard::content-type: //p')
  [ "$found" = "$1" ] || fail "$2 is $found, not $1"
  grep -q "^$1=.*$name.desktop" "$share/applications/mimeinfo.cache" || fail "nobody opens $1"
}
knows application/x-sagomi-giunto "$2/nodo.Gfl"
knows application/x-sagomi-giunto "$2/nodo.gfl"
knows application/x-sagomi-trave "$2/trave.Sco"
knows application/x-sagomi-trave "$2/trave.sco"
rm -rf "$2"
echo "known to the desktop"
