#!/usr/bin/env bash
# prova.sh PROGRAM FOLDER VERSION GENERATOR...: makes the verification manual of what the test program writes.
set -euo pipefail
program=$1 folder=$2 version=$3
shift 3
texts=$(dirname "$(realpath "$0")")/../../docs/verification
SAGOMI_VERBALE=$folder/verbale.json "$program" --gtest_brief=1
"$@" "$folder/verbale.json" "$texts" "$folder/verifica.html" "$version"
# Every figure has found its place.
if grep -n '{{\|None\|nan' "$folder/verifica.html"; then exit 1; fi
