// The save, snapshot, convert, report and open dialogs. The file dialog's mediator is published
// under the dialog's kind; the settings page's ("savefile") sits beside it, except in the open
// dialog. The page lists what can be saved, shows the chosen row's preview and skip range, the
// drives of removable media, and the target the naming rule gives; Save names each checked
// row by exportTarget and asks the dialog to save.
var filedialogPage = (function () {
    var kinds = ['filesavedialog', 'snapshotdialog', 'batchconverter', 'reportExportDialog',
        'fileopendialog', 'layoutsavedialog'];
    var files = null;
    var kind = '';
    var rows = [];
    var checked = {};
    var current = null;
    var vpDrives = [];
    var cfDrives = [];

    function rowId(row) {
        return row.dockey + ':' + row.partitionno;
    }

    function isOpen() {
        return kind === 'fileopendialog';
    }

    function checkedRows() {
        return rows.filter(function (row) { return checked[rowId(row)]; });
    }

    function fillRows() {
        rows = hostpage.parse(files.list(isOpen()), []);
        var html = [];
        for (var i = 0; i < rows.length; ++i) {
            var row = rows[i];
            var id = rowId(row);
            if (!(id in checked))
                checked[id] = row.selected === 'true';
            html.push('<tr data-index="' + i + '"' + (row.style ? ' style="' + hostpage.escape(row.style) + '"' : '')
                + (current === id ? ' class="current"' : '') + '>'
                + '<td><input type="checkbox" class="pick"' + (checked[id] ? ' checked' : '') + '></td>'
                + '<td class="title">' + hostpage.escape(row.dataname || row.cameraname || row.filename) + '</td>'
                + '<td>' + hostpage.escape(row.partitionno) + '</td>'
                + '<td>' + hostpage.escape(row.totalframes) + '</td>'
                + '<td>' + hostpage.escape(row.resolution) + '</td>'
                + '<td>' + hostpage.escape(row.capacitylabel || '') + '</td>'
                + '<td>' + hostpage.escape((row.date || '') + ' ' + (row.time || '')) + '</td></tr>');
        }
        $('#rows tbody').html(html.join(''));
        $('#empty').toggle(rows.length === 0);
        if (rows.length && !rows.some(function (row) { return rowId(row) === current; }))
            choose(0);
        else
            showCurrent();
        refreshSkip();
    }

    function currentRow() {
        for (var i = 0; i < rows.length; ++i) {
            if (rowId(rows[i]) === current)
                return rows[i];
        }
        return null;
    }

    function choose(index) {
        current = rowId(rows[index]);
        $('#rows tbody tr').removeClass('current').eq(index).addClass('current');
        showCurrent();
    }

    function showCurrent() {
        var row = currentRow();
        var picture = row ? files.select(Number(row.dockey), Number(row.partitionno), 200, 150) : '';
        $('#preview').attr('src', picture ? 'data:image/png;base64,' + picture : '');
        $('#dataName').val(row ? (row.dataname || '') : '');
        refreshTarget();
    }

    function refreshTarget() {
        var row = currentRow();
        if (!row || isOpen() || !window.savefile) {
            $('#targetPath').text('');
            return;
        }
        var dir = files.getExportPath();
        var group = files.getExportGroupDir(Number(row.dockey), Number(row.partitionno));
        var sub = files.getExportSubDir();
        var name = files.getExportFile();
        $('#targetPath').text(dir + (group ? group + '/' : '') + (sub ? sub + '/' : '') + name);
    }

    function refreshSkip() {
        var targets = {};
        var sizes = [];
        checkedRows().forEach(function (row) {
            (targets[row.dockey] = targets[row.dockey] || []).push(Number(row.partitionno));
            if (row.capacity)
                sizes.push(row.capacity);
        });
        files.refreshSkipFrame(targets);
        var mode = files.getSkipMode() === 1 ? '1' : '0';
        $('input[name=skipMode][value=' + mode + ']').prop('checked', true);
        $('#skipValue').val(files.getSkipFrames());
        $('#skipRange').text(files.getSkipMinFrames() + ' - ' + files.getSkipMaxFrames());
        $('#capacity').text(sizes.length ? files.translate('Size') + ': ' + files.capcityToString(sizes) : '');
    }

    function driveOptions(select, list) {
        select.empty();
        for (var i = 0; i < list.record.length; ++i)
            $('<option>').val(i).text(list.record[i].drivename).appendTo(select);
        if (list.select >= 0)
            select.val(String(list.select));
    }

    function chosenDrive(list, select) {
        var index = Number(select.val());
        return list.record && index >= 0 && index < list.record.length ? list.record[index] : null;
    }

    function refreshDrives() {
        driveOptions($('#sdDrives'), hostpage.parse(files.getSDDrives(), { record: [], select: -1 }));
        vpDrives = hostpage.parse(files.getVPDrives(), { record: [], select: -1 });
        driveOptions($('#vpDrives'), vpDrives);
        cfDrives = hostpage.parse(files.getCFDrives(), { record: [], select: -1 });
        driveOptions($('#cfDrives'), cfDrives);
        refreshUse();
    }

    function refreshUse() {
        var vp = chosenDrive(vpDrives, $('#vpDrives'));
        $('#vpUse').text(vp ? files.getVPUseRatio(vp.drivetype, vp.driveno, vp.slotno) + '% '
            + files.translate('used') + ', '
            + files.getTotalWrittenAmount(vp.drivetype, vp.driveno, vp.slotno) + '% '
            + files.translate('written') : '');
        var cf = chosenDrive(cfDrives, $('#cfDrives'));
        $('#cfUse').text(cf ? files.getCFUseRatio(cf.drivetype, cf.driveno, cf.slotno) + '% '
            + files.translate('used') : '');
        $('#openSd').prop('disabled', !$('#sdDrives option').length);
        $('#openVp, #formatVp').prop('disabled', !vp);
        $('#openCf, #formatCf').prop('disabled', !cf);
    }

    function refresh() {
        fillRows();
        refreshDrives();
        savesettings.refresh();
    }

    function keysOf(list) {
        var keys = [];
        list.forEach(function (row) {
            if (keys.indexOf(row.dockey) < 0)
                keys.push(row.dockey);
        });
        return keys;
    }

    function submit(action) {
        var chosen = checkedRows();
        files.exportDocCount(keysOf(chosen).length);
        chosen.forEach(function (row) {
            files.exportTarget(Number(row.dockey), Number(row.partitionno));
        });
        files[action]();
    }

    function format(list, select, call) {
        var drive = chosenDrive(list, select);
        if (drive && files.confirm(files.translate('All data of %1 will be deleted. Is this OK?')
                .replace('%1', drive.drivename))) {
            files[call](drive.drivetype, drive.driveno, drive.slotno);
            refresh();
        }
    }

    function bind() {
        $('#rows').on('click', 'tbody tr', function (event) {
            var index = $(this).data('index');
            if ($(event.target).is('input.pick')) {
                checked[rowId(rows[index])] = event.target.checked;
                refreshSkip();
            }
            choose(index);
        });
        $('#all').click(function () {
            var on = this.checked;
            rows.forEach(function (row) { checked[rowId(row)] = on; });
            fillRows();
        });
        $('input[name=skipMode]').change(function () {
            files.setSkipMode(Number($(this).val()));
            refreshSkip();
        });
        $('#skipValue').change(function () {
            files.setSkipFrames(Number($(this).val()));
            refreshSkip();
        });
        $('#openSd').click(function () {
            files.selectSDDrive(Number($('#sdDrives').val()));
            refresh();
        });
        $('#openVp').click(function () {
            var drive = chosenDrive(vpDrives, $('#vpDrives'));
            if (drive)
                files.selectVPDrive(drive.drivetype, drive.driveno, drive.slotno, drive.drivename);
            refresh();
        });
        $('#openCf').click(function () {
            var drive = chosenDrive(cfDrives, $('#cfDrives'));
            if (drive)
                files.selectCFDrive(drive.drivetype, drive.driveno, drive.slotno, drive.drivename);
            refresh();
        });
        $('#vpDrives, #cfDrives').change(refreshUse);
        $('#formatVp').click(function () { format(vpDrives, $('#vpDrives'), 'formatVaultPack'); });
        $('#formatCf').click(function () { format(cfDrives, $('#cfDrives'), 'formatCFast'); });
        $('#deleteFile').click(function () {
            var row = currentRow();
            if (!row)
                return;
            if (!files.checkDeleteFile(Number(row.dockey))) {
                files.warn(files.translate('The file of this document can not be deleted.'));
            } else if (files.confirm(files.translate('Delete %1?').replace('%1', row.filepath))) {
                files.deleteFile(Number(row.dockey));
                refresh();
            }
        });
        $('#rename').click(function () {
            var row = currentRow();
            if (row && files.canConvertDataName(Number(row.dockey))) {
                files.convertDataName(Number(row.dockey), $('#dataName').val(), Number(row.datano || 1), true);
                refresh();
            }
        });
        $('#savedCheck').click(function () {
            if (files.savedCheck(rows))
                fillRows();
        });
        $('#openFolder').click(function () {
            if (files.openFolder())
                refresh();
        });
        $('#editInfo').click(function () { files.saveInfoView(keysOf(checkedRows())); });
        $('#timeCode').click(function () { files.openCustumTimeCodeDialog(); });
        $('#convertSettings').click(function () {
            files.openConvertParameterEditDialog(keysOf(checkedRows()).map(String));
        });
        $('#save').click(function () { submit('saveAction'); });
        $('#apply').click(function () {
            submit('applyAction');
            refresh();
        });
        $('#import').click(function () {
            files.importTarget(keysOf(checkedRows()).map(Number));
            files.saveAction();
        });
        $('#cancel').click(function () { files.cancelAction(); });
    }

    $(function () {
        for (var i = 0; i < kinds.length && !kind; ++i) {
            if (window[kinds[i]])
                kind = kinds[i];
        }
        files = kind ? hostpage.init(kind, {}) : null;
        if (!files)
            return;
        $('body').toggleClass('open', isOpen());
        $('#apply, #save, #savedCheck, #deleteFile, #editInfo, #timeCode').toggle(!isOpen());
        $('#import, #openFolder').toggle(isOpen());
        $('#convertSettings').toggle(kind === 'batchconverter');
        if (window.savefile)
            savesettings.render($('#settings'), window.savefile, refreshTarget);
        bind();
        refresh();
    });

    return {
        refresh: function () {
            if (files)
                refresh();
        },
        // The rows as the page holds them, for tests and the host's automation.
        rows: function () {
            return rows;
        },
        check: function (dockey, partitionno, on) {
            checked[dockey + ':' + partitionno] = on;
            fillRows();
        }
    };
})();
