// The time code page: every field is the dialog's working copy; nothing reaches the host
// before OK. Each change goes to the dialog, and the fields are read back, so that a refused
// value shows what the dialog kept.
var timecodePage = (function () {
    var m = null;

    function fill() {
        var counted = m.getTimeCodeIndex() !== 0;
        $('#tc_index').val(counted ? '1' : '0');
        $('#tc_counted').toggle(counted);
        $('#tc_realtime').toggle(!counted);
        $('#tc_unit').val(m.getTimeCodeDisplayUnit());
        $('#tc_oneframe').val(m.getTimeCodeOneFrame());
        $('#tc_start').val(m.getTimeCodeStartValue());
        $('#tc_reset').prop('checked', m.getTimeCodeReset());
        $('#tc_resetvalue').val(m.getTimeCodeResetValue()).prop('disabled', !m.getTimeCodeReset());
        $('#tc_resetunit').val(String(m.getTimeCodeResetUnitIndex()))
            .prop('disabled', !m.getTimeCodeReset());
        $('#tc_scope').val(String(m.getTimeCodeScopeDisplayIndex()));
        $('#tc_places').val(String(m.getTimeCodeDecimalPlaceIndex()));
        $('#tc_divide').prop('checked', m.getTimeCodeDecimalDivide());
        $('#tc_fileinfo').prop('checked', m.getTimeCodeUsingQchFileInfo());
        $('#tc_overwrite').prop('checked', m.getTimeCodeOverWrite());
        $('#tc_realtimeflag').prop('checked', m.getTimeCodeRealTime());
        $('#tc_sample').text(m.getTimeCodeSample());
    }

    // Each control, the dialog's setter and how the control's value is read.
    var bindings = [
        ['#tc_index', 'setTimeCodeIndex', function (e) { return parseInt(e.val(), 10); }],
        ['#tc_unit', 'setTimeCodeDisplayUnit', function (e) { return e.val(); }],
        ['#tc_oneframe', 'setTimeCodeOneFrame', function (e) { return e.val(); }],
        ['#tc_start', 'setTimeCodeStartValue', function (e) { return e.val(); }],
        ['#tc_reset', 'setTimeCodeReset', function (e) { return e.prop('checked'); }],
        ['#tc_resetvalue', 'setTimeCodeResetValue', function (e) { return e.val(); }],
        ['#tc_resetunit', 'setTimeCodeResetUnitIndex', function (e) { return parseInt(e.val(), 10); }],
        ['#tc_scope', 'setTimeCodeScopeDisplayIndex', function (e) { return parseInt(e.val(), 10); }],
        ['#tc_places', 'setTimeCodeDecimalPlaceIndex', function (e) { return parseInt(e.val(), 10); }],
        ['#tc_divide', 'setTimeCodeDecimalDivide', function (e) { return e.prop('checked'); }],
        ['#tc_fileinfo', 'setTimeCodeUsingQchFileInfo', function (e) { return e.prop('checked'); }],
        ['#tc_overwrite', 'setTimeCodeOverWrite', function (e) { return e.prop('checked'); }],
        ['#tc_realtimeflag', 'setTimeCodeRealTime', function (e) { return e.prop('checked'); }]
    ];

    $(function () {
        m = hostpage.init('timecode_custom_mediator');
        if (!m)
            return;
        m.loadTimeCodeSetting();
        $.each(bindings, function (i, binding) {
            $(binding[0]).on('change', function () {
                m[binding[1]](binding[2]($(this)));
                fill();
            });
        });
        $('#tc_resetall').click(function () {
            m.reset();
            fill();
        });
        fill();
    });

    return {
        // A field typed as a user would, and left.
        type: function (id, text) {
            $('#' + id).val(text).change();
            return $('#' + id).val();
        },
        sample: function () { return $('#tc_sample').text(); }
    };
})();
