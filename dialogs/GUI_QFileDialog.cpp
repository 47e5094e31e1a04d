#include "dialogs/GUI_QFileDialog.h"

#include "plugin/APP_Host.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"

#include <QGridLayout>

namespace {

QWidget* parentOrMainWindow(APP_Host* host, QWidget* parent)
{
    if (parent)
        return parent;
    return UTL_Barrier::reported(
        host, static_cast<QWidget*>(nullptr), [host] { return host->getMainWindow(); });
}

} // namespace

GUI_QFileDialog::GUI_QFileDialog(APP_Host* host, QWidget* parent, const QString& caption)
    : QFileDialog(parentOrMainWindow(host, parent), UTL_Messages::translate(host, caption))
    , m_host(host)
{
    setOption(QFileDialog::DontUseNativeDialog, true);
}

QGridLayout* GUI_QFileDialog::extraArea() const
{
    return qobject_cast<QGridLayout*>(layout());
}
