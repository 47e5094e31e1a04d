#!/usr/bin/env bash
# Sets up, builds and runs the reference host with four simulated cameras and the plug-in.
# Without a display it runs under Xvfb, presses the button and saves screenshots to out/demo/.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$root"
bash tools/setup.sh
bash tools/build.sh "$root/build"

host="$root/build/host/tarvix4host"
scenario="$root/host/scenarios/demo.json"
shots="$root/out/demo"
mkdir -p "$shots"

if [ -n "${DISPLAY:-}" ]; then
    exec "$host" --scenario "$scenario" "$@"
fi

echo "demo: no display; running under Xvfb, screenshots in $shots"
xvfb-run -a -s "-screen 0 1600x1000x24" "$host" --scenario "$scenario" \
    --prefs "$shots/prefs.ini" --record "$shots/record.jsonl" \
    --press synccontrol --script "$root/tools/demo-script.json" --quit "$@"
ls -1 "$shots"/*.png
