#!/bin/sh
# prepara.sh FOLDER LOCALE...: makes locales in a folder, which LOCPATH then names; those that are there stay.
set -eu
folder=$1
shift
mkdir -p "$folder"
for l in "$@"; do
  [ -d "$folder/$l.UTF-8" ] || localedef -i "$l" -f UTF-8 "$folder/$l.UTF-8" || [ -d "$folder/$l.UTF-8" ]
done
