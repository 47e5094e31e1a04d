// The unit of recording times: written at once, Cancel puts back the start.
$(function () {
    var m = hostpage.init('rectime_format_dlg');
    if (!m)
        return;
    $('#unit').val(String(m.getRecTimeUnit())).change(function () {
        m.setRecTimeUnit(parseInt($(this).val(), 10));
        $(this).val(String(m.getRecTimeUnit()));
    });
});
