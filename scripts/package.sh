#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the Debian packages, build/release/varnholt_VERSION_ARCHITECTURE.deb and varnholt-web.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh

install_packages "${build_packages[@]}" dpkg-dev file
build_preset release varnholt varnholt-script
say "Packing"
cd build/release
cpack -G DEB
