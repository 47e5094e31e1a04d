// The host status panel: what the mediator core tells pages about devices, display and status,
// and the actions it offers. The main window's menus press its buttons (hoststatusPage.press).
var hoststatusPage = (function () {
    var mediator = null;
    var flags = ['mobile', 'dummy', 'shutdown', 'sup-wifi', 'con-wifi', 'sup-linkspeed'];

    function fillDevices(m) {
        var rows = [];
        var entries = m.getDeviceInfoList(true);
        for (var i = 0; i < entries.length; ++i) {
            var device = hostpage.parse(entries[i], null);
            if (!device)
                continue;
            var marks = '';
            for (var f = 0; f < flags.length; ++f) {
                if (device[flags[f]])
                    marks += '<span class="flag">' + hostpage.escape(device[flags[f]]) + '</span>';
            }
            rows.push('<tr data-key="' + hostpage.escape(device.key) + '" class="'
                + hostpage.escape(device.selected + ' ' + device.found) + '">'
                + '<td>' + hostpage.escape(device.key) + '</td>'
                + '<td class="name">' + hostpage.escape(device.cameraname) + '</td>'
                + '<td>' + hostpage.escape(device.devicename) + '</td>'
                + '<td>' + hostpage.escape(device.ipaddress) + '</td>'
                + '<td>' + hostpage.escape(device.headno) + '</td>'
                + '<td class="flags">' + marks + '</td></tr>');
        }
        $('#devices tbody').html(rows.join(''));
        $('#connectedOnly').prop('checked', m.getConnectedCameraShowing());
        $('#documentKeys').text(m.getSelectedDockey().join(', '));
    }

    function fillDisplay(m) {
        var units = hostpage.parse(m.getCalibrationUnits(), []);
        var select = $('#units');
        var chosen = select.val();
        select.empty();
        for (var i = 0; i < units.length; ++i)
            $('<option>').val(units[i].value).text(units[i].view).appendTo(select);
        if (chosen)
            select.val(chosen);
        $('#rangeMax').text(m.getRangeMax());
    }

    function fillStatus(m) {
        var status = hostpage.parse(m.getControlStatus(), {});
        var cells = [];
        for (var name in status) {
            cells.push('<div id="status-' + name + '" class="' + (status[name] ? 'on' : 'off')
                + '">' + hostpage.escape(name) + '</div>');
        }
        $('#status').html(cells.join(''));
    }

    function refresh(m) {
        fillDevices(m);
        fillDisplay(m);
        fillStatus(m);
    }

    $(function () {
        mediator = hostpage.init('hoststatus', { refresh: refresh });
        if (!mediator)
            return;
        $('#devices').on('click', 'tbody tr', function () {
            mediator.setSelectDoc(String($(this).data('key')));
        });
        $('#selectAll').click(function () { mediator.selectAllDocs(); });
        $('#connectedOnly').click(function () {
            mediator.setConnectedCameraShowing($(this).prop('checked'));
            refresh(mediator);
        });
        $('#prefs').click(function () { mediator.openPrefsDialog(); });
        $('#prefsRecord').click(function () { mediator.openPrefsDialog('s_record'); });
        $('#ethernet').click(function () { mediator.openPrefsEthernetSettings(); });
        $('#support').click(function () { mediator.openExportSupportFileDialog(); });
        $('#copyArea').click(function () { mediator.copySelectAreaToClipboard(); });
    });

    return {
        refresh: function () {
            if (mediator)
                refresh(mediator);
        },
        // A button's action as the user's click, for the host's menus. Queued behind the page's
        // own ready handler, which binds the buttons: jQuery runs ready handlers asynchronously.
        press: function (id) {
            $(function () {
                $('#' + id).click();
            });
        }
    };
})();
