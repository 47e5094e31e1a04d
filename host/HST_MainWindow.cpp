#include "host/HST_MainWindow.h"

#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "plugin/PLG_Interface.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QToolBar>

HST_MainWindow::HST_MainWindow(HST_Host* host)
    : m_host(host)
    , m_toolBar(addToolBar(QStringLiteral("Plug-ins")))
    , m_modeBox(new QComboBox(this))
    , m_documentTable(new QTableWidget(0, 7, this))
{
    setObjectName(QStringLiteral("host_mainWindow"));
    setWindowTitle(QStringLiteral("tarvix4host"));
    m_toolBar->setObjectName(QStringLiteral("host_toolBar"));
    m_toolBar->setMovable(false);

    QToolBar* stateBar = addToolBar(QStringLiteral("State"));
    stateBar->setMovable(false);
    stateBar->addWidget(new QLabel(QStringLiteral(" Mode "), this));
    m_modeBox->setObjectName(QStringLiteral("host_mode"));
    m_modeBox->addItems(
        { QStringLiteral("Live"), QStringLiteral("Memory"), QStringLiteral("File") });
    m_modeBox->setCurrentIndex(host->mode());
    stateBar->addWidget(m_modeBox);
    connect(m_modeBox, QOverload<int>::of(&QComboBox::activated), host, &HST_Host::setMode);
    QAction* close = stateBar->addAction(QStringLiteral("Close document"));
    close->setObjectName(QStringLiteral("host_closeDocument"));
    connect(close, &QAction::triggered, this, [this] {
        const int row = m_documentTable->currentRow();
        if (row >= 0)
            m_host->closeDocument(m_documentTable->item(row, 0)->text().toInt());
    });

    m_documentTable->setObjectName(QStringLiteral("host_documents"));
    m_documentTable->setHorizontalHeaderLabels({ QStringLiteral("Key"), QStringLiteral("Name"),
        QStringLiteral("Address"), QStringLiteral("Type"), QStringLiteral("Model"),
        QStringLiteral("Comment"), QStringLiteral("Custom info") });
    m_documentTable->horizontalHeader()->setStretchLastSection(true);
    m_documentTable->verticalHeader()->hide();
    m_documentTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_documentTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    setCentralWidget(m_documentTable);
    resize(800, 400);

    // Queued: the plug-in may report a change from inside one of its own operations.
    connect(
        host, &HST_Host::stateChanged, this, &HST_MainWindow::refreshState, Qt::QueuedConnection);
    fillDocuments();
}

void HST_MainWindow::addPlugin(PLG_Interface* plugin)
{
    const QString name = plugin->pageName();
    QAction* action = m_toolBar->addAction(name);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [this, plugin, name] { runPlugin(plugin, name); });
    m_plugins.insert(name, plugin);
    m_actions.insert(name, action);
    refreshState();
}

QAction* HST_MainWindow::pluginAction(const QString& name) const
{
    return m_actions.value(name, nullptr);
}

bool HST_MainWindow::press(const QString& name)
{
    QAction* action = pluginAction(name);
    m_host->recorder()->record(QStringLiteral("press"),
        { { QStringLiteral("name"), name }, { QStringLiteral("found"), action != nullptr },
            { QStringLiteral("enabled"), action && action->isEnabled() } });
    if (!action || !action->isEnabled())
        return false;
    action->trigger();
    return true;
}

void HST_MainWindow::recordLeak(const char* operation, const std::exception& e)
{
    // A plug-in must end its own exceptions; the host survives one, and says so.
    qCritical("A plug-in let an exception out of %s: %s", operation, e.what());
    m_host->recorder()->record(QStringLiteral("leak"),
        { { QStringLiteral("operation"), operation },
            { QStringLiteral("text"), QString::fromUtf8(e.what()) } });
}

bool HST_MainWindow::canPress(const QString& name)
{
    // Asked afresh, as a host does when it redraws its tool bar.
    PLG_Interface* plugin = m_plugins.value(name, nullptr);
    QAction* action = pluginAction(name);
    if (!plugin || !action)
        return false;
    action->setEnabled(askEnabled(name, plugin));
    return action->isEnabled();
}

bool HST_MainWindow::askEnabled(const QString& name, PLG_Interface* plugin)
{
    bool enabled = false;
    try {
        enabled = plugin->isEnabled();
    } catch (const std::exception& e) {
        recordLeak("isEnabled", e);
    }
    m_host->recorder()->record(QStringLiteral("isEnabled"),
        { { QStringLiteral("name"), name }, { QStringLiteral("result"), enabled } });
    return enabled;
}

void HST_MainWindow::refreshState()
{
    m_modeBox->setCurrentIndex(m_host->mode());
    fillDocuments();
    for (auto it = m_plugins.begin(); it != m_plugins.end(); ++it) {
        m_actions.value(it.key())->setEnabled(askEnabled(it.key(), it.value()));
        try {
            it.value()->update();
        } catch (const std::exception& e) {
            recordLeak("update", e);
        }
    }
}

void HST_MainWindow::runPlugin(PLG_Interface* plugin, const QString& name)
{
    HST_Recorder* recorder = m_host->recorder();
    recorder->record(QStringLiteral("execute"),
        { { QStringLiteral("name"), name }, { QStringLiteral("phase"), "begin" } });
    ++m_running;
    try {
        plugin->execute();
    } catch (const std::exception& e) {
        recordLeak("execute", e);
        m_host->showReport(e);
    } catch (...) {
        qCritical("A plug-in let an exception of unknown type out of execute");
    }
    --m_running;
    recorder->record(QStringLiteral("execute"),
        { { QStringLiteral("name"), name }, { QStringLiteral("phase"), "end" } });
    emit executeFinished(name);
}

namespace {

// "name=value unit" per item, the displayed ones marked with "*".
QString customText(const QVariantList& items)
{
    QStringList texts;
    for (const QVariant& item : items) {
        const QVariantMap map = item.toMap();
        QString text = map.value(QStringLiteral("name")).toString() + QLatin1Char('=')
            + map.value(QStringLiteral("value")).toString();
        const QString unit = map.value(QStringLiteral("unit")).toString();
        if (!unit.isEmpty())
            text += QLatin1Char(' ') + unit;
        if (map.value(QStringLiteral("display")).toString() == QLatin1String("on"))
            text += QLatin1Char('*');
        texts.append(text);
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace

void HST_MainWindow::fillDocuments()
{
    const QList<HST_Document*> documents = m_host->openDocuments();
    m_documentTable->setRowCount(documents.size());
    for (int row = 0; row < documents.size(); ++row) {
        const HST_Document* document = documents.at(row);
        const HST_CameraState* camera = document->cameraState();
        const QStringList cells { QString::number(document->key()),
            camera ? camera->spec.name : document->fileName(), camera ? camera->spec.ip : QString(),
            camera ? QString::number(camera->spec.type) : QString(),
            camera ? camera->spec.model : QStringLiteral("(file)"), document->commentText(),
            customText(document->customItems()) };
        for (int column = 0; column < cells.size(); ++column)
            m_documentTable->setItem(row, column, new QTableWidgetItem(cells.at(column)));
    }
    m_documentTable->resizeColumnsToContents();
}
