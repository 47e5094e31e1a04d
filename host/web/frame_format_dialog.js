// Whether frame numbers are written with a thousands separator: written at once, Cancel puts back
// the start.
$(function () {
    var m = hostpage.init('frameFormatDialog');
    if (!m)
        return;
    $('#delimiter').prop('checked', m.isFrameInsertDelimiter()).change(function () {
        m.setFrameInsertDelimiter($(this).prop('checked'));
        $(this).prop('checked', m.isFrameInsertDelimiter());
    });
});
