#!/bin/sh
# cartella.sh BUILD FOLDER VERSION: puts the folder that holds all the program needs into a place whose name has
# blanks and accents, and works there: no library comes from elsewhere, the settings stay beside the program.
set -eu
fail() { echo "$1" >&2; exit 1; }
here=$(cd "$(dirname "$0")" && pwd)

place="$2/Programmi di Niccolò/\"\$2026\""
home="$2/casa"
rm -rf "$2"
mkdir -p "$place" "$home"
cmake --install "$1" --component cartella --prefix "$place/sagomi" >/dev/null
cd "$place/sagomi"
for file in Sagomi.xls SagomiUtente-vuota.xls Sagomi.hlp GiuntoFlangiato.hlp FormuleGiunto.rtf LEGGIMI.txt LICENSE; do
  [ -s "$file" ] || fail "no $file"
done

# The licences of what lies beside the program and of what is in it.
for package in libqt6core6 libgsf-1-dev; do
  [ -s "licenze/$package.txt" ] || fail "no licence of $package"
done

# Whatever the system has of the toolkit plays no part. A plugin is loaded by the program, whose path it shares.
outside() { ldd "$PWD/$1" | grep -E 'libQt6|libgsf|libsqlite3|libX|libxcb|not found' | grep -vF "$PWD/lib/" || true; }
[ -z "$(outside sagomi)$(outside sagomi-server)" ] || fail "loads from elsewhere: $(outside sagomi)"
[ -z "$(LD_LIBRARY_PATH=$PWD/lib outside lib/plugins/platforms/libqxcb.so)" ] || fail "the platform loads from elsewhere"

run() {
  env -i HOME="$home" PATH="$PATH" LANG=C.UTF-8 QT_QPA_PLATFORM=offscreen "$@"
}
[ "$(run ./sagomi --version)" = "sagomi $3" ] || fail "another version"
run ./sagomi --verifica "HEA 200" --N 400 | grep -q "HEA 200" || fail "no answer"
run "$here/apre_e_chiude.sh" ./sagomi-server
[ -s Sagomi.ini ] || fail "the settings have not stayed"
[ ! -e "$home/.local/share/sagomi" ] || fail "worked in the user's folder"

# Unpacked again over itself it leaves the user's own.
cmp SagomiUtente.xls SagomiUtente-vuota.xls || fail "the first start has not made the user's workbook"
echo mia >>SagomiUtente.xls
cmake --install "$1" --component cartella --prefix "$PWD" >/dev/null
tail -c 4 SagomiUtente.xls | grep -q mia || fail "the user's sections have gone"
cp SagomiUtente-vuota.xls SagomiUtente.xls

# Working in another folder it finds the formulas where it lies.
run ./sagomi "$here/nodo.gfl" --normativa EC3 --cartella "$2/lavori" --pdf "$2/nodo.pdf" || [ $? -eq 1 ]
pdftotext -layout "$2/nodo.pdf" - | grep -qF "⌈t" || fail "a report without formulas"

# In the menu and out of it; what its entry starts is this program, whatever its path.
menu=$home/.local/share/applications/org.sagomi.Sagomi.desktop
run ./nel-menu
desktop-file-validate "$menu"
printf '#!/bin/sh\nprintf "%%s\\n" "$0" "$@" >"%s"\n' "$2/avviato" >spia
chmod +x spia && mv sagomi vero && mv spia sagomi
run gio launch "$menu" "$here/cartella.sh"
for _ in $(seq 100); do [ -s "$2/avviato" ] && break; sleep 0.1; done
[ "$(cat "$2/avviato")" = "$PWD/sagomi
$here/cartella.sh" ] || fail "the menu starts $(cat "$2/avviato")"
mv vero sagomi

# The bus starts the server of this folder, whatever its path.
run XDG_DATA_HOME="$home/.local/share" "$here/apre_e_chiude.sh" || fail "the bus does not start the server"
run ./nel-menu --togli
[ -z "$(find "$home/.local" -name '*agomi*')" ] || fail "still in the menu"

# What is copied elsewhere works there, with what the user has in it.
sed -i 's/^25\r/33\r/' Sagomi.ini # the strength of the concrete
run cp -r . "$2/altrove"
cd "$2/altrove"
run "$here/apre_e_chiude.sh" ./sagomi-server
grep -q "^33" Sagomi.ini || fail "the settings have not come along"
rm -rf "$2"
echo "works where it lies"
