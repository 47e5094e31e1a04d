// The edit device dialog: one camera's name and network settings, and what it tells of itself.
// What the host could not take is caught here first, so that a bad value never reaches it: the
// field is marked and the dialog stays open.
$(function () {
    var etherTypes = [
        { type: 0, text: 'Gigabit Ethernet' },
        { type: 1, text: '10 Gigabit Ethernet' },
        { type: 2, text: 'Wireless LAN', wifi: true }
    ];
    var forbidden = /[\\\/\*\?\|\t\n":<>%]/;
    var octet = '(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])';
    var dotted = new RegExp('^' + octet + '(\\.' + octet + '){3}$');
    var settings = {};
    var mediator = null;

    function tr(text) {
        return mediator.translate(text);
    }

    function fillEtherTypes() {
        var select = $('#etherType');
        var known = false;
        $.each(etherTypes, function (index, entry) {
            if (entry.wifi && !settings.IsSupportWifi && settings.EtherType !== entry.type)
                return;
            known = known || settings.EtherType === entry.type;
            $('<option>').val(entry.type).text(tr(entry.text)).appendTo(select);
        });
        // A kind of link this page has no name for is shown, not lost.
        if (!known)
            $('<option>').val(settings.EtherType).text(String(settings.EtherType)).appendTo(select);
        select.val(String(settings.EtherType));
    }

    // The first field whose text the host would refuse, with the reason; null when all pass.
    function problem(name, address, mask, gateway) {
        if (!name || forbidden.test(name))
            return { field: '#cameraName', text: 'Enter a name without \\ / : * ? " < > | %.' };
        if (settings.networkFixed)
            return null;
        var fields = [['#ipAddress', address], ['#subnetmask', mask], ['#defaultGateway', gateway]];
        for (var i = 0; i < fields.length; ++i) {
            var empty = fields[i][1] === '';
            if ((empty && i < 2) || (!empty && !dotted.test(fields[i][1])))
                return { field: fields[i][0], text: 'Enter an address such as 192.168.0.10.' };
        }
        return null;
    }

    function ok(m) {
        var name = $.trim($('#cameraName').val());
        var values = $('.network').map(function () { return $.trim($(this).val()); }).get();
        $('input').removeClass('invalid');
        var found = problem(name, values[0], values[1], values[2]);
        if (found) {
            $(found.field).addClass('invalid').focus();
            $('#note').removeClass('hint').text(tr(found.text));
            return;
        }
        var type = Number($('#etherType').val());
        if (type !== settings.EtherType)
            m.setEditEtherType(type);
        m.ok(name, values[0], values[1], values[2]);
    }

    mediator = hostpage.init('editdevice', { ok: ok });
    if (!mediator)
        return;
    settings = hostpage.parse(mediator.getEditDeviceDialogSettings(), null);
    if (!settings) {
        // The camera has gone; the mediator has said so. Nothing here can be edited.
        settings = { networkFixed: true };
        $('input, select').not('.hostpage-cancel').prop('disabled', true);
        return;
    }
    // A dummy camera's address is the host's to give, and a camera in memory mode is being
    // played back: their network settings are shown as they are.
    settings.networkFixed = settings.IsDummy || settings.isMemoryMode;
    $('#cameraName').val(settings.CameraName);
    $('#ipAddress').val(settings.IPAddress);
    $('#subnetmask').val(settings.Subnetmask);
    $('#defaultGateway').val(settings.DefaultGateway);
    $('#modelName').val(settings.ModelName);
    $('#headName').val(settings.HeadName);
    $('#firmware').val(settings.FWVer);
    $('#deviceSerial').val(settings.DeviceSerialNumber);
    $('#headSerial').val(settings.HeadSerialNumber);
    fillEtherTypes();
    $('.network').each(function () { tarvix4func.initializeTextfield4IPAddr(this); });
    if (settings.networkFixed) {
        $('.network').prop('readonly', true);
        $('#etherType').prop('disabled', true);
        $('#note').addClass('hint').text(tr(settings.IsDummy
            ? 'A dummy camera keeps the address it was given.'
            : 'Network settings change in live mode only.'));
    }
    cameranames.attach($('#cameraName'), window.editdeviceAutoCameraName);
    $('input[type=text]').keydown(function (event) {
        if (event.which === 13 && !cameranames.isOpen($('#cameraName')))
            ok(mediator);
    });
    $('#cameraName').focus().select();
});
