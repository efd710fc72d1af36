#!/usr/bin/env bash
# prova.sh BIN DATA: the program in a pipe and in a script, and in a window with the file that it is given.
set -uo pipefail
bin=$1 data=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work/casa XDG_DATA_HOME=$work/casa/dati XDG_CONFIG_HOME=$work/casa/config
mkdir -p "$HOME"
unset QT_QPA_PLATFORM # real windows are looked for
bad=0
fail() {
  echo "$*" >&2
  bad=1
}

# A thousand jobs; three of them are what a call of its own answers.
for i in $(seq 1000); do
  case $((i % 3)) in
    0) echo "{\"verifica\":\"HEA 200\",\"N\":$i.5,\"My\":10,\"L0y\":3,\"L0z\":3}" ;;
    1) echo "{\"verifica\":\"L 100x100x10\",\"N\":$i,\"L0y\":2,\"doppi\":10}" ;;
    2) echo "{\"verifica\":\"UPN 200\",\"N\":$i,\"L0z\":1.5}" ;;
  esac
done >"$work/lavori"
timeout 60 "$bin/sagomi" --json --acciaio S275 <"$work/lavori" >"$work/risposte"
status=$?
[ $status -eq 1 ] || fail "the jobs end with $status: some hold, some do not"
[ "$(wc -l <"$work/risposte")" -eq 1000 ] || fail "$(wc -l <"$work/risposte") answers to 1000 jobs"
[ "$(grep -c '"verificato":' "$work/risposte")" -eq 1000 ] || fail "an answer without a verdict"
risposta() {
  local number=$1
  shift
  "$bin/sagomi" --verifica "$@" --acciaio S275 --json >"$work/sola"
  sed -n "${number}p" "$work/risposte" | cmp -s - "$work/sola" || fail "job $number is not what '$*' answers"
}
risposta 12 "HEA 200" --N 12.5 --My 10 --L0y 3 --L0z 3
risposta 400 "L 100x100x10" --N 400 --L0y 2 --doppi 10
risposta 998 "UPN 200" --N 998 --L0z 1.5

# Who reads the first line alone has it.
timeout 60 "$bin/sagomi" --scelta --N 100 --L0z 3 2>"$work/errori" | head -1 >"$work/testa"
grep -q '^sagomo' "$work/testa" || fail "no table in a pipe"

# A session without a folder of its own is nothing to tell.
env -u XDG_RUNTIME_DIR "$bin/sagomi" "IPE 300" --pdf "$work/trave.pdf" >"$work/detto" 2>&1 || fail "no pdf"
[ -s "$work/detto" ] && fail "a pdf says: $(cat "$work/detto")"
head -c 5 "$work/trave.pdf" | grep -q '%PDF-' || fail "no pdf is written"

# What is told about the same workbook is told once.
mkdir "$work/danno"
cp "$bin/Sagomi.xls" "$work/danno" && echo ciao >"$work/danno/SagomiUtente.xls"
"$bin/sagomi" --scelta --cartella "$work/danno" --N 100 --csv 2>"$work/errori" >"$work/detto"
[ "$(sort "$work/errori" | uniq -d)" = "" ] || fail "twice: $(sort "$work/errori" | uniq -d)"
"$bin/sagomi" --scelta --cartella /proc/xx 2>"$work/errori"
[ $? -eq 2 ] || fail "/proc/xx is a folder"
grep -q "pieno" "$work/errori" && fail "/proc is no full disk: $(cat "$work/errori")"

# The completion knows the families.
completa() { # WORD
  COMP_WORDS=(sagomi --famiglie "$1") COMP_CWORD=2 COMPREPLY=()
  _sagomi
  echo "${COMPREPLY[*]}"
}
# shellcheck source=/dev/null
source "$(dirname "$0")/../../data/comando/sagomi.bash"
[ "$(completa IPE,HEA)" = "IPE,HEA IPE,HEAA" ] || fail "families behind a comma: $(completa IPE,HEA)"
[ "$(completa UP)" = "UPN" ] || fail "families: $(completa UP)"

# The file of a joint and that of a beam open their screens.
schermo() { # FILE TITLE
  xvfb-run -a -s "-screen 0 1366x768x24" bash -c '
    "$0/sagomi" "$1" 2>/dev/null &
    for _ in $(seq 150); do
      xwininfo -root -tree 2>/dev/null | grep -qF "\"$2" && break
      sleep 0.1
    done
    xwininfo -root -tree | grep -qF "\"$2"
    found=$?
    kill $!
    wait $! 2>/dev/null
    exit $found' "$bin" "$1" "$2" || fail "$1 does not open \"$2\""
}
# In an Italian locale: in others the program greets with a word about the decimal separator.
if command -v xvfb-run >/dev/null && command -v xwininfo >/dev/null &&
  localedef -i it_IT -f UTF-8 "$work/it_IT.UTF-8" 2>/dev/null; then
  export LOCPATH=$work
  export LC_ALL=it_IT.UTF-8
  schermo "$data/joints/nodo.Gfl" "Giunto Flangiato - F1 per aiuto - File: nodo.Gfl"
  schermo "$data/composite/piena.sco" "AcciaioCls/Flessione - File: piena.sco"
fi
exit $bad
