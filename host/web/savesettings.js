// The settings page of the save dialogs, drawn into a container: output format and codec, the
// target directory, group and sub directory, file name, number and time options, information
// file and thumbnail, multiple paths. Each field is a preference of the dialog's family, written
// through the "savefile" mediator as soon as it changes; onChange then lets the dialog show its
// target again.
var savesettings = (function () {
    var savefile = null;
    var prefix = 'export';
    var changed = function () {};

    function familyOf(m) {
        if (m.isSnapMode()) return 'snap';
        if (m.isConvertMode()) return 'convert';
        if (m.isReportMode()) return 'report';
        return 'export';
    }

    function key(name) {
        return prefix + '/' + name;
    }

    function checkbox(name, label) {
        return '<label><input type="checkbox" data-key="' + name + '"> <span class="localize">'
            + label + '</span></label> ';
    }

    function text(name, label, width) {
        return (label ? '<span class="localize">' + label + '</span> ' : '')
            + '<input type="text" data-key="' + name + '" style="width:' + (width || 120) + 'px"> ';
    }

    // A directory level: "groupdir" or "subdir".
    function level(name, title, number) {
        return '<fieldset><legend>' + checkbox(name, title) + '</legend>'
            + '<div class="row">' + text(name + 'name', 'Name', 110)
            + checkbox(name + 'asfilename', 'As file name')
            + checkbox(name + 'asfilenameincludeoption', 'With number and time') + '</div>'
            + '<div class="row">' + checkbox(name + 'addnumber', 'Number')
            + '<span class="sample" id="sample' + number + '"></span> '
            + '<input type="button" class="localize number" data-field="' + number
            + '" value="Digits..."> '
            + checkbox(name + 'addtime', 'Time') + text(name + 'addtimeformat', '', 110) + '</div>'
            + '</fieldset>';
    }

    function markup(m) {
        var formats = m.isSnapMode() ? m.getSnapFileFormats() : m.getFileFormats(false);
        var options = '';
        for (var i = 0; i < formats.length; ++i)
            options += '<option>' + hostpage.escape(formats[i]) + '</option>';
        var codecs = '';
        var filters = m.getCodecFilters();
        for (var c = 0; c < filters.length; ++c)
            codecs += '<option>' + hostpage.escape(filters[c]) + '</option>';
        var withCodec = prefix === 'export' || prefix === 'convert';
        return '<fieldset><legend class="localize">Output</legend><div class="row">'
            + '<span class="localize">Format</span> <select data-key="fileformat" id="format">'
            + options + '</select> '
            + (withCodec ? '<span class="localize">Codec</span> <select data-key="codec" id="codec">'
                + codecs + '</select>' : '')
            + '</div><div class="row">' + text('dir', 'Directory', 230)
            + '<input type="button" id="chooseDir" class="localize" value="...">'
            + ' <span id="freeSpace"></span></div><div class="row">'
            + checkbox('dirasoriginal', 'Directory of the original') + '</div></fieldset>'
            + level('groupdir', 'Group directory', 'GroupDir')
            + level('subdir', 'Sub directory', 'SubDir')
            + '<fieldset><legend class="localize">File name</legend><div class="row">'
            + text('filename', 'Name', 150) + checkbox('filenameasoriginal', 'Original name')
            + '</div><div class="row">' + checkbox('filenameaspartitionname', 'Partition name')
            + checkbox('filenameusecustom', 'Custom info')
            + checkbox('filenameusecustomincludeunit', 'With units')
            + '<input type="button" id="editCustom" class="localize" value="Custom info...">'
            + '</div><div class="row">' + checkbox('filenameaddnumber', 'Number')
            + '<span class="sample" id="sampleFileName"></span> '
            + '<input type="button" class="localize number" data-field="FileName" value="Digits..."> '
            + checkbox('filenameadddetails', 'Details') + checkbox('filenameaddtime', 'Time')
            + text('filenameaddtimeformat', '', 110) + '</div></fieldset>'
            + (withCodec ? '<fieldset><legend class="localize">Beside the output</legend>'
                + '<div class="row">' + checkbox('saveinf', 'Information file')
                + checkbox('savethumbnail', 'Thumbnail') + text('savethumbnailaddtextvalue', 'Suffix', 80)
                + '</div></fieldset>' : '')
            + (prefix === 'export' ? '<fieldset><legend class="localize">Multiple paths</legend>'
                + '<div class="row">' + checkbox('singlepath', 'One path for all')
                + '<input type="text" id="pathName" placeholder="id" style="width:50px"> '
                + '<input type="text" id="pathValue" placeholder="path" style="width:170px"> '
                + '<input type="button" id="addPath" class="localize" value="Add"></div>'
                + '<table class="hostpage-list" id="multiPaths"><tbody></tbody></table></fieldset>' : '');
    }

    function load(container) {
        container.find('[data-key]').each(function () {
            var element = $(this);
            var name = key(element.data('key'));
            if (element.is(':checkbox'))
                element.prop('checked', savefile.getPrefBool(name, false));
            else if (element.is('select'))
                element.val(savefile.getPrefString(name, element.find('option').first().text()));
            else
                element.val(savefile.getPrefString(name, ''));
        });
    }

    function refreshSamples() {
        $('#sampleGroupDir').text(savefile.addNumber4GroupDir());
        $('#sampleSubDir').text(savefile.addNumber4SubDir());
        $('#sampleFileName').text(savefile.addNumber4FileName());
        var dir = $('[data-key=dir]').val();
        $('#freeSpace').text(dir ? savefile.translate('Free') + ': ' + savefile.getFreeSpace(dir) : '');
        $('#codec').prop('disabled', !savefile.isMovieFormat($('#format').val() || ''));
    }

    function refreshPaths() {
        var rows = [];
        var devices = hostpage.parse(savefile.getMultiPathDevices(), []);
        var paths = hostpage.parse(savefile.getMultiPaths(), []);
        for (var p = 0; p < paths.length; ++p)
            rows.push('<tr><td>' + hostpage.escape(paths[p].name) + '</td><td>'
                + hostpage.escape(paths[p].path) + '</td><td></td></tr>');
        for (var d = 0; d < devices.length; ++d) {
            var select = '<select class="devicePath" data-device="' + hostpage.escape(devices[d].device) + '">';
            for (var k = 0; k < devices[d].paths.length; ++k) {
                var id = devices[d].paths[k].key;
                select += '<option' + (id === devices[d].pathselector ? ' selected' : '') + '>'
                    + hostpage.escape(id) + '</option>';
            }
            rows.push('<tr><td>' + hostpage.escape(devices[d].device) + '</td><td>'
                + hostpage.escape(devices[d].path) + '</td><td>' + select + '</select></td></tr>');
        }
        $('#multiPaths tbody').html(rows.join(''));
    }

    // "id|value" pieces joined by "?", as the lists keep them.
    function joinPairs(pairs) {
        return pairs.map(function (pair) { return pair[0] + '|' + pair[1]; }).join('?');
    }

    function bind(container) {
        container.on('change', '[data-key]', function () {
            var element = $(this);
            var name = key(element.data('key'));
            if (element.is(':checkbox'))
                savefile.setPrefBool(name, element.prop('checked'), false);
            else
                savefile.setPrefString(name, element.val(), false);
            refreshSamples();
            changed();
        });
        container.on('click', '#chooseDir', function () {
            var dir = savefile.selectFolder($('[data-key=dir]').val());
            if (dir) {
                $('[data-key=dir]').val(dir).change();
            }
        });
        container.on('click', 'input.number', function () {
            savefile['numberSetting4' + $(this).data('field')]();
            refreshSamples();
            changed();
        });
        container.on('click', '#editCustom', function () {
            savefile.editCustom(false);
            changed();
        });
        container.on('click', '#addPath', function () {
            var name = $.trim($('#pathName').val());
            var path = $.trim($('#pathValue').val());
            if (!name || !path || /[|?]/.test(name + path))
                return;
            var pairs = hostpage.parse(savefile.getMultiPaths(), []).map(function (row) {
                return [row.name, row.path];
            });
            pairs.push([name, path]);
            savefile.setPrefString(PREF_KEY_EXPORT_MULTI_PATH_LIST, joinPairs(pairs), false);
            refreshPaths();
            changed();
        });
        container.on('change', 'select.devicePath', function () {
            var devices = hostpage.parse(savefile.getMultiPathDevices(), []);
            var self = $(this);
            var pairs = devices.map(function (device) {
                return [device.device, device.device === self.data('device') ? self.val()
                                                                              : device.pathselector];
            });
            savefile.setPrefString(PREF_KEY_EXPORT_MULTI_PATH_DEVICE_LIST, joinPairs(pairs), false);
            refreshPaths();
            changed();
        });
    }

    return {
        // Draws the page into container for the "savefile" mediator m; onChange runs after
        // every change of a field.
        render: function (container, m, onChange) {
            savefile = m;
            prefix = familyOf(m);
            changed = onChange || function () {};
            container.html(markup(m));
            container.find('.localize').each(function () {
                var element = $(this);
                if (element.is('input'))
                    element.val(m.translate(element.val()));
                else
                    element.text(m.translate(element.text()));
            });
            load(container);
            bind(container);
            refreshSamples();
            if (prefix === 'export')
                refreshPaths();
        },
        family: function () {
            return prefix;
        },
        refresh: function () {
            if (savefile) {
                refreshSamples();
                if (prefix === 'export')
                    refreshPaths();
            }
        }
    };
})();
