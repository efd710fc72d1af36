#!/usr/bin/env bash
# prova.sh BIN: the program itself where the system fails it: a full device, jobs that cannot be read, a folder, a pipe
# or nothing in the workbook's place, no screen, no session bus; and where its caller errs. Each time it says why, in Italian, and comes back.
set -uo pipefail
bin=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work/casa XDG_DATA_HOME=$work/casa/dati XDG_CONFIG_HOME=$work/casa/config QT_QPA_PLATFORM=offscreen
mkdir -p "$HOME"
bad=0

# attende STATUS TEXT COMMAND...: the command ends so within 60 s and says so on its error output.
attende() {
  local status=$1 text=$2
  shift 2
  timeout 60 "$@" >"$work/uscita" 2>"$work/errori"
  local found=$?
  if [ "$found" -ne "$status" ] || ! grep -q "$text" "$work/errori"; then
    echo "$*: status $found instead of $status; said: $(cat "$work/errori")" >&2
    bad=1
  fi
}

for formato in --csv --json ""; do
  attende 2 "non è possibile scrivere la risposta" \
    bash -c "exec '$bin/sagomi' --scelta $formato --famiglie IPE >/dev/full"
done
attende 2 "i lavori non si possono leggere" bash -c "exec '$bin/sagomi' --json </"
attende 2 "i lavori non si possono leggere" bash -c "exec '$bin/sagomi' --json <&-"

# A program of its own, with something else where its workbook should be.
mkdir "$work/programma"
cp "$bin/sagomi" "$work/programma"
for cosa in niente cartella pipa; do
  rm -rf "$work/programma/Sagomi.xls"
  [ $cosa = cartella ] && mkdir "$work/programma/Sagomi.xls"
  [ $cosa = pipa ] && mkfifo "$work/programma/Sagomi.xls"
  attende 2 "Sagomi.xls" "$work/programma/sagomi" --verifica "HEA 200"
done

# Installed, for a user whose folder cannot be made: the installed workbook answers.
mkdir -p "$work/usr/bin" "$work/usr/share/sagomi"
cp "$bin/sagomi" "$work/usr/bin"
cp "$bin/Sagomi.xls" "$work/usr/share/sagomi"
XDG_DATA_HOME=/proc attende 0 "Non è possibile usare la cartella dei dati /proc/sagomi" \
  "$work/usr/bin/sagomi" --verifica "HEA 200" --N 400

# Without a screen, or with one that does not answer; a typing error is one with a screen, too.
cieco() { attende 2 "$1" env -u QT_QPA_PLATFORM -u DISPLAY -u WAYLAND_DISPLAY "${@:2}"; }
cieco "non c'è uno schermo" "$bin/sagomi" giunto.gfl
cieco "non c'è uno schermo" "$bin/sagomi"
cieco "non c'è uno schermo" DISPLAY=:4711 "$bin/sagomi" giunto.gfl
if [ "$(wc -l <"$work/errori")" -ne 1 ]; then
  echo "more than one line: $(cat "$work/errori")" >&2
  bad=1
fi
cieco '"--verifca" non è un' "$bin/sagomi" --verifca "HEA 200"
attende 2 '"--verifca" non è un' "$bin/sagomi" --verifca "HEA 200"

DBUS_SESSION_BUS_ADDRESS=unix:path=$work/manca attende 1 "bus di sessione" "$bin/sagomi-server"
exit $bad
