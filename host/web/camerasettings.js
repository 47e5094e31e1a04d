// The camera settings dialog: in mode 0 where the settings file goes and how it is named, in any
// other mode the preset slot each camera's settings go to ("None" writes nothing).
$(function () {
    var defaultTimeFormat = 'yyyyMMdd_HHmmss';
    var mode = 0;

    function fileSettings(mediator) {
        var settings = hostpage.parse(mediator.getFilePathSettings(), {});
        $('#folderPath').val(settings.FolderPath || '');
        $('#fileName').text(settings.FileName || '');
    }

    function fillNames(mediator) {
        var data = hostpage.parse(mediator.recvFileNameDialogData(), {});
        $('#original').prop('checked', !!data.original);
        $('#userFileName').val(data.userFileName || '').prop('disabled', !data.original);
        $('#addTime').prop('checked', !!data.addTime);
        $('#addTimeFormat').val(data.addTimeFormat || defaultTimeFormat).prop('disabled', !data.addTime);
        fileSettings(mediator);
    }

    function sendNames(mediator) {
        var data = { userFileName: $('#userFileName').val(), original: $('#original').prop('checked'),
            addTime: $('#addTime').prop('checked') };
        if (data.addTime)
            data.addTimeFormat = $('#addTimeFormat').val() || defaultTimeFormat;
        mediator.sendFileNameDialogData(JSON.stringify(data));
        fillNames(mediator);
    }

    function fillPresets(mediator) {
        var body = $('#presets tbody').empty();
        $.each(mediator.getPresetList() || [], function (i, text) {
            var device = hostpage.parse(text, null);
            if (!device)
                return;
            var choice = $('<select>').attr('id', 'preset_' + device.key).data('key', device.key);
            choice.append($('<option>').val(0).text(mediator.translate('None')));
            for (var n = 1; n <= device.presetno; ++n) {
                var slot = (device.presets || [])[n - 1];
                choice.append($('<option>').val(n).text(n + (slot ? ': ' + slot : '')));
            }
            var row = $('<tr>').toggleClass('chosen', !!device.selected);
            row.append($('<td>').text(device.name), $('<td>').text(device.ipaddress),
                $('<td>').text(device.devicename), $('<td class="preset">').append(choice));
            body.append(row);
        });
    }

    function ok(mediator) {
        var list = [];
        $('#presets select').each(function () {
            list.push({ key: String($(this).data('key')), value: parseInt($(this).val(), 10) });
        });
        mediator.ok(JSON.stringify({ dialogMode: mode, presetList: list }));
    }

    var mediator = hostpage.init('camerasettings', { ok: ok });
    if (!mediator)
        return;
    mode = mediator.getDialogMode();
    $('#fileForm').toggle(mode === 0);
    $('#presetForm').toggle(mode !== 0);
    if (mode === 0) {
        fillNames(mediator);
        $('#original, #addTime').change(function () { sendNames(mediator); });
        $('#userFileName, #addTimeFormat').change(function () { sendNames(mediator); });
        $('#browseFolder').click(function () {
            if (mediator.openFolder())
                fileSettings(mediator);
        });
    } else {
        fillPresets(mediator);
    }
});
