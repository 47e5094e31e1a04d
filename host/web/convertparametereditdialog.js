// The settings of the automatic conversion for a list of documents: the convert dialog's
// settings page ("savefile") and the target the conversion would use. Settings are written as
// they change and stay; OK and Cancel only close.
var convertParametersPage = (function () {
    var m = null;

    function refreshTarget() {
        $('#targetPath').text(m.getExportPath());
    }

    $(function () {
        m = hostpage.init('convertparametereditdialog', {});
        if (!m)
            return;
        m.list();
        $('#items').text(m.getTargetItems().join(', '));
        if (window.savefile)
            savesettings.render($('#settings'), window.savefile, refreshTarget);
        refreshTarget();
    });

    return {};
})();
