// The password dialogs' common behaviour: the boxes are filled from the mediator, the first
// takes the keys, Enter is OK, and OK hands the texts over only after the
// mediator's check. The texts never go to the user operation log: the boxes are password
// fields, which the page kit doesn't log.
var passwordPage = (function () {
    var fields = [];

    function values() {
        return fields.map(function (id) { return $(id).val(); });
    }

    return {
        // check(m, values) -> bool; accept(m, values); initial(m) -> the boxes' start texts.
        start: function (name, ids, check, accept, initial) {
            fields = ids;
            $(function () {
                var ok = function (m) {
                    var texts = values();
                    if (check(m, texts))
                        accept(m, texts);
                };
                var m = hostpage.init(name, { ok: ok, cancel: function (m) { m.onCancel(); } });
                if (!m)
                    return;
                var start = initial(m);
                for (var i = 0; i < fields.length; ++i)
                    $(fields[i]).val(start[i] || '');
                $('#maxLen').text(m.getMaxPassLen());
                $(document).on('keydown', function (event) {
                    if (event.which === 13) {
                        event.preventDefault();
                        ok(m);
                    }
                });
                $(fields[0]).focus();
            });
        },
        // For tests and the host's automation: the boxes by place.
        fill: function (texts) {
            for (var i = 0; i < fields.length && i < texts.length; ++i)
                $(fields[i]).val(texts[i]);
        }
    };
})();
