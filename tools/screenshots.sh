#!/usr/bin/env bash
# Regenerates the README's screenshots of the sync dialog, the common dialogs and the region of
# interest under Xvfb (after tools/build.sh).
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
host="$root/build/host/tarvix4host"
out="$root/docs/screenshots"
mkdir -p "$out"
shoot() { # scenario, picture
    local prefs; prefs="$(mktemp -d)/prefs.ini"
    printf '[{"wait": 500}, {"screenshot": "%s"}, {"click": "Sync quit"}]' "$2" > "$prefs.script"
    xvfb-run -a -s "-screen 0 1600x1000x24" "$host" --scenario "$1" --prefs "$prefs" \
        --press synccontrol --script "$prefs.script" --auto-answer --quit > /dev/null
}
# A panel or dialog of the plug-in file opened by name: scenario, page, picture, the window to grab.
shoot_page() {
    local prefs; prefs="$(mktemp -d)/prefs.ini"
    printf '[{"wait": 800}, {"screenshot": "%s", "window": "%s"}]' "$3" "$4" > "$prefs.script"
    xvfb-run -a -s "-screen 0 1600x1000x24" "$host" --scenario "$1" --prefs "$prefs" \
        --open "$2" --script "$prefs.script" --quit > /dev/null
}
shoot "$root/tools/screenshots/external.json" "$out/external-no-distributor.png"
shoot "$root/tools/screenshots/chain-nrack.json" "$out/chain-nrack.png"
shoot "$root/host/scenarios/hubs.json" "$out/link-core-hubs.png"
shoot_page "$root/host/scenarios/host-status.json" hoststatus "$out/host-status-panel.png" hoststatus
# The region of interest's page and its rectangle on a document, dragged by its corner.
roi_prefs="$(mktemp -d)/prefs.ini"
printf '[{"press": "roi"}, {"wait": 500}, {"mouse": {"document": 1, "press": [10, 10]}},
  {"mouse": {"document": 1, "release": [10, 10]}},
  {"drag": {"document": 1, "from": [215, 161], "to": [250, 190], "steps": 5}},
  {"wait": 300}, {"screenshot": "%s"}]' "$out/roi-rectangle.png" > "$roi_prefs.script"
xvfb-run -a -s "-screen 0 1600x1000x24" "$host" --scenario "$root/host/scenarios/roi.json" \
    --prefs "$roi_prefs" --script "$roi_prefs.script" --quit > /dev/null
ls -1 "$out"
