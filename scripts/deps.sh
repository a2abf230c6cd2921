# Installs the Debian packages the program and its tests need, when any is missing.
# Sourced by scripts/run and scripts/test.
PAQUETES="cmake ninja-build g++ pkg-config qt6-base-dev qt6-base-dev-tools qt6-multimedia-dev
  libgl-dev libespeak-ng-dev espeak-ng-data libgtest-dev fonts-dejavu-core xvfb xauth
  clang-format"
faltan=""
for p in $PAQUETES; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || faltan="$faltan $p"
done
if [ -n "$faltan" ]; then
  echo "Installing:$faltan"
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq $faltan
fi
