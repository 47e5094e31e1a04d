#include "host/HST_MainWindow.h"

#include "host/HST_CameraState.h"
#include "host/HST_DialogOpener.h"
#include "host/HST_Document.h"
#include "host/HST_DocumentArea.h"
#include "host/HST_FileDialogMenu.h"
#include "host/HST_Host.h"
#include "host/HST_PageMenus.h"
#include "host/HST_PagePanel.h"
#include "host/HST_Recorder.h"
#include "host/HST_ToolPages.h"
#include "host/HST_ViewMenu.h"
#include "host/HST_SelectBoxHost.h"
#include "plugin/PLG_Interface.h"
#include "plugin/SharedKeys.h"

#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QToolBar>
#include <QUndoStack>

namespace {

// The page whose buttons the Edit and Help menus press.
const QString statusPage = QStringLiteral("hoststatus");

} // namespace

HST_MainWindow::HST_MainWindow(HST_Host* host)
    : m_host(host)
    , m_toolBar(addToolBar(QStringLiteral("Plug-ins")))
    , m_modeBox(new QComboBox(this))
    , m_documentArea(new HST_DocumentArea(host, this))
    , m_documentTable(new QTableWidget(0, 7, this))
    , m_opener(new HST_DialogOpener(host, this))
    , m_toolPages(new HST_ToolPages(host, this))
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
        else if (m_host->currentDocumentKey() >= 0)
            m_host->closeDocument(m_host->currentDocumentKey());
    });

    setCentralWidget(m_documentArea);
    new HST_SelectBoxHost(host, m_opener, m_documentArea);
    host->setDocumentArea(m_documentArea);

    m_documentTable->setObjectName(QStringLiteral("host_documents"));
    m_documentTable->setHorizontalHeaderLabels({ QStringLiteral("Key"), QStringLiteral("Name"),
        QStringLiteral("Address"), QStringLiteral("Type"), QStringLiteral("Model"),
        QStringLiteral("Comment"), QStringLiteral("Custom info") });
    m_documentTable->horizontalHeader()->setStretchLastSection(true);
    m_documentTable->verticalHeader()->hide();
    m_documentTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_documentTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    auto* documents = new QDockWidget(QStringLiteral("Documents"), this);
    documents->setObjectName(QStringLiteral("host_documentsPanel"));
    documents->setWidget(m_documentTable);
    addDockWidget(Qt::BottomDockWidgetArea, documents);
    buildMenus();
    resize(1100, 720);
    resizeDocks({ documents }, { 150 }, Qt::Vertical);
    // The host starts full screen when its scenario says so.
    if (host->status(STATUS_IS_FULL_SCREEN))
        setWindowState(windowState() | Qt::WindowFullScreen);

    // Queued: the plug-in may report a change from inside one of its own operations.
    connect(
        host, &HST_Host::stateChanged, this, &HST_MainWindow::refreshState, Qt::QueuedConnection);
    fillDocuments();
}

HST_MainWindow::~HST_MainWindow()
{
    m_host->setDocumentArea(nullptr);
}

void HST_MainWindow::buildMenus()
{
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    QAction* openFile = file->addAction(QStringLiteral("Open simulated file"));
    openFile->setObjectName(QStringLiteral("host_openFile"));
    connect(openFile, &QAction::triggered, m_host, [this] { m_host->addFileDocument(); });
    file->addAction(findChild<QAction*>(QStringLiteral("host_closeDocument")));
    m_fileMenu = file;
    m_fileDialogPlace = file->addSeparator();
    connect(file->addAction(QStringLiteral("Quit")), &QAction::triggered, this, &QWidget::close);

    QMenu* edit = menuBar()->addMenu(QStringLiteral("&Edit"));
    QAction* undo = m_host->undoStack()->createUndoAction(this, QStringLiteral("Undo"));
    undo->setObjectName(QStringLiteral("host_undo"));
    QAction* redo = m_host->undoStack()->createRedoAction(this, QStringLiteral("Redo"));
    redo->setObjectName(QStringLiteral("host_redo"));
    edit->addAction(undo);
    edit->addAction(redo);
    edit->addSeparator();
    const struct
    {
        QMenu* menu;
        const char* title;
        const char* button;
    } pageEntries[] = {
        { edit, "Copy selected area", "copyArea" },
        { edit, "Preferences...", "prefs" },
        { edit, "Ethernet settings...", "ethernet" },
    };
    for (const auto& entry : pageEntries) {
        QAction* action = entry.menu->addAction(QLatin1String(entry.title));
        const QString button = QLatin1String(entry.button);
        connect(
            action, &QAction::triggered, this, [this, button] { clickStatusPageButton(button); });
        m_pageActions.append(action);
    }

    m_viewMenu = menuBar()->addMenu(QStringLiteral("&View"));
    QAction* fullScreen = m_viewMenu->addAction(QStringLiteral("Full screen"));
    fullScreen->setObjectName(QStringLiteral("host_fullScreen"));
    fullScreen->setCheckable(true);
    fullScreen->setChecked(m_host->status(STATUS_IS_FULL_SCREEN));
    connect(fullScreen, &QAction::toggled, this, [this](bool on) {
        setWindowState(
            on ? windowState() | Qt::WindowFullScreen : windowState() & ~Qt::WindowFullScreen);
        m_host->recorder()->record(QStringLiteral("fullScreen"), { { QStringLiteral("on"), on } });
        emit m_host->stateChanged();
    });
    m_viewMenu->addSeparator();
    new HST_ViewMenu(m_host, m_viewMenu);
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(
        findChild<QDockWidget*>(QStringLiteral("host_documentsPanel"))->toggleViewAction());

    m_toolsMenu = menuBar()->addMenu(QStringLiteral("&Tools"));

    QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
    QAction* support = help->addAction(QStringLiteral("Export support file..."));
    connect(support, &QAction::triggered, this,
        [this] { clickStatusPageButton(QStringLiteral("support")); });
    m_pageActions.append(support);
    connect(help->addAction(QStringLiteral("About")), &QAction::triggered, this,
        [this] { m_host->showAboutBox(); });
    for (QAction* action : qAsConst(m_pageActions))
        action->setEnabled(false);
}

void HST_MainWindow::addPageActions()
{
    HST_FileDialogMenu::add(m_fileMenu, m_fileDialogPlace, m_opener, m_host);
    for (const HST_DialogOpener::Page& page : m_opener->pages()) {
        if (HST_FileDialogMenu::isFileDialog(page.name))
            continue;
        const QList<HST_PageMenuEntry> placed = HST_PageMenus::entries(page.name);
        for (const HST_PageMenuEntry& entry : placed) {
            const QString name = page.name;
            const QString arg = entry.arg;
            connect(pageMenu(entry.menu)->addAction(entry.text), &QAction::triggered, this,
                [this, name, arg] { m_opener->open(name, arg); });
        }
        if (!placed.isEmpty())
            continue;
        const QString title = m_host->translatedText(page.title);
        QMenu* menu = page.kind == QLatin1String("dialog") ? m_toolsMenu : m_viewMenu;
        QAction* action = menu->addAction(
            page.kind == QLatin1String("dialog") ? title + QStringLiteral("...") : title);
        const QString name = page.name;
        connect(
            action, &QAction::triggered, this, [this, name] { m_opener->open(name, QString()); });
    }
    const bool statusPageThere = m_opener->hasPage(statusPage);
    for (QAction* action : qAsConst(m_pageActions))
        action->setEnabled(statusPageThere);
}

QMenu* HST_MainWindow::pageMenu(const QString& title)
{
    for (QAction* action : menuBar()->actions()) {
        if (action->menu() && action->text().remove(QLatin1Char('&')) == title)
            return action->menu();
    }
    auto* menu = new QMenu(QLatin1Char('&') + title, menuBar());
    menuBar()->insertMenu(m_toolsMenu->menuAction(), menu);
    return menu;
}

void HST_MainWindow::clickStatusPageButton(const QString& id)
{
    if (HST_PagePanel* panel = m_opener->pagePanel(statusPage))
        panel->evaluateWhenLoaded(QStringLiteral("hoststatusPage.press('%1')").arg(id));
}

void HST_MainWindow::addPlugin(PLG_Interface* plugin)
{
    const QString name = plugin->pageName();
    QAction* action = m_toolBar->addAction(name);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [this, plugin, name] { runPlugin(plugin, name); });
    m_plugins.insert(name, plugin);
    m_actions.insert(name, action);
    if (m_opener->addPlugin(plugin))
        addPageActions();
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
    if (auto* fullScreen = findChild<QAction*>(QStringLiteral("host_fullScreen"))) {
        const QSignalBlocker quiet(fullScreen);
        fullScreen->setChecked(isFullScreen());
    }
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
    m_host->setPluginWindowOpen(true);
    try {
        plugin->execute();
    } catch (const std::exception& e) {
        recordLeak("execute", e);
        m_host->showReport(e);
    } catch (...) {
        qCritical("A plug-in let an exception of unknown type out of execute");
    }
    m_host->setPluginWindowOpen(false);
    --m_running;
    recorder->record(QStringLiteral("execute"),
        { { QStringLiteral("name"), name }, { QStringLiteral("phase"), "end" } });
    m_toolPages->executed(plugin);
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
        const QStringList cells { QString::number(document->key()), document->title(),
            camera ? camera->spec.ip : QString(),
            camera ? QString::number(camera->spec.type) : QString(),
            camera ? camera->spec.model : QStringLiteral("(file)"), document->commentText(),
            customText(document->customItems()) };
        for (int column = 0; column < cells.size(); ++column)
            m_documentTable->setItem(row, column, new QTableWidgetItem(cells.at(column)));
    }
    m_documentTable->resizeColumnsToContents();
    m_documentArea->sync();
}
