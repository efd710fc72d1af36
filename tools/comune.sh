# Shared by ./run and ./test: what the project needs from Debian, and how a tree is built.
# Sourced, not run.

pacchetti_programma=(
  g++ cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-translations-l10n
  libfontconfig-dev libgsf-1-dev libsqlite3-dev
  fonts-dejavu-core
)
pacchetti_schermo=(xvfb xauth imagemagick x11-utils)
pacchetti_misure=(libbenchmark-dev libboost-dev libgeos-dev libfreexl-dev libx11-dev libxdamage-dev libxtst-dev locales speedcrunch)
pacchetti_pacchetto=(binutils debootstrap dpkg-dev file lintian util-linux)
pacchetti_manuale=(weasyprint python3 python3-bs4 fonts-stix)
pacchetti_prove=(
  "${pacchetti_manuale[@]}"
  libgtest-dev libgmock-dev libfreexl-dev
  python3 python3-xlrd python3-ezdxf
  poppler-utils
  dbus-daemon libglib2.0-bin
  locales
  desktop-file-utils appstream libxml2-utils shared-mime-info librsvg2-bin
  clang clang-format clang-tidy
)

# installa PACKAGE...: installs those that are missing, with sudo when not root.
installa() {
  local missing=() p
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'ok installed' || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return
  echo "Installing: ${missing[*]}"
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Need root or sudo to install: ${missing[*]}" >&2; exit 1; }
    root=(sudo)
  fi
  "${root[@]}" apt-get update -q
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -yq --no-install-recommends "${missing[@]}"
}

# costruisce PRESET [TARGET...]: configures and builds one tree.
costruisce() {
  local preset=$1
  shift
  local targets=()
  [ $# -gt 0 ] && targets=(--target "$@")
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" "${targets[@]}"
}
