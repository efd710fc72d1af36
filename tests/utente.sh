#!/bin/sh
# utente.sh PROGRAM [ARGUMENT...]: runs a test program as a user without privileges, also where the tests are run
# by root, to whom no right means anything. The program is copied to where that user may read it.
set -eu
[ "$(id -u)" -eq 0 ] || exec "$@"
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
chmod 755 "$place"
install -m 755 "$1" "$place/prova"
shift
mkdir -m 777 "$place/tmp"
cd "$place/tmp"
TMPDIR=$place/tmp HOME=$place/tmp setpriv --reuid=65534 --regid=65534 --clear-groups "$place/prova" "$@"
