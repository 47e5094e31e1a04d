// Behaviour common to the host's dialog pages: no text selection outside fields, and no
// navigation by a dropped file or a stray link.
$(function () {
    $(document).on('selectstart', function (event) {
        return $(event.target).is('input, textarea');
    });
    $(document).on('dragover drop', function (event) {
        event.preventDefault();
        return false;
    });
    $(document).on('click', 'a[href]', function (event) {
        event.preventDefault();
    });
});
