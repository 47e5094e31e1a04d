$(function () {
    var textbox = $('#signal_generator_address_textbox');

    var mediator = hostpage.init('sync_signalconnect', {
        ok: function (mediator) {
            var text = textbox.val();
            if (text !== '') {
                if (mediator.checkGeneratorConnect(text))
                    mediator.ok();
            } else {
                mediator.ok();
            }
            // Written whatever the test gave: the caller puts the old value back unless accepted.
            mediator.setPrefString(PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS, text);
        }
    });
    textbox.val(mediator.getPrefString(PREF_KEY_SYNCCONTROL_GENERATOR_ADDRESS));
    tarvix4func.initializeTextfield4IPAddr(textbox);
});
