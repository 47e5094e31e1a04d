// Camera name completion for the device dialogs: the names of the user's camera name list,
// grouped under their categories (the names without a category come first, without a heading).
var cameranames = (function () {
    $.widget('hostpage.catcomplete', $.ui.autocomplete, {
        _create: function () {
            this._super();
            this.widget().menu('option', 'items', '> :not(.ui-autocomplete-category)');
        },
        _renderMenu: function (ul, entries) {
            var that = this;
            var category = '';
            $.each(entries, function (index, entry) {
                if (entry.category !== category) {
                    category = entry.category;
                    $('<li>').addClass('ui-autocomplete-category').text(category).appendTo(ul);
                }
                that._renderItemData(ul, entry);
            });
        }
    });

    return {
        // Completes the field from the list the mediator reads, when the user keeps one. Gives
        // the number of names offered.
        attach: function (field, mediator) {
            if (!mediator || !mediator.existsAutoCompleteFile())
                return 0;
            var names = hostpage.parse(mediator.autoCompleteCameraList(), []);
            if (names.length === 0)
                return 0;
            $(field).catcomplete({ source: names, minLength: 0, delay: 150 });
            return names.length;
        },

        // Whether the field's list is open, so that Enter picks a name instead of ending the
        // dialog.
        isOpen: function (field) {
            var input = $(field);
            return input.catcomplete('instance') !== undefined
                && input.catcomplete('widget').is(':visible');
        }
    };
})();
