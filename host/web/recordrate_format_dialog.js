// Whether record rates are written with a thousands separator: written at once, Cancel puts back
// the start.
$(function () {
    var m = hostpage.init('recordRateFormatDialog');
    if (!m)
        return;
    $('#delimiter').prop('checked', m.isRecordRateInsertDelimiter()).change(function () {
        m.setRecordRateInsertDelimiter($(this).prop('checked'));
        $(this).prop('checked', m.isRecordRateInsertDelimiter());
    });
});
