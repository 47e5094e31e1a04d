// The removable media panels (SD cards, the storage unit, CFast cards): for a camera and a slot,
// whether the medium is there and formatted, what it holds, its space, and formatting. Each
// page names its kind; the mediator answers for the camera document the panel shows, the
// selected one unless the user picks another.
var mediaPanel = (function () {
    var m = null;
    var kind = '';
    var rows = [];
    var chosen = -1;
    var questions = {
        vp: 'All data in the storage unit of %1 will be deleted.<br>Is this OK?',
        cf: 'All data on the CFast card in Slot %2 of %1 will be deleted.<br>Is this OK?'
    };

    function cameraEntries() {
        var list = [];
        var entries = m.getDeviceInfoList(false);
        for (var i = 0; i < entries.length; ++i) {
            var entry = hostpage.parse(entries[i], null);
            if (entry)
                list.push(entry);
        }
        return list;
    }

    function fillCameras() {
        var select = $('#camera');
        var before = select.val();
        var entries = cameraEntries();
        var selected = null;
        select.empty();
        for (var i = 0; i < entries.length; ++i) {
            $('<option>').val(entries[i].key).text(entries[i].cameraname).appendTo(select);
            if (selected === null && entries[i].selected)
                selected = entries[i].key;
        }
        if (before && select.find('option[value="' + before + '"]').length)
            select.val(before);
        else if (selected !== null)
            select.val(selected);
    }

    function slotChoices(key) {
        if (kind === 'sd')
            return [[0, m.translate('In use')], [1, m.translate('Slot') + ' 1'],
                [2, m.translate('Slot') + ' 2']];
        var count = kind === 'vp' ? 4 : 2;
        var choices = [];
        for (var slot = 0; slot < count; ++slot) {
            if (m.isEnabaleSlot(key, slot))
                choices.push([slot, m.translate('Slot') + ' ' + (slot + 1)]);
        }
        return choices;
    }

    function fillSlots(key) {
        var select = $('#slot');
        var before = select.val();
        select.empty();
        var choices = slotChoices(key);
        for (var i = 0; i < choices.length; ++i)
            $('<option>').val(choices[i][0]).text(choices[i][1]).appendTo(select);
        if (before !== null && select.find('option[value="' + before + '"]').length)
            select.val(before);
        else if (kind === 'vp' && choices.length)
            select.val(String(m.getSlotNo(key, 0)));
    }

    function yesNo(value) {
        return m.translate(value ? 'Yes' : 'No');
    }

    function fillRows(key, slot, readable) {
        rows = readable ? hostpage.parse(m.getDataList(key, slot), []) : [];
        var html = [];
        for (var i = 0; i < rows.length; ++i) {
            html.push('<tr data-index="' + i + '"' + (i === chosen ? ' class="ui-selected"' : '')
                + '><td>' + hostpage.escape(rows[i].recid) + '</td>'
                + (kind === 'vp' ? '<td class="name">' + hostpage.escape(rows[i].name) + '</td>' : '')
                + '<td>' + hostpage.escape(rows[i].frame) + '</td>'
                + '<td>' + hostpage.escape(rows[i].date) + '</td>'
                + '<td>' + hostpage.escape(rows[i].time) + '</td></tr>');
        }
        $('#rows tbody').html(html.join(''));
        $('#empty').toggle(readable && !rows.length);
        if (chosen >= rows.length)
            chosen = -1;
    }

    // Also the page kit's refresh, which runs before init has given the mediator back.
    function refresh(mediator) {
        if (mediator)
            m = mediator;
        fillCameras();
        var key = Number($('#camera').val());
        var hasCamera = $('#camera option').length > 0;
        var managed = hasCamera && m.isManaged(key);
        $('#nocamera').toggle(!hasCamera);
        $('#unmanaged').toggle(hasCamera && !managed);
        $('#medium').toggle(managed);
        if (!managed) {
            rows = [];
            return;
        }
        fillSlots(key);
        var slot = Number($('#slot').val());
        var hasSlot = $('#slot option').length > 0 && m.isEnabaleSlot(key, slot);
        var present = hasSlot && (kind === 'vp' ? m.isConnected(key, slot) : m.isInserted(key, slot));
        var formatted = present && m.isFormatted(key, slot);
        $('#present').text(yesNo(present));
        $('#formatted').text(present ? yesNo(formatted) : '-');
        if (kind === 'sd') {
            $('#protected').text(present ? yesNo(m.isProtected(key, slot)) : '-');
            var info = present ? m.getSDInfo(key, slot) : null;
            $('#info').text(info ? [info.size, info.speed, info['class']].join(', ') : '-');
            $('#memoryMode').text(m.getMemoryMode(key));
        } else {
            $('#freeSpace').text(m.getFreeSpace(key) || '-');
            m.selectedDocCount(Math.max(1, m.getSelectedDockey().length));
            m.selectedDocHeadCount(1);
        }
        fillRows(key, slot, present && formatted);
        $('#format').prop('disabled', !present);
        if (kind === 'vp') {
            var renamable = chosen >= 0 && m.canConvertDataName(key);
            $('#rename').prop('disabled', !renamable);
            $('#addNumber').prop('checked', m.getPrefBool('convert/vp/datanameaddnumber', false));
        }
        $('#folder').text(m.getPrefString('export/dir', ''));
    }

    function format() {
        var key = Number($('#camera').val());
        var slot = Number($('#slot').val());
        if (kind !== 'sd') {
            var question = m.translate(questions[kind]).replace('%1',
                $('#camera option:selected').text()).replace('%2', String(slot + 1));
            if (!m.confirm(question))
                return;
        }
        m.format(key, slot);
        refresh();
    }

    function append(text) {
        var box = $('#dataName');
        box.val(box.val() + text);
    }

    function bindDataNames() {
        $('#rows').on('click', 'tbody tr', function () {
            chosen = Number($(this).data('index'));
            $('#dataName').val(rows[chosen] ? rows[chosen].name : '');
            refresh();
        });
        $('#addCamera').click(function () { append(m.getAddCameraName(Number($('#camera').val()))); });
        $('#addNumberText').click(function () { append(m.getAddNumber()); });
        $('#addTime').click(function () { append(m.getAddDateTime('yyyyMMdd_HHmmss')); });
        $('#digits').click(function () { m.numberSetting(); refresh(); });
        $('#addNumber').click(function () {
            m.setPrefBool('convert/vp/datanameaddnumber', $(this).prop('checked'));
        });
        $('#rename').click(function () {
            var row = rows[chosen];
            if (!row)
                return;
            m.convertDataName(Number($('#camera').val()), Number($('#slot').val()), row.recid - 1,
                $('#dataName').val(), row.recid);
            refresh();
        });
    }

    return {
        start: function (name, pageKind) {
            kind = pageKind;
            $(function () {
                m = hostpage.init(name, { refresh: refresh });
                if (!m)
                    return;
                m.refreshed.connect(function () { refresh(); });
                $('#camera').change(function () { chosen = -1; $('#slot').empty(); refresh(); });
                $('#slot').change(function () { chosen = -1; refresh(); });
                $('#format').click(format);
                $('#refresh').click(function () { m.refresh(); });
                $('#chooseFolder').click(function () {
                    var dir = m.selectFolder($('#folder').text());
                    if (dir)
                        m.setPrefString('export/dir', dir);
                    refresh();
                });
                if (kind === 'vp')
                    bindDataNames();
            });
        },
        // For the host's automation and tests: the data list shown, and choosing by value.
        rows: function () {
            return rows;
        },
        choose: function (camera, slot) {
            $('#camera').val(String(camera));
            $('#slot').empty();
            refresh();
            if (slot !== undefined) {
                $('#slot').val(String(slot));
                refresh();
            }
        }
    };
})();
