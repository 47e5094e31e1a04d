// The page kit of the host's pages: hostpage.init sets a page up with its mediator in one call.
// Pages mark texts to translate with the class "localize", their OK and Cancel buttons with
// "hostpage-ok" and "hostpage-cancel", and pass the function that fills them.
var hostpage = (function () {
    var started = false;

    function call(handler, mediator, fallback) {
        return function () {
            if (handler) {
                handler(mediator);
            } else if (typeof mediator[fallback] === 'function') {
                mediator[fallback]();
            }
        };
    }

    return {
        // name: the mediator's name in the page. options.refresh(mediator) runs now and at every
        // update of the mediator; options.ok and options.cancel replace the mediator's ok and
        // cancel behind the buttons. Gives the mediator, or null when the host published none.
        init: function (name, options) {
            var mediator = window[name];
            options = options || {};
            if (!mediator || started)
                return mediator || null;
            started = true;
            tarvix4func.applyStyle(mediator);
            tarvix4func.localize(mediator);
            $('.hostpage-ok').click(call(options.ok, mediator, 'ok'));
            $('.hostpage-cancel').click(call(options.cancel, mediator, 'cancel'));
            tarvix4func.enableUserOperationLog(mediator);
            if (options.refresh) {
                // Connected once: the host emits update after every change of its state.
                mediator.update.connect(function () {
                    tarvix4func.applyStyle(mediator);
                    options.refresh(mediator);
                });
                options.refresh(mediator);
            }
            return mediator;
        },

        // The JSON texts that mediators give, or fallback when a text is empty or broken (a
        // mediator gives "" after a failure it has reported).
        parse: function (text, fallback) {
            try {
                return text ? JSON.parse(text) : fallback;
            } catch (e) {
                return fallback;
            }
        },

        // Text for an element, so that a value can't become markup.
        escape: function (text) {
            return $('<div>').text(text === undefined ? '' : String(text)).html();
        }
    };
})();
