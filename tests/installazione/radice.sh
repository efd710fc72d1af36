#!/usr/bin/env bash
# radice.sh DEBIAN.tar PACKAGE FOLDER: unpacks a clean Debian and tries a package in it, as root of a mount namespace
# of its own. FOLDER receives a picture of the first screen.
set -euo pipefail
here=$(realpath "$(dirname "$0")")
root=$(mktemp -d)
trap 'umount -l "$root/proc" "$root/tmp/.X11-unix" "$root" 2>/dev/null || true; rmdir "$root"' EXIT
mount --make-rprivate /
mount -t tmpfs tmpfs "$root"
tar -C "$root" -xf "$1"
chmod 755 "$root"
mount -t proc proc "$root/proc"
cp /etc/resolv.conf "$root/etc/"
mkdir -m 1777 -p "$root/tmp/.X11-unix"
install -m 755 "$here"/apre_e_chiude.sh "$here"/nella_radice_*.sh "$root/usr/local/bin/"
install -D -m 644 "$here/nodo.gfl" "$root/usr/local/share/nodo.gfl"
cp "$2" "$root/root/"
chroot "$root" useradd --create-home prova
export LANG=C.UTF-8 HOME=/root DEBIAN_FRONTEND=noninteractive
unset XDG_DATA_HOME XDG_CONFIG_HOME DISPLAY

case $2 in
  *.deb) kind=deb program=/usr/bin/sagomi ;;
  *) kind=tgz program="/home/prova/Programmi di Niccolò/sagomi" ;;
esac
chroot "$root" "nella_radice_$kind.sh" prova "/root/$(basename "$2")"

# In a real window of the display outside.
mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
export root program
picture=$3/primo-schermo-$kind.png xvfb-run -a -s "-screen 0 1366x768x24 -ac" bash -c '
  chroot --userspec=prova:prova "$root" env HOME=/home/prova LC_ALL=it_IT.UTF-8 DISPLAY="$DISPLAY" "$program" 2>/dev/null &
  for _ in $(seq 150); do
    xwininfo -root -tree 2>/dev/null | grep -q "\"Doppio T" && break
    sleep 0.1
  done
  sleep 1
  xwininfo -root -tree | grep -q "\"Doppio T" || { echo "no window" >&2; exit 1; }
  import -window root "$picture"
  kill %1
'
chroot "$root" "nella_radice_$kind.sh" toglie "/root/$(basename "$2")"
