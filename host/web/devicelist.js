// The device list panel: every device entry with its state, chosen by a click (a connected
// camera becomes current, another is marked to be connected), its selection toggled by the
// check box, deleted by its button.
var devicelistPage = (function () {
    var flags = ['found', 'dummy', 'mobile', 'sup-wifi', 'con-wifi', 'sup-linkspeed'];

    function refresh(mediator) {
        var body = $('#devices tbody').empty();
        $.each(mediator.getDeviceInfoList(false) || [], function (i, text) {
            var device = hostpage.parse(text, null);
            if (!device)
                return;
            var key = device.key;
            var row = $('<tr>').attr('data-key', key).addClass(device.selected).addClass(device.found);
            var check = $('<input type="checkbox" class="select">')
                .prop('checked', mediator.isSelectedDoc(key) || mediator.isSelectedMultiDoc(key));
            var marks = $('<td class="flags">');
            $.each(flags, function (n, flag) {
                if (device[flag])
                    marks.append($('<span class="flag">').text(mediator.translate(device[flag])));
            });
            if (mediator.isMultiHead(key))
                marks.append($('<span class="flag multi">').text(mediator.translate('multi head')));
            var remove = $('<input type="button" class="delete">').val(mediator.translate('Delete'));
            row.append($('<td>').append(check), $('<td class="name">').text(device.cameraname),
                $('<td>').text(device.devicename), $('<td>').text(device.ipaddress), marks,
                $('<td>').append(remove));
            body.append(row);
        });
    }

    function start() {
        var mediator = hostpage.init('devicelist', { refresh: refresh });
        if (!mediator)
            return;
        var body = $('#devices tbody');
        body.on('click', 'td.name', function () {
            mediator.selectDoc($(this).closest('tr').attr('data-key'));
        });
        body.on('change', 'input.select', function () {
            var key = $(this).closest('tr').attr('data-key');
            if ($(this).prop('checked'))
                mediator.selectDoc(key);
            else
                mediator.unselectDoc(key);
        });
        body.on('click', 'input.delete', function () {
            mediator.deleteDoc(parseInt($(this).closest('tr').attr('data-key'), 10));
        });
        $('#addDevice').click(function () { mediator.addDoc(); });
        $('#addDeviceOnly').click(function () { mediator.addDoc(false); });
        $('#unselectAll').click(function () { mediator.deleteAllDocs(true); });
        $('#deleteAll').click(function () { mediator.deleteAllDocs(); });
    }

    return { start: start, refresh: refresh };
})();
$(devicelistPage.start);
