// The number dialog: the digit counts of one naming field's number text (camera, head and
// session), or "auto" for the camera and head counts of a directory. Written on OK only.
var addnumberPage = (function () {
    // The key stem of each callback type.
    var stems = { 0: 'export/groupdir', 1: 'export/subdir', 2: 'export/filename',
        3: 'convert/groupdir', 4: 'convert/subdir', 5: 'convert/filename',
        6: 'snap/groupdir', 7: 'snap/subdir', 8: 'snap/filename',
        9: 'report/groupdir', 10: 'report/subdir', 11: 'report/filename',
        13: 'export/vp/dataname' };
    var m = null;
    var stem = '';
    var directory = false;
    var sessionOnly = false;

    function digits(id) {
        var value = parseInt($('#' + id).val(), 10);
        return isNaN(value) ? 0 : Math.max(0, Math.min(9, value));
    }

    function isAuto() {
        return directory && $('input[name=format]:checked').val() === 'auto';
    }

    function update() {
        var auto = isAuto();
        if (auto) {
            $('#camera').val(m.getAutoDeviceDigits());
            $('#head').val(m.getAutoHeadDigits());
        }
        $('#camera, #head').prop('disabled', auto || sessionOnly);
        $('#preview').text(m.preview(digits('camera'), digits('head'), digits('session')));
    }

    function ok(mediator) {
        if (!sessionOnly && !isAuto()) {
            mediator.setPrefInt(stem + 'addnumbercameranodigits', digits('camera'), false);
            mediator.setPrefInt(stem + 'addnumberheadnodigits', digits('head'), false);
        }
        mediator.setPrefInt(stem + 'addnumbersessionnodigits', digits('session'), false);
        if (directory)
            mediator.setPrefString(stem + 'addnumberformat', isAuto() ? 'auto' : 'digits', false);
        mediator.ok();
    }

    $(function () {
        m = hostpage.init('addnumberdialog', { ok: ok });
        if (!m)
            return;
        var type = m.getCallbackType();
        stem = stems[type] || '';
        directory = [0, 1, 3, 4, 6, 7, 9, 10].indexOf(type) >= 0;
        sessionOnly = m.isFileMode() || (type >= 9 && type <= 11);
        if (!stem) {
            $('input').prop('disabled', true);
            $('#cancel').prop('disabled', false);
            return;
        }
        $('#formatRow').toggle(directory && !sessionOnly);
        var format = directory ? m.getPrefString(stem + 'addnumberformat', 'digits') : 'digits';
        $('input[name=format][value=' + (format === 'auto' ? 'auto' : 'digits') + ']').prop('checked', true);
        $('#camera').val(sessionOnly ? 0 : m.getPrefInt(stem + 'addnumbercameranodigits', 0));
        $('#head').val(sessionOnly ? 0 : m.getPrefInt(stem + 'addnumberheadnodigits', 0));
        $('#session').val(m.getPrefInt(stem + 'addnumbersessionnodigits', 0));
        $('input').on('change input', update);
        update();
    });

    return {};
})();
