// The add device dialog: a name (completed from the user's camera name list), an address, or a
// dummy camera at the address the mediator offers. The mediator drops a name or address no
// device can have, and the dialog closes all the same.
$(function () {
    var name = $('#cameraName');
    var address = $('#ipAddress');
    var dummy = $('#dummy');
    var settings = {};
    var typedAddress = '';

    function ok(mediator) {
        mediator.ok($.trim(name.val()), $.trim(address.val()), dummy.prop('checked'));
    }

    var mediator = hostpage.init('adddevice', { ok: ok });
    if (!mediator)
        return;
    settings = hostpage.parse(mediator.getAddDeviceDialogSettings(), {});
    name.val(settings.DefaultCameraName || '');
    address.val(settings.DefaultIPAddress || '');
    tarvix4func.initializeTextfield4IPAddr(address);
    cameranames.attach(name, window.adddeviceAutoCameraName);

    // A dummy camera takes the address offered for it; the one typed comes back without it.
    dummy.change(function () {
        if (dummy.prop('checked')) {
            typedAddress = address.val();
            address.val(settings.DefaultDummyIPAddress || '');
        } else {
            address.val(typedAddress);
        }
        address.prop('readonly', dummy.prop('checked'));
    });
    $('input[type=text]').keydown(function (event) {
        if (event.which === 13 && !cameranames.isOpen(name))
            ok(mediator);
    });
    name.focus().select();
});
