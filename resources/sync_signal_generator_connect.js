$(function () {
    var mediator = sync_signalconnect;
    var textbox = $('#signal_generator_address_textbox');

    tarvix4func.applyStyle(mediator);
    textbox.val(mediator.getPrefString(PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS));
    tarvix4func.initializeTextfield4IPAddr(textbox);

    $('#signal_generator_ok').click(function () {
        var text = textbox.val();
        if (text !== '') {
            if (mediator.checkGeneratorConnect(text))
                mediator.ok();
        } else {
            mediator.ok();
        }
        // Written whatever the test gave: the caller puts the old value back unless accepted.
        mediator.setPrefString(PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS, text);
    });
    $('#signal_generator_cancel').click(function () {
        mediator.cancel();
    });

    tarvix4func.localize(mediator);
    tarvix4func.enableUserOperationLog(mediator);
});
