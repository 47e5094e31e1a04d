// The custom info dialog: the devices (several may be chosen; every edit goes to all of them),
// the items of the current one with the flag the dialog was opened for, and the item file.
// Edits reach the documents at once; Cancel asks the mediator to put every list back.
var custominfoPage = (function () {
    var displayType = 15;
    var mediator = null;
    var devices = [];
    var chosenDevices = [];
    var current = 0;
    var items = [];
    var chosenItems = [];
    var anchors = {};

    function tr(text) {
        return mediator.translate(text);
    }

    // A click on a row of a list: alone it chooses that row, with Ctrl (or on the row's check
    // box) it adds or removes it, with Shift it chooses the range from the last click.
    function choose(listName, ids, chosen, id, event, toggle) {
        var next;
        if (event.shiftKey && ids.indexOf(anchors[listName]) >= 0) {
            var from = ids.indexOf(anchors[listName]);
            var to = ids.indexOf(id);
            next = ids.slice(Math.min(from, to), Math.max(from, to) + 1);
        } else if (toggle || event.ctrlKey || event.metaKey) {
            next = chosen.indexOf(id) < 0 ? chosen.concat([id])
                                           : chosen.filter(function (c) { return c !== id; });
            anchors[listName] = id;
        } else {
            next = [id];
            anchors[listName] = id;
        }
        // In the list's order, as a list box reports its selection.
        return ids.filter(function (c) { return next.indexOf(c) >= 0; });
    }

    function recids() {
        return devices.map(function (d) { return d.recid; });
    }

    function itemNames() {
        return items.map(function (i) { return i.name; });
    }

    function device(recid) {
        for (var i = 0; i < devices.length; ++i) {
            if (devices[i].recid === recid)
                return devices[i];
        }
        return null;
    }

    function item(name) {
        for (var i = 0; i < items.length; ++i) {
            if (items[i].name === name)
                return items[i];
        }
        return null;
    }

    function targets() {
        return chosenDevices.map(function (recid) { return device(recid).dockey; });
    }

    function note(text) {
        $('#note').text(text ? tr(text) : '');
    }

    function renderDevices() {
        var rows = devices.map(function (d) {
            var chosen = chosenDevices.indexOf(d.recid) >= 0;
            return '<tr data-recid="' + d.recid + '" class="' + (chosen ? 'chosen' : '')
                + (d.recid === current ? ' current' : '') + '">'
                + '<td class="check"><input type="checkbox" id="device-' + d.recid + '"'
                + (chosen ? ' checked' : '') + '></td>'
                + '<td>' + hostpage.escape(d.name) + '</td></tr>';
        });
        $('#devices tbody').html(rows.join(''));
        var shown = device(current);
        $('#currentDevice').text(shown ? shown.name : '');
    }

    function renderItems() {
        var rows = items.map(function (i, index) {
            var chosen = chosenItems.indexOf(i.name) >= 0;
            return '<tr data-index="' + index + '" class="'
                + (chosen ? 'chosen' : '') + '">'
                + '<td class="check"><input type="checkbox" class="flag"'
                + (i.selected ? ' checked' : '') + '></td>'
                + '<td>' + hostpage.escape(i.name) + '</td>'
                + '<td>' + hostpage.escape(i.value) + '</td>'
                + '<td>' + hostpage.escape(i.unit) + '</td></tr>';
        });
        $('#items tbody').html(rows.join(''));
        var one = chosenItems.length === 1 ? item(chosenItems[0]) : null;
        if (one) {
            $('#itemName').val(one.name);
            $('#itemValue').val(one.value);
            $('#itemUnit').val(one.unit);
        }
        var some = targets().length > 0;
        $('#addItem, #loadItems').prop('disabled', !some);
        $('#editItem').prop('disabled', !some || !one);
        $('#deleteItem').prop('disabled', !some || chosenItems.length === 0);
        $('#saveItems').prop('disabled', items.length === 0);
    }

    function loadItems() {
        var shown = device(current);
        items = shown ? hostpage.parse(mediator.getCustomInfo(Number(shown.dockey)), []) : [];
        chosenItems = chosenItems.filter(function (name) { return item(name) !== null; });
        renderDevices();
        renderItems();
    }

    function chooseDevices(recidList) {
        chosenDevices = recidList;
        mediator.setSelectedDeviceItems(chosenDevices);
        current = mediator.getCurrentDeviceRecord();
        chosenItems = [];
        note('');
        loadItems();
    }

    function refresh(m) {
        // The first refresh runs inside hostpage.init, before it has given the mediator.
        mediator = m;
        var info = hostpage.parse(m.getDeviceInfo(), { Records: [], InitSelect: 0 });
        var first = devices.length === 0;
        devices = info.Records || [];
        var known = recids();
        var keep = chosenDevices.filter(function (recid) { return known.indexOf(recid) >= 0; });
        if (first && info.InitSelect)
            keep = [info.InitSelect];
        var flagText = m.getCallbackType() === displayType ? 'Display' : 'File name';
        $('#flagHeader').text(tr(flagText)).attr('title', tr(flagText));
        chooseDevices(keep);
    }

    // One edit of the chosen devices' lists, then the current list again.
    function change(action) {
        note('');
        action();
        loadItems();
    }

    function fields() {
        return { name: $.trim($('#itemName').val()), value: $('#itemValue').val(),
                 unit: $('#itemUnit').val() };
    }

    function add() {
        var entered = fields();
        if (!entered.name)
            return note('Enter a name.');
        if (item(entered.name))
            return note('An item of this name exists.');
        change(function () {
            mediator.addCustomData(targets(), entered);
            chosenItems = [entered.name];
        });
    }

    function edit() {
        var entered = fields();
        var old = chosenItems[0];
        if (!entered.name)
            return note('Enter a name.');
        if (entered.name !== old && item(entered.name))
            return note('An item of this name exists.');
        change(function () {
            mediator.editCustomData(targets(), { oldname: old, name: entered.name,
                                                 value: entered.value, unit: entered.unit });
            chosenItems = [entered.name];
        });
    }

    function remove() {
        var gone = chosenItems.map(function (name) { return { name: name }; });
        change(function () {
            mediator.deleteCustomData(targets(), gone);
            chosenItems = [];
        });
    }

    function setFlag(name, on) {
        change(function () {
            mediator.enableCustomData(targets(), [{ name: name, selected: on }]);
        });
    }

    $(function () {
        mediator = hostpage.init('CustomInfoDialog', {
            refresh: refresh,
            ok: function (m) { m.accept(); },
            // The lists go back first; closing the dialog follows.
            cancel: function (m) {
                m.cancel();
                m.reject();
            }
        });
        if (!mediator)
            return;
        $('#devices').on('click', 'tbody tr', function (event) {
            var onCheck = $(event.target).is('input');
            var recid = Number($(this).attr('data-recid'));
            chooseDevices(choose('devices', recids(), chosenDevices, recid, event, onCheck));
        });
        $('#items').on('click', 'tbody tr', function (event) {
            var name = items[Number($(this).attr('data-index'))].name;
            if ($(event.target).is('input.flag'))
                return setFlag(name, event.target.checked);
            chosenItems = choose('items', itemNames(), chosenItems, name, event, false);
            renderItems();
        });
        $('#addItem').click(add);
        $('#editItem').click(edit);
        $('#deleteItem').click(remove);
        $('#saveItems').click(function () { mediator.save(items); });
        $('#loadItems').click(function () { change(function () { mediator.load(targets()); }); });
    });

    return {
        // For scripts: the names of the items shown, and the devices chosen, by name.
        shownItems: function () { return items.map(function (i) { return i.name; }); },
        chosenDevices: function () {
            return chosenDevices.map(function (recid) { return device(recid).name; });
        }
    };
})();
