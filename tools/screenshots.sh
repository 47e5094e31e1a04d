#!/usr/bin/env bash
# Regenerates the README's screenshots of the sync dialog and the common dialogs under Xvfb
# (after tools/build.sh).
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
# A modal dialog of the plug-in file opened by name: scenario, page, picture, then the main window
# after the page's Cancel (optional).
shoot_dialog() {
    local prefs; prefs="$(mktemp -d)/prefs.ini"
    local after=""
    if [ -n "${4:-}" ]; then after=", {\"wait\": 300}, {\"screenshot\": \"$4\"}"; fi
    printf '[{"wait": 1000}, {"screenshot": "%s"}, {"js": "$(\x27.hostpage-cancel\x27).click(); 0"}%s]' \
        "$3" "$after" > "$prefs.script"
    xvfb-run -a -s "-screen 0 1600x1000x24" "$host" --scenario "$1" --prefs "$prefs" \
        --open "$2" --script "$prefs.script" --quit > /dev/null
}
shoot "$root/tools/screenshots/external.json" "$out/external-no-distributor.png"
shoot "$root/tools/screenshots/chain-nrack.json" "$out/chain-nrack.png"
shoot "$root/host/scenarios/hubs.json" "$out/link-core-hubs.png"
shoot_page "$root/host/scenarios/host-status.json" hoststatus "$out/host-status-panel.png" hoststatus
info="$root/host/scenarios/information.json"
shoot_dialog "$info" editinfo "$out/edit-info.png" "$out/information-overlay.png"
shoot_dialog "$info" saveinfoview "$out/save-info-view.png"
shoot_dialog "$info" prefs_customize_timecode "$out/time-code.png"
shoot_dialog "$info" commentview "$out/comments.png"
shoot_dialog "$info" shutterspeed_format_dialog "$out/format-shutter-speed.png"
shoot_dialog "$info" recordrate_format_dialog "$out/format-record-rate.png"
shoot_dialog "$info" frame_format_dialog "$out/format-frame.png"
shoot_dialog "$info" rectime_format_dialog "$out/format-recording-time.png"
ls -1 "$out"
