// The helpers every page of the host's dialogs shares. Each takes the page's mediator (or the
// element) it works on; none of them keeps state of its own.
var tarvix4func = (function () {
    var ipv4Characters = /^[0-9.]$/;

    $().w2field('addType', 'ipv4', function () {
        $(this.el).on('keypress', function (event) {
            if (event.metaKey || event.ctrlKey || event.altKey || event.charCode === 0)
                return true;
            return ipv4Characters.test(String.fromCharCode(event.charCode));
        });
    });

    function describe(element) {
        var tag = element.tagName.toLowerCase();
        var type = element.type ? element.type.toLowerCase() : '';
        if (tag === 'input' && (type === 'button' || type === 'submit')) return 'Button';
        if (tag === 'input' && type === 'checkbox') return 'CheckBox';
        if (tag === 'input' && type === 'radio') return 'RadioButton';
        if (tag === 'input') return 'TextBox';
        if (tag === 'select') return 'ComboBox';
        if (tag === 'textarea') return 'TextArea';
        return tag;
    }

    function valueOf(element) {
        var type = element.type ? element.type.toLowerCase() : '';
        if (type === 'checkbox' || type === 'radio') return element.checked;
        return element.value === undefined ? '' : String(element.value);
    }

    return {
        applyStyle: function (mediator) {
            var style = mediator.getStyle() === 'dark' ? 'dark' : 'light';
            $('body').removeClass('theme-dark theme-light').addClass('theme-' + style);
        },

        initializeTextfield4IPAddr: function (field) {
            $(field).w2field('ipv4');
        },

        localize: function (mediator) {
            $('.localize').each(function () {
                var element = $(this);
                if (element.is('input')) {
                    element.val(mediator.translate(element.val()));
                } else {
                    element.text(mediator.translate(element.text()));
                }
            });
        },

        enableUserOperationLog: function (mediator) {
            var url = window.location.href;
            function forward(operation) {
                return function () {
                    mediator.userOperationLogWebView(url, operation, describe(this),
                        this.id || '', this.className || '', valueOf(this));
                };
            }
            $(document).on('click', 'input[type=button], input[type=submit], button, '
                + 'input[type=checkbox], input[type=radio]', forward('clicked'));
            $(document).on('change', 'input[type=text], select, textarea', forward('changed'));
        }
    };
})();
