#!/usr/bin/env bash
# Installs the Debian packages that the build and the tests need, if any is
# missing (clang-tidy runs make lint; Xvfb and x11-utils let the tests start
# the desktop program in a real X display; poppler-utils reads back the
# printed PDFs; GDAL writes and reads the GIS layers, and its ogrinfo checks
# them in the tests).
set -euo pipefail
packages=(cmake ninja-build g++ clang clang-tidy make pkg-config
          qt6-base-dev libqt6svg6-dev libgl-dev
          nlohmann-json3-dev libabsl-dev libgtest-dev libgmock-dev libgdal-dev gdal-bin
          fonts-dejavu-core poppler-utils
          xvfb x11-utils locales)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
