// How shutter speeds are written: each change is written at once, Cancel puts back the start.
$(function () {
    var m = hostpage.init('shutter_format_dlg');
    if (!m)
        return;
    function fill() {
        var format = m.getShutterSpeedFormat();
        $('#formatFraction').prop('checked', format !== 1);
        $('#formatTime').prop('checked', format === 1);
        $('#timeUnit').val(String(m.getShutterSpeedTimeUnit())).prop('disabled', format !== 1);
        $('#delimiter').prop('checked', m.isShutterSpeedInsertDelimiter());
    }
    $('input[name=format]').change(function () {
        m.setShutterSpeedFormat(parseInt($(this).val(), 10));
        fill();
    });
    $('#timeUnit').change(function () {
        m.setShutterSpeedTimeUnit(parseInt($(this).val(), 10));
        fill();
    });
    $('#delimiter').change(function () {
        m.setShutterSpeedInsertDelimiter($(this).prop('checked'));
        fill();
    });
    fill();
});
