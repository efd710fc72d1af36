#!/usr/bin/env bash
# segui_sagomi.sh: opens Sagomi from another program and writes a line for each section that the user goes to, until
# he closes Sagomi. Ctrl+C leaves Sagomi open; "segui_sagomi.sh --chiudi" closes it.
set -euo pipefail

nome=Sagomi_v6.SezioneSagomi
oggetto=(--session --dest "$nome" --object-path /SezioneSagomi)

chiama() { gdbus call "${oggetto[@]}" --method "$nome.$1" >/dev/null; }

# valore MEMBER: a member of the object, as plain text.
valore() {
  gdbus call "${oggetto[@]}" --method org.freedesktop.DBus.Properties.Get "$nome" "$1" |
    sed "s/^(<//; s/>,)\$//; s/^int16 //; s/^'//; s/'\$//"
}

if [ "${1:-}" = --chiudi ]; then
  chiama Quit
  exit
fi

# The events are listened for before the object is created: the first row is told of, too.
coproc ascolto { exec gdbus monitor "${oggetto[@]}"; }
eventi=${ascolto[0]:-}
monitor=${ascolto_PID:-}
trap 'kill "$monitor" 2>/dev/null || true' EXIT
riga=
until [[ $riga == *"is owned by"* ]]; do
  if ! read -r -t 30 riga <&"$eventi"; then
    echo "Sagomi non risponde sul bus di sessione" >&2
    exit 1
  fi
done

if ! errore=$(chiama Class_Initialize 2>&1); then
  if [[ $errore != *OggettoEsistente* ]]; then
    echo "$errore" >&2
    exit 1
  fi
  echo "Sagomi è già aperto: lo seguo"
fi

while read -r riga <&"$eventi"; do
  case $riga in
    *.ComunicaSagomo*)
      echo "$(valore Designation): h $(valore h) mm, b $(valore b) mm, A $(valore Area) mm2, Jy $(valore Jy) mm4, curve $(valore CurvaY) e $(valore CurvaZ)" ;;
    *.SagomiQuit* | *"does not have an owner"*)
      echo "Sagomi è stato chiuso"
      break ;;
  esac
done
