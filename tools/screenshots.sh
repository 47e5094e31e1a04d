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
# A panel or dialog of the plug-in file opened by name: scenario, page, picture, the window to grab
# (none: the main window).
shoot_page() {
    local prefs; prefs="$(mktemp -d)/prefs.ini"
    printf '[{"wait": 800}, {"screenshot": "%s"%s}]' "$3" "${4:+, \"window\": \"$4\"}" \
        > "$prefs.script"
    xvfb-run -a -s "-screen 0 1600x1000x24" "$host" --scenario "$1" --prefs "$prefs" \
        --open "$2" --script "$prefs.script" --quit > /dev/null
}
# A dialog of the plug-in file opened by name: scenario, page[:arg], picture, what the page does
# first (script), the button that then cancels it. Run from the root, where the scenarios find
# the camera name list.
shoot_dialog() {
    local prefs; prefs="$(mktemp -d)/prefs.ini"
    printf '[{"js": "%s; 0"}, {"wait": 800}, {"screenshot": "%s"}, {"js": "$(\x27#%s\x27).click(); 0"}]' \
        "$4" "$3" "$5" > "$prefs.script"
    (cd "$root" && xvfb-run -a -s "-screen 0 1600x1000x24" "$host" --scenario "$1" --prefs "$prefs" \
        --open "$2" --script "$prefs.script" --quit > /dev/null)
}
# A file dialog opened by its kind: scenario, page, picture, steps before the shot; cancelled after.
shoot_filedialog() {
    local prefs; prefs="$(mktemp -d)/prefs.ini"
    printf '[%s{"wait": 800}, {"screenshot": "%s"}, {"js": "$(\\"#cancel, .hostpage-cancel\\").first().click(); 1"}]' \
        "${4:-}" "$3" > "$prefs.script"
    xvfb-run -a -s "-screen 0 1600x1000x24" "$host" --scenario "$1" --prefs "$prefs" \
        --open "$2" --script "$prefs.script" --quit > /dev/null
}
# A modal dialog of the plug-in file opened by name: scenario, page, picture, then the main window
# after the page's Cancel (optional).
shoot_info_dialog() {
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
shoot_dialog "$root/host/scenarios/custom-info.json" custominfo "$out/custom-info.png" \
    "\$('#devices tbody tr').eq(1).find('input').click(); \$('#items tbody tr').eq(0).click()" \
    custominfo_cancel
shoot_dialog "$root/host/scenarios/devices.json" livecontrol_adddevice "$out/add-device.png" \
    "\$('#cameraName').val('ea').catcomplete('search', 'ea')" adddevice_cancel
shoot_dialog "$root/host/scenarios/devices.json" livecontrol_editdevice "$out/edit-device.png" \
    "0" editdevice_cancel
shoot_dialog "$root/host/scenarios/devices.json" livecontrol_searchsetting \
    "$out/camera-search-setting.png" "0" searchsetting_cancel
shoot_filedialog "$root/host/scenarios/save.json" filesavedialog "$out/save-dialog.png" \
    '{"js": "filedialogPage.check(2, 1, true); 1"}, '
shoot_filedialog "$root/host/scenarios/media.json" fileopendialog "$out/open-dialog.png" \
    '{"js": "$(\"#openSd\").click(); filedialogPage.check(3, 1, true); 1"}, '
shoot_filedialog "$root/host/scenarios/save.json" addnumberdialog:2 "$out/number-dialog.png"
shoot_filedialog "$root/host/scenarios/save.json" convertparametereditdialog \
    "$out/conversion-settings.png"
info="$root/host/scenarios/information.json"
shoot_info_dialog "$info" editinfo "$out/edit-info.png" "$out/information-overlay.png"
shoot_info_dialog "$info" saveinfoview "$out/save-info-view.png"
shoot_info_dialog "$info" prefs_customize_timecode "$out/time-code.png"
shoot_info_dialog "$info" commentview "$out/comments.png"
shoot_info_dialog "$info" shutterspeed_format_dialog "$out/format-shutter-speed.png"
shoot_info_dialog "$info" recordrate_format_dialog "$out/format-record-rate.png"
shoot_info_dialog "$info" frame_format_dialog "$out/format-frame.png"
shoot_info_dialog "$info" rectime_format_dialog "$out/format-recording-time.png"
cameras="$root/host/scenarios/camera-settings.json"
shoot_dialog "$cameras" camerasettings:file "$out/camera-settings-file.png" "0" camerasettings_cancel
shoot_dialog "$cameras" camerasettings:preset "$out/camera-settings-presets.png" \
    "\$('#presets select').first().val('1').change()" camerasettings_cancel
shoot_page "$cameras" devicelist "$out/device-list.png" devicelist
shoot_page "$cameras" devicecontrol "$out/device-control.png" devicecontrol
shoot_page "$cameras" selectbox:partition "$out/select-box.png"
# The region of interest's page and its rectangle on a document, dragged by its corner.
roi_prefs="$(mktemp -d)/prefs.ini"
printf '[{"press": "roi"}, {"wait": 500}, {"mouse": {"document": 1, "press": [10, 10]}},
  {"mouse": {"document": 1, "release": [10, 10]}},
  {"drag": {"document": 1, "from": [215, 161], "to": [250, 190], "steps": 5}},
  {"wait": 300}, {"screenshot": "%s"}]' "$out/roi-rectangle.png" > "$roi_prefs.script"
xvfb-run -a -s "-screen 0 1600x1000x24" "$host" --scenario "$root/host/scenarios/roi.json" \
    --prefs "$roi_prefs" --script "$roi_prefs.script" --quit > /dev/null
# Removable media panels and the storage unit's password dialogs.
shoot_page "$root/host/scenarios/media-panels.json" savesd "$out/media-panel-sd.png" savesd
shoot_info_dialog "$root/host/scenarios/media-panels.json" change_password_dialog \
    "$out/change-password-dialog.png"
shoot_info_dialog "$root/host/scenarios/media-panels.json" input_password_dialog \
    "$out/input-password-dialog.png"
ls -1 "$out"
