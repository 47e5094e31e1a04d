// The device control panel: the cameras chosen for display (a multi-head device's owner chooses
// all its heads, a head is chosen through its owner), the information overlay, and the dialogs
// that edit a document's information.
$(function () {
    function refresh(mediator) {
        var body = $('#devices tbody').empty();
        $.each(mediator.getDeviceInfoList(true) || [], function (i, text) {
            var device = hostpage.parse(text, null);
            if (!device)
                return;
            var row = $('<tr>').attr('data-key', device.key).addClass(device.found)
                .toggleClass('head', device.headno > 1 || /\sH\d+$/.test(device.cameraname));
            var check = $('<input type="checkbox" class="select">').prop('checked', device.selected !== '');
            row.append($('<td>').append(check), $('<td class="name">').text(device.cameraname),
                $('<td>').text(device.headno), $('<td>').text(device.ipaddress));
            body.append(row);
        });
        $('#displayInfo').prop('checked', mediator.isDisplayInfoShowing());
    }

    var mediator = hostpage.init('devicecontrol', { refresh: refresh });
    if (!mediator)
        return;
    $('#devices tbody').on('change', 'input.select', function () {
        var key = $(this).closest('tr').attr('data-key');
        if ($(this).prop('checked'))
            mediator.selectDoc(key);
        else
            mediator.unselectDoc(key);
    });
    $('#viewAll').click(function () { mediator.viewAll(); });
    $('#displayInfo').change(function () { mediator.setDisplayInfoShowing($(this).prop('checked')); });
    $('#editInfo').click(function () { mediator.editInfo(); });
    $('#editComment').click(function () { mediator.editComment(); });
    $('#editCustom').click(function () { mediator.editCustom(); });
});
