// How the host searches for cameras: 0 broadcasts on every network, 1 searches the range that
// starts at the address given. The mediator writes each value at once, so the page writes them
// only on OK: Cancel leaves both as they were.
$(function () {
    var octet = '(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])';
    var dotted = new RegExp('^' + octet + '(\\.' + octet + '){3}$');
    var address = $('#searchAddress');

    function way() {
        return Number($('input[name=searchWay]:checked').val());
    }

    function ok(mediator) {
        var text = $.trim(address.val());
        var valid = dotted.test(text);
        if (way() === 1 && !valid) {
            address.addClass('invalid').focus();
            $('#note').text(mediator.translate('Enter an address such as 192.168.0.0.'));
            return;
        }
        mediator.setCameraSearchWay(way());
        if (valid)
            mediator.setCameraSearchIPAddress(text);
        mediator.ok();
    }

    var mediator = hostpage.init('cameranetworksetting', { ok: ok });
    if (!mediator)
        return;
    var stored = mediator.getCameraSearchWay() === 1 ? 1 : 0;
    $('#searchWay' + stored).prop('checked', true);
    address.val(mediator.getCameraSearchIPAddress() || '192.168.0.0');
    tarvix4func.initializeTextfield4IPAddr(address);
    $('input[name=searchWay]').change(function () {
        address.prop('disabled', way() !== 1).removeClass('invalid');
        $('#note').text('');
    }).first().change();
    address.keydown(function (event) {
        if (event.which === 13)
            ok(mediator);
    });
});
