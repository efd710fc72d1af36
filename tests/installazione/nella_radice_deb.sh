#!/bin/bash
# nella_radice_deb.sh prova|toglie PACKAGE: installs the Debian package and works with it as a user; removes it.
set -euo pipefail
fail() { echo "$1" >&2; exit 1; }
user() { setpriv --reuid=prova --regid=prova --clear-groups env -i HOME=/home/prova PATH=/usr/local/bin:/usr/bin:/bin \
  LANG=C.UTF-8 QT_QPA_PLATFORM=offscreen "$@"; }
data=/home/prova/.local/share/sagomi

toglie() {
  apt-get purge -qy sagomi >/dev/null
  left=$(find / -xdev -iname '*sagomi*' -not -path '/home/*' -not -path '/root/*' -not -path '/tmp/*' \
    -not -path '/proc/*' -not -path '/var/cache/apt/*')
  [ -z "$left" ] || fail "left behind: $left"
  [ -s $data/SagomiUtente.xls ] || fail "the user's own has gone"
  echo "removed without a trace"
}

prova() {
  apt-get update -q >/dev/null
  apt-get install -qy --no-install-recommends "$1" >/dev/null 2>/root/apt.txt || { cat /root/apt.txt; exit 1; }
  dpkg --verify sagomi
  [ -e /usr/share/man/man1/sagomi.1.gz ] || fail "no page of man" # a small system leaves documents out
  for document in Sagomi.pdf html/index.html verifica.pdf; do
    dpkg -L sagomi | grep -x "/usr/share/doc/sagomi/$document" >/dev/null || fail "no $document"
  done
  cd /home/prova
  [[ $(user sagomi --version) == "sagomi "[0-9]* ]] || fail "no version"
  [ ! -e $data ] || fail "asking for the version makes a folder"
  user sagomi --verifica "HEA 200" --N 400 | grep "HEA 200" >/dev/null || fail "no answer"

  # The object on the session bus is started by its file; the windows find their folder, help and settings.
  user apre_e_chiude.sh
  [ -s $data/Sagomi.ini ] || fail "no settings"
  cmp $data/Sagomi.xls /usr/share/sagomi/Sagomi.xls
  cmp $data/SagomiUtente.xls /usr/share/sagomi/SagomiUtente.xls
  [ ! -e $data/Sagomi.hlp ] || fail "the help was copied"

  # A joint's report has the formulas of the installation: without them it is shorter.
  user sagomi /usr/local/share/nodo.gfl --normativa EC3 --pdf /home/prova/nodo.pdf || [ $? -eq 1 ]
  mv /usr/share/sagomi/FormuleGiunto.rtf /root/
  user sagomi /usr/local/share/nodo.gfl --normativa EC3 --pdf /home/prova/senza.pdf || [ $? -eq 1 ]
  mv /root/FormuleGiunto.rtf /usr/share/sagomi/
  [ "$(stat -c %s /home/prova/nodo.pdf)" -gt "$(stat -c %s /home/prova/senza.pdf)" ] || fail "a report without formulas"

  # A newer catalogue is taken over, one that the user has changed stays.
  echo >>/usr/share/sagomi/Sagomi.xls
  user sagomi --verifica "HEA 200" >/dev/null || true
  cmp $data/Sagomi.xls /usr/share/sagomi/Sagomi.xls
  user sh -c "chmod u+w $data/Sagomi.xls; echo mia >>$data/Sagomi.xls"
  echo >>/usr/share/sagomi/Sagomi.xls
  user sagomi --verifica "HEA 200" >/dev/null || true
  tail -c 4 $data/Sagomi.xls | grep -q mia || fail "the user's catalogue was written over"
  rm $data/Sagomi.xls

  # A chosen folder; one that cannot be used; a disk that is full.
  user sagomi --cartella "/home/prova/altra cartella" --verifica "HEA 200" --N 400 >/dev/null
  [ -s "/home/prova/altra cartella/Sagomi.xls" ] || fail "the chosen folder was not filled"
  user sagomi --cartella /usr/share/sagomi/no --scelta 2>/root/detto.txt && fail "worked in a folder that is not there"
  grep -q "la cartella /usr/share/sagomi/no non si può usare: nella cartella non è permesso scrivere" /root/detto.txt ||
    fail "$(cat /root/detto.txt)"
  mkdir /mnt/piena
  mount -t tmpfs -o size=64k,mode=777 tmpfs /mnt/piena
  user XDG_DATA_HOME=/mnt/piena timeout 10 sagomi 2>/root/detto.txt || true # waits in front of its message
  grep -q "Non è possibile usare la cartella dei dati /mnt/piena/sagomi" /root/detto.txt || fail "$(cat /root/detto.txt)"
  umount -l /mnt/piena
  apt-get install -qy --reinstall --no-install-recommends "$1" >/dev/null 2>&1
  echo "works in the user's folder"
}

"$@"
