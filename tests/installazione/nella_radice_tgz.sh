#!/bin/bash
# nella_radice_tgz.sh prova|toglie ARCHIVE: unpacks the folder and works in it as a user, where nothing of Qt is.
set -euo pipefail
fail() { echo "$1" >&2; exit 1; }
user() { setpriv --reuid=prova --regid=prova --clear-groups env -i HOME=/home/prova PATH=/usr/local/bin:/usr/bin:/bin \
  LANG=C.UTF-8 QT_QPA_PLATFORM=offscreen "$@"; }
place="/home/prova/Programmi di Niccolò"

toglie() { echo "gone with its folder"; }

prova() {
  [ -z "$(find / -xdev -name 'libQt6*' -not -path '/home/*')" ] || fail "not a clean Debian"
  user mkdir -p "$place"
  install -m 644 "$1" /home/prova/archivio.tar.gz
  user tar -C "$place" --strip-components=1 -xf /home/prova/archivio.tar.gz
  cd "$place"
  for document in Sagomi.pdf html/index.html verifica.pdf; do
    [ -s "manuale/$document" ] || fail "no manuale/$document"
  done
  outside=$(ldd "$PWD/sagomi" | sed -n 's/.* => \(.*\) (0x.*/\1/p' | grep -vE "^$PWD/lib/|/lib(c|m|gcc_s|stdc\+\+)\.so" || true)
  [ -z "$outside" ] || fail "loads from the system: $outside"
  user ./sagomi --verifica "HEA 200" --N 400 | grep "HEA 200" >/dev/null || fail "no answer"
  user apre_e_chiude.sh ./sagomi-server
  [ -s Sagomi.ini ] || fail "the settings have not stayed"
  [ ! -e /home/prova/.local/share/sagomi ] || fail "worked elsewhere"

  # Unpacked again it leaves the user's own.
  cmp SagomiUtente.xls SagomiUtente-vuota.xls
  user sh -c "echo mia >>SagomiUtente.xls"
  user tar -C "$place" --strip-components=1 -xf /home/prova/archivio.tar.gz
  tail -c 4 SagomiUtente.xls | grep -q mia || fail "the user's sections have gone"
  cp SagomiUtente-vuota.xls SagomiUtente.xls

  # On a disk that is read-only the user's folder takes its place.
  mount --bind "$place" /mnt
  mount -o remount,bind,ro /mnt
  user apre_e_chiude.sh /mnt/sagomi-server
  [ -s /home/prova/.local/share/sagomi/Sagomi.ini ] || fail "no settings"
  umount -l /mnt
  rm -r /home/prova/.local/share/sagomi
  echo "works where it lies"
}

"$@"
