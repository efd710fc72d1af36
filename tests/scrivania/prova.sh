#!/bin/sh
# prova.sh BUILD FOLDER VERSION: installs the program's part of a build into the folder, then has the tools of the desktop
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

# The version is one.
[ "$("$2/usr/bin/sagomi" --version)" = "sagomi $3" ] || fail "the program is of another version"
grep -q "<release version=\"$3\"" "$share/metainfo/$name.metainfo.xml" || fail "the metainfo is of another version"
head -1 "$share/man/man1/sagomi.1" | grep -q "\"Sagomi $3\"" || fail "the page of man is of another version"
head -1 "$share/doc/sagomi/changelog" | grep -qF "sagomi ($3)" || fail "the history is of another version"

# With a site the metainfo has its pictures.
cmake -DSAGOMI_SITO=https://sagomi.example -DPROJECT_VERSION="$3" -Dsagomi_data=2026-01-01 -Dcomposti="$2" \
  -P "$(dirname "$0")/../../cmake/Metainfo.cmake"
grep -c '<image>https://sagomi.example/' "$2/$name.metainfo.xml" | grep -qx 2 || fail "no pictures"
appstreamcli validate --no-net "$2/$name.metainfo.xml"

# What the entry of the menu starts and shows is there.
[ -x "$2/usr/bin/$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$share/applications/$name.desktop")" ] || fail "no program"
[ "$(sed -n 's/^Icon=//p' "$share/applications/$name.desktop")" = "$name" ] || fail "another icon"
# So is what the session bus starts, under the name that it is asked for.
service=$share/dbus-1/services/Sagomi_v6.SezioneSagomi.service
[ "$(sed -n 's/^Name=//p' "$service")" = "$(basename "$service" .service)" ] || fail "the service has another name"
server=$(sed -n 's/^Exec="\(.*\)"$/\1/p' "$service")
[ -x "$server" ] || fail "the service starts $server, which is not there"
for file in Sagomi.hlp GiuntoFlangiato.hlp FormuleGiunto.rtf Sagomi.xls; do
  [ -s "$share/sagomi/$file" ] || fail "no $file"
done

# A file manager knows the files, whatever the case of their letters, and who opens them.
export XDG_DATA_DIRS="$share" XDG_DATA_HOME="$share" XDG_CONFIG_HOME="$2" PATH="$2/usr/bin:$PATH"
update-mime-database "$share/mime"
update-desktop-database "$share/applications"
knows() {
  echo 0 >"$2" # an empty file is plain text, whatever its name
  found=$(gio info -a standard::content-type "$2" |
          sed -n 's/.*standard::content-type: //p')
  [ "$found" = "$1" ] || fail "$2 is $found, not $1"
  grep -q "^$1=.*$name.desktop" "$share/applications/mimeinfo.cache" || fail "nobody opens $1"
  gio info -a standard::icon "$2" | grep -q " application-${1#*/}" || fail "$2 has no icon of its own"
  gio mime "$1" | head -1 | grep -q "$name.desktop" || fail "another program opens $1"
}
knows application/x-sagomi-giunto "$2/nodo.Gfl"
knows application/x-sagomi-giunto "$2/nodo.gfl"
knows application/x-sagomi-trave "$2/trave.Sco"
knows application/x-sagomi-trave "$2/trave.sco"

# A double click starts the program with the file, whatever its name.
mkdir "$2/spia"
printf '#!/bin/sh\nprintf "%%s\\n" "$@" >"%s"\n' "$2/aperto.tmp" >"$2/spia/sagomi"
echo "mv '$2/aperto.tmp' '$2/aperto'" >>"$2/spia/sagomi"
chmod +x "$2/spia/sagomi"
opens() {
  rm -f "$2/aperto"
  echo 0 >"$1"
  PATH=$2/spia:$PATH gio open "$1"
  for _ in $(seq 100); do [ -e "$2/aperto" ] && break; sleep 0.1; done
  [ "$(cat "$2/aperto")" = "$1" ] || fail "$1 opens $(cat "$2/aperto")"
}
opens "$2/nodo di Niccolò \$1.gfl" "$2"
opens "$2/trave 50%.SCO" "$2"
rm -rf "$2"
echo "known to the desktop"
