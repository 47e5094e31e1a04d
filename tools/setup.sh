#!/usr/bin/env bash
# Installs everything the build, the tests and the demo need (Debian bookworm, as root).
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
mapfile -t packages < <(grep -v -E '^\s*(#|$)' "$here/apt-packages.txt")

missing=()
for p in "${packages[@]}"; do
    # A Node.js that brings its own npm (not Debian's) serves as well, and conflicts with it.
    if [ "$p" = npm ] && command -v npm > /dev/null; then continue; fi
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ "${#missing[@]}" -gt 0 ]; then
    echo "setup: installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -q
    apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

# The reference host's page libraries, from the committed lock file (host/web).
web="$here/../host/web"
if [ ! -d "$web/node_modules" ]; then
    echo "setup: npm ci in host/web"
    (cd "$web" && npm ci --no-audit --no-fund)
fi
