#!/bin/sh
# apre_e_chiude.sh [SERVER]: opens the windows of the program through its object on a session bus, and closes them.
# Without a server the bus starts the one that is installed.
set -eu
if [ -z "${SAGOMI_BUS_DELLE_PROVE:-}" ]; then
  SAGOMI_BUS_DELLE_PROVE=1 exec dbus-run-session -- "$0" "$@"
fi
name=Sagomi_v6.SezioneSagomi
if [ $# -gt 0 ]; then
  "$1" &
  gdbus wait --session --timeout 30 $name
fi
for method in Class_Initialize Quit; do
  gdbus call --session --timeout 30 --dest $name --object-path /SezioneSagomi --method $name.$method >/dev/null
done
for _ in $(seq 100); do
  gdbus call --session --dest org.freedesktop.DBus --object-path / --method org.freedesktop.DBus.NameHasOwner $name |
    grep -q false && exit 0
  sleep 0.1
done
echo "the program does not end" >&2
exit 1
