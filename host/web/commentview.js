// The comments of the documents: the selection goes to the dialog at each change, the text of
// the current document shows, and what is typed goes to every selected document. Nothing
// reaches a document before OK.
var commentPage = (function () {
    var m = null;

    function selected() {
        return $('#documents option:selected').map(function () {
            return parseInt($(this).val(), 10);
        }).get();
    }

    function showCurrent() {
        m.setSelectedItems(selected());
        $('#comment').val(m.getComment()).prop('disabled', selected().length === 0);
        $('#differs').text(selected().length > 1
            ? m.translate('The comment shown is the current document\'s; what you type goes to all selected.') : '');
    }

    $(function () {
        m = hostpage.init('comment_mediator', {
            ok: function (mediator) { mediator.comment_ok(); },
            cancel: function (mediator) { mediator.comment_cancel(); }
        });
        if (!m)
            return;
        var infos = hostpage.parse(m.getDocInfos(), { Records: [], InitSelect: 0 });
        var list = $('#documents');
        for (var i = 0; i < infos.Records.length; ++i) {
            var record = infos.Records[i];
            $('<option>').val(record.recid).text(record.name || ('#' + record.recid)).appendTo(list);
        }
        if (infos.InitSelect > 0)
            list.val([String(infos.InitSelect)]);
        list.change(showCurrent);
        $('#comment').on('input', function () { m.setComment($(this).val()); });
        showCurrent();
    });

    return {
        // Rows chosen as a user would, with Ctrl for several.
        select: function (rows) {
            $('#documents').val(rows.map(String)).change();
            return m.getSelectedItems().join(',');
        },
        type: function (text) {
            $('#comment').val(text).trigger('input');
            return $('#comment').val();
        },
        shown: function () { return $('#comment').val(); }
    };
})();
