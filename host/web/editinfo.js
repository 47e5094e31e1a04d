// The edit info pages, both forms: the dialog builds the list of items as HTML; the page wraps
// it in a sortable list, reports order changes with separators as "HR" and check boxes as they
// change, and offers the settings of the set being edited. Every change is written at once.
var editinfoPage = (function () {
    var m = null;
    var saveView = false;
    var set = 0;

    // The edit links the dialog puts behind some items, and what each opens.
    var editors = {
        edit_comment: 'editComment',
        edit_custom: 'editCustom',
        select_logo: 'setLogoPath',
        time_code: 'execTimeCodeSettingDialog',
        edit_shutter: 'editShutterDispFormat',
        edit_rectime: 'editRectimeDispFormat',
        edit_recordrate: 'editRecordRateDispFormat',
        edit_frame: 'editFrameDispFormat'
    };

    function fillChoices(select, values, current) {
        select.empty();
        var found = false;
        for (var i = 0; i < values.length; ++i) {
            $('<option>').val(values[i]).text(values[i]).appendTo(select);
            found = found || values[i] === current;
        }
        if (!found && current)
            $('<option>').val(current).text(current).appendTo(select);
        select.val(current);
    }

    function fillList() {
        $('#infoList').html(m.getInfoSettingsHtml(set));
        $('#infoList').sortable('refresh');
    }

    function reportOrder() {
        var ids = [];
        $('#infoList').children().each(function () {
            if (this.tagName.toLowerCase() === 'hr')
                ids.push('HR');
            else
                ids.push($(this).find('input[type=checkbox]').attr('id'));
        });
        m.changeOrder(ids.join(','), set);
    }

    function fillPreview() {
        if (!saveView)
            return;
        var picture = m.getThumbnail(290);
        $('#preview').html(picture ? '<img src="data:image/png;base64,' + picture + '">' : '');
        $('#resolution').text(m.getResolutionStr());
        $('#language').text(m.getExportLanguage());
    }

    function fillSettings() {
        fillChoices($('#fontName'), m.getFontNameList(), m.getFontName());
        fillChoices($('#fontSize'), m.getFontSizeList(), m.getFontSize());
        $('#bold').prop('checked', m.getBold());
        $('#italic').prop('checked', m.getItalic());
        $('#foregroundColor').val(m.getForegroundColor());
        $('#foregroundSwatch').css('background-color', m.getForegroundColor());
        $('#alignment').val(String(m.getAlignment()));
        $('#width').val(m.getWidth());
        if (!saveView) {
            $('#iconSize').val(m.getIconSize());
            $('#blankLine').prop('checked', m.getDisplayBlankLine());
            return;
        }
        $('.set-tabs input').removeClass('current');
        $('.set-tabs input[data-set=' + set + ']').addClass('current');
        $('#fixedRatio').prop('checked', m.isFixedFontSizeRatio());
        var base = m.getFixedFontSizeRatioBaseResolution();
        $('#baseResolution').text(m.isFixedFontSizeRatio() ? base.width + ' x ' + base.height : '');
        $('#useBackground').prop('checked', m.getUseBackgroundColor());
        $('#backgroundColor').val(m.getBackgroundColor());
        $('#backgroundSwatch').css('background-color', m.getBackgroundColor());
        $('#toColumn').prop('checked', m.getToColumn());
        fillChoices($('#columnNum'), m.getToColumnList(), m.getColumnNum());
        $('#columnSpacing').val(m.getColumnSpacing());
        $('#withinImage').prop('checked', m.getWithinImage());
        $('#collective').prop('checked', m.isCollectiveSetting());
        $('#logoPath').text(m.getLogoPath().split('/').pop());
    }

    function refresh() {
        fillList();
        fillSettings();
        fillPreview();
    }

    function chooseSet(chosen) {
        set = chosen;
        m.backupFontSettings(set);
        refresh();
    }

    // Each control, the dialog's setter and how the control's value is read.
    var bindings = [
        ['#fontName', 'setFontName', function (e) { return e.val(); }],
        ['#fontSize', 'setFontSize', function (e) { return e.val(); }],
        ['#bold', 'setBold', function (e) { return e.prop('checked'); }],
        ['#italic', 'setItalic', function (e) { return e.prop('checked'); }],
        ['#foregroundColor', 'setForegroundColor', function (e) { return e.val(); }],
        ['#alignment', 'setAlignment', function (e) { return parseInt(e.val(), 10); }],
        ['#width', 'setWidth', function (e) { return parseInt(e.val(), 10); }],
        ['#iconSize', 'setIconSize', function (e) { return parseInt(e.val(), 10); }],
        ['#blankLine', 'setDisplayBlankLine', function (e) { return e.prop('checked'); }],
        ['#fixedRatio', 'setFixedFontSizeRatio', function (e) { return e.prop('checked'); }],
        ['#useBackground', 'setUseBackgroundColor', function (e) { return e.prop('checked'); }],
        ['#backgroundColor', 'setBackgroundColor', function (e) { return e.val(); }],
        ['#toColumn', 'setToColumn', function (e) { return e.prop('checked'); }],
        ['#columnNum', 'setColumnNum', function (e) { return e.val(); }],
        ['#columnSpacing', 'setColumnSpacing', function (e) { return parseInt(e.val(), 10); }],
        ['#withinImage', 'setWithinImage', function (e) { return e.prop('checked'); }],
        ['#collective', 'setCollectiveSetting', function (e) { return e.prop('checked'); }]
    ];

    $(function () {
        m = hostpage.init('editInfo', {
            ok: function (mediator) {
                mediator.writeFontOK();
                mediator.ok();
            },
            cancel: function (mediator) { mediator.cancel(); }
        });
        if (!m)
            return;
        saveView = m.isSaveView();
        set = m.getOffset();
        $('#infoList').sortable({
            items: saveView ? '> li' : '> li, > hr',
            cancel: 'input, a, label',
            update: reportOrder
        });
        $('#infoList').on('change', 'input[type=checkbox]', function () {
            m.changeDisp(this.id, this.checked, set);
            fillPreview();
        });
        $('#infoList').on('click', 'a[name=editinfo_edit]', function () {
            var method = editors[this.id];
            if (method)
                m[method]();
            refresh();
        });
        $.each(bindings, function (i, binding) {
            $(binding[0]).on('change', function () {
                // A number field left empty or with text is passed on as it stands, so that
                // the dialog refuses it with a message.
                var value = binding[2]($(this));
                m[binding[1]](typeof value === 'number' && isNaN(value) ? -1 : value);
                fillSettings();
                fillPreview();
            });
        });
        $('.set-tabs input').click(function () { chooseSet(parseInt($(this).data('set'), 10)); });
        $('#logo').click(function () {
            m.setLogoPath();
            refresh();
        });
        $('#revertSet').click(function () {
            m.restoreFontSettings();
            refresh();
        });
        $('#reset').click(function () {
            m.reset();
            refresh();
        });
        if (saveView)
            m.backupFontSettings(set);
        refresh();
    });

    return {
        // The order as the user left it after a drag: the item of key moved to position.
        move: function (key, position) {
            var item = $(document.getElementById(key)).closest('li');
            item.detach();
            var rows = $('#infoList').children();
            if (position >= rows.length)
                $('#infoList').append(item);
            else
                rows.eq(position).before(item);
            reportOrder();
            return $('#infoList').children().length;
        },
        // A separator dragged to position.
        moveSeparator: function (index, position) {
            var separator = $('#infoList').children('hr').eq(index);
            separator.detach();
            var rows = $('#infoList').children();
            if (position >= rows.length)
                $('#infoList').append(separator);
            else
                rows.eq(position).before(separator);
            reportOrder();
        },
        check: function (key, on) {
            var box = $(document.getElementById(key));
            if (box.prop('checked') !== on)
                box.click();
            return box.prop('checked');
        },
        set: function (id, value) {
            var field = $('#' + id);
            if (field.is('input[type=checkbox]')) {
                if (field.prop('checked') !== value)
                    field.click();
            } else {
                field.val(value).change();
            }
            return field.is('input[type=checkbox]') ? field.prop('checked') : field.val();
        },
        chooseSet: function (chosen) {
            $('.set-tabs input[data-set=' + chosen + ']').click();
        },
        edit: function (id) {
            $(document.getElementById(id)).click();
        },
        items: function () {
            return $('#infoList').children().map(function () {
                return this.tagName.toLowerCase() === 'hr' ? 'HR' :
                    $(this).find('input').attr('id') + ($(this).find('input').prop('checked') ? '+' : '-');
            }).get().join(',');
        }
    };
})();
