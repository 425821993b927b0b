#!/usr/bin/env bash
# Installs the Debian packages the build needs, if any is missing.
# Usage: scripts/deps.sh [extra-package ...]
set -euo pipefail

packages=(build-essential cmake pkg-config qtbase5-dev qttools5-dev qttools5-dev-tools fonts-wqy-microhei "$@")

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
SUDO=""
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Please install as root: ${missing[*]}" >&2; exit 1; }
    SUDO=sudo
fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
