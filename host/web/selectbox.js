// The select box: a short list of partitions or variables that its owner fills through the
// box's object "items"; a click on an entry sends the choice, which closes the box.
$(function () {
    var items = hostpage.init('items', {});
    if (!items)
        return;
    var list = $('#choices');

    function entry(text, value, notify) {
        return $('<li>').text(text).attr('data-value', value).click(function () { notify(value); });
    }

    items.signalSetHeight.connect(function (height) {
        $('body').css('height', height + 'px');
    });
    items.signalShowPartition.connect(function (partitions) {
        var current = items.getCurrentPartition();
        list.empty();
        $('#register').hide();
        $.each(partitions || [], function (i, partition) {
            var text = 'P' + partition.number + (partition.name ? ' ' + partition.name : '');
            list.append(entry(text, String(partition.number), function (value) {
                items.slotNotifyPartition(value);
            }).toggleClass('current', partition.number === current));
        });
    });
    items.signalShowVariable.connect(function (text) {
        list.empty();
        $.each(hostpage.parse(text, []), function (i, variable) {
            list.append(entry(variable.number + ': ' + variable.name, String(variable.number),
                function (value) { items.slotNotifyVariable(value); }));
        });
        list.append(entry(items.translate('Variable settings...'), 'go-variable',
            function (value) { items.slotNotifyVariable(value); }));
    });
    items.signalShowVariableRegist.connect(function (name) {
        $('#variableName').val(name);
        $('#register').show();
    });
    $('#registerVariable').click(function () {
        items.slotNotifyVariableRegist($.trim($('#variableName').val()));
    });
    // The box's owner waits for this before it tells the page what to offer.
    window.selectboxReady = true;
});
