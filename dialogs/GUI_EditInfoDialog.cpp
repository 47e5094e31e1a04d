#include "dialogs/GUI_EditInfoDialog.h"

#include "dialogs/InfoDisplayList.h"
#include "dialogs/InfoSettingsHtml.h"
#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"
#include "web/GUI_WebView.h"

#include <QCloseEvent>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebFrame>

namespace {

const Qt::WindowFlags dialogFlags
    = Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint | Qt::WindowTitleHint;

QWidget* mainWindow(APP_Host* host)
{
    return UTL_Barrier::reported(
        host, static_cast<QWidget*>(nullptr), [host] { return host->getMainWindow(); });
}

QVariantMap sizeMap(const QSize& size)
{
    return { { QStringLiteral("width"), size.width() },
        { QStringLiteral("height"), size.height() } };
}

} // namespace

int GUI_EditInfoDialog::initialSet(int mode)
{
    switch (mode) {
    case 6:
        return 2;
    case 7:
        return 3;
    case 16:
        return 4;
    default:
        return 1;
    }
}

GUI_EditInfoDialog::GUI_EditInfoDialog(APP_Host* host, int mode, bool isSaveView,
    DOC_Interface* document, int partition, const QList<int>& keys, const QDateTime& dateTime)
    : GUI_Dialog(mainWindow(host), dialogFlags, true)
    , m_host(host)
    , m_isSaveView(isSaveView)
    , m_mode(mode)
    , m_document(document)
    , m_partition(partition)
    , m_documentKeys(keys)
    , m_dateTime(dateTime)
    , m_store(host, isSaveView)
    , m_layout(new QVBoxLayout(this))
    , m_webView(new GUI_WebView(host, this))
    , m_offset(isSaveView ? initialSet(mode) : 0)
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    setWindowTitle(UTL_Messages::translate(m_host, QStringLiteral("edit information")));
    UTL_Barrier::reported(m_host, [&] {
        if (!m_document) {
            m_document = m_host->currentDocument();
            m_partition = -1;
        }
        if (m_document && m_partition < 0)
            m_partition = m_document->currentPartition(true);
        for (int set = 0; set < InfoSetStore::setCount; ++set) {
            if (!m_isSaveView && set > 0)
                break;
            m_initialDisplay[size_t(set)] = displayText(set);
            m_initial[size_t(set)] = m_store.readAll(set);
        }
        if (!m_isSaveView)
            m_initialBlankLine = m_host->getPrefBool(PREF_KEY_INFO_BLANK_LINE, QVariant());
        m_backup = m_initial[size_t(m_offset)];
    });
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_webView);
    connect(m_webView->page()->mainFrame(), &QWebFrame::javaScriptWindowObjectCleared, this,
        &GUI_EditInfoDialog::populateJavaScriptWindowObject);
    if (m_isSaveView)
        setFixedSize(850, 680);
    else
        setFixedSize(340, 680);
    m_webView->load(QUrl(m_isSaveView ? QStringLiteral("qrc:/saveinfoview.html")
                                      : QStringLiteral("qrc:/editinfo.html")));
}

GUI_EditInfoDialog::~GUI_EditInfoDialog()
{
    delete m_webView;
    m_webView = nullptr;
}

void GUI_EditInfoDialog::populateJavaScriptWindowObject()
{
    m_webView->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("editInfo"), this);
}

bool GUI_EditInfoDialog::validSet(int offset) const
{
    if (offset >= 0 && offset < InfoSetStore::setCount)
        return true;
    qWarning("edit information: there is no set %d", offset);
    return false;
}

QString GUI_EditInfoDialog::displayKey(int offset) const
{
    return m_isSaveView ? PREF_KEY_SAVEINFO_DISPLAY + QString::number(offset)
                        : PREF_KEY_INFO_DISPLAY;
}

QString GUI_EditInfoDialog::displayText(int offset)
{
    QString text;
    return m_host->getPrefString(text, displayKey(offset), QVariant());
}

void GUI_EditInfoDialog::writeDisplay(int offset, const QString& text)
{
    m_host->setPrefString(displayKey(offset), text);
}

void GUI_EditInfoDialog::refreshViews()
{
    // All bits with the flag: every view repaints.
    m_host->updateUI(0xFFFFFFFFu, true);
}

void GUI_EditInfoDialog::refreshAfter(bool update)
{
    if (!m_isSaveView && update)
        refreshViews();
}

void GUI_EditInfoDialog::warn(const QString& sourceText)
{
    m_host->showWarning(UTL_Messages::translate(m_host, sourceText), this);
}

QString GUI_EditInfoDialog::getInfoSettingsHtml(int offset)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::getInfoSettingsHtml"),
        FunctionLogGuard::parameter(QStringLiteral("offset"), offset));
    m_listBuilt = false;
    if (!validSet(offset))
        return QString();
    return UTL_Barrier::reported(m_host, QString(), [&] {
        const InfoDisplayList list = InfoDisplayList::parse(displayText(offset));
        const int kind = m_host->saveTargetKind();
        m_itemEnabled.clear();
        if (m_document) {
            for (const InfoItem* item = INFO_ITEMS; !item->key.isEmpty(); ++item) {
                if (item->key == INFO_KEY_SEPARATOR)
                    continue;
                const unsigned char flag = m_isSaveView ? item->saved
                    : kind == 0                         ? item->live
                    : kind == 1                         ? item->memory
                                                        : item->file;
                m_itemEnabled.insert(item->key, flag != 0);
            }
        }
        QString html = InfoSettingsHtml::build(
            list, m_itemEnabled, m_isSaveView,
            [this](const QString& key) {
                QString label;
                return m_host->itemLabel(label, key);
            },
            UTL_Messages::translate(m_host, QStringLiteral("edit...")));
        m_listBuilt = true;
        return html;
    });
}

void GUI_EditInfoDialog::changeDisp(const QString& id, bool check, int offset)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::changeDisp"),
        FunctionLogGuard::parameter(QStringLiteral("id"), id)
            + FunctionLogGuard::parameter(QStringLiteral("check"), check)
            + FunctionLogGuard::parameter(QStringLiteral("offset"), offset));
    if (!validSet(offset))
        return;
    UTL_Barrier::reported(m_host, [&] {
        InfoDisplayList list = InfoDisplayList::parse(displayText(offset));
        if (!list.setState(id, check))
            return;
        writeDisplay(offset, list.toText());
        refreshAfter(true);
    });
}

void GUI_EditInfoDialog::changeOrder(const QString& idList, int offset)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::changeOrder"),
        FunctionLogGuard::parameter(QStringLiteral("idList"), idList)
            + FunctionLogGuard::parameter(QStringLiteral("offset"), offset));
    if (!validSet(offset))
        return;
    UTL_Barrier::reported(m_host, [&] {
        InfoDisplayList list = InfoDisplayList::parse(displayText(offset));
        list.reorder(idList);
        writeDisplay(offset, list.toText());
        refreshAfter(true);
    });
}

QVariant GUI_EditInfoDialog::setting(InfoSetting which, int offset)
{
    if (!validSet(offset))
        return QVariant();
    return UTL_Barrier::reported(m_host, QVariant(), [&] { return m_store.read(which, offset); });
}

void GUI_EditInfoDialog::store(InfoSetting which, int set, const QVariant& value)
{
    m_store.write(which, set, value);
    if (which != InfoSetting::FontName || !m_isSaveView || set == 0)
        return;
    QString language;
    if (m_host->getPrefString(language, PREF_KEY_DISPLAY_LANGUAGE, QVariant())
        != QLatin1String("ja"))
        m_host->setOverlayFont(value.toString(), set - 1);
}

void GUI_EditInfoDialog::change(InfoSetting which, QVariant value, bool update)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::change"),
        FunctionLogGuard::parameter(QStringLiteral("setting"), int(which))
            + FunctionLogGuard::parameter(QStringLiteral("value"), value));
    UTL_Barrier::reported(m_host, [&] {
        if (!m_store.has(which))
            return;
        const QString problem = InfoSetStore::check(which, value);
        if (!problem.isEmpty()) {
            warn(problem);
            return;
        }
        store(which, m_offset, value);
        refreshAfter(update);
    });
}

void GUI_EditInfoDialog::writeSet(int set, const InfoSetValues& values)
{
    for (int i = 0; i < infoSettingCount; ++i) {
        if (m_store.has(InfoSetting(i)))
            store(InfoSetting(i), set, values[size_t(i)]);
    }
}

QSize GUI_EditInfoDialog::documentResolution()
{
    QSize size;
    if (m_document)
        m_document->imageSize(size);
    return size;
}

void GUI_EditInfoDialog::backupFontSettings(int offset)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::backupFontSettings"),
        FunctionLogGuard::parameter(QStringLiteral("offset"), offset));
    if (!validSet(offset))
        return;
    UTL_Barrier::reported(m_host, [&] {
        m_offset = offset;
        m_backup = m_store.readAll(offset);
        if (m_isSaveView)
            m_backupCollective
                = m_host->getPrefBool(PREF_KEY_SAVEINFO_COLLECTIVE_SETTING, QVariant());
    });
}

void GUI_EditInfoDialog::restoreFontSettings()
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::restoreFontSettings"), QString());
    UTL_Barrier::reported(m_host, [&] {
        writeSet(m_offset, m_backup);
        if (m_isSaveView)
            m_host->setPrefVariant(PREF_KEY_SAVEINFO_COLLECTIVE_SETTING, m_backupCollective);
    });
}

void GUI_EditInfoDialog::writeFontOK()
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::writeFontOK"), QString());
    UTL_Barrier::reported(m_host, [&] {
        if (m_store.read(InfoSetting::FixedFontSizeRatio, m_offset).toBool())
            m_store.write(InfoSetting::BaseResolution, m_offset, documentResolution());
        if (!m_isSaveView || !m_host->getPrefBool(PREF_KEY_SAVEINFO_COLLECTIVE_SETTING, QVariant()))
            return;
        const int current = m_offset;
        const InfoSetValues values = m_store.readAll(current);
        for (int set = 1; set < InfoSetStore::setCount; ++set) {
            if (set == current)
                continue;
            m_offset = set;
            writeSet(set, values);
        }
        m_offset = current;
    });
}

void GUI_EditInfoDialog::writeFontCancel()
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::writeFontCancel"), QString());
    UTL_Barrier::reported(m_host, [&] {
        if (!m_isSaveView) {
            writeSet(0, m_initial[0]);
            refreshViews();
            return;
        }
        for (int set = 1; set < InfoSetStore::setCount; ++set)
            writeSet(set, m_initial[size_t(set)]);
    });
}

QStringList GUI_EditInfoDialog::getFontNameList()
{
    return UTL_Barrier::reported(m_host, QStringList(), [&] {
        QStringList fonts;
        return m_host->fontList(fonts);
    });
}

QStringList GUI_EditInfoDialog::getFontSizeList()
{
    QStringList sizes;
    for (int size : { 7, 8, 9, 10, 11, 12, 13, 14, 16, 18, 20, 22, 24, 26, 28, 32, 36, 40, 44 })
        sizes.append(QString::number(size));
    return sizes;
}

QStringList GUI_EditInfoDialog::getToColumnList()
{
    QStringList counts;
    for (int count = 2; count <= 8; ++count)
        counts.append(QString::number(count));
    return counts;
}

bool GUI_EditInfoDialog::isCollectiveSetting()
{
    return UTL_Barrier::reported(m_host, false,
        [&] { return m_host->getPrefBool(PREF_KEY_SAVEINFO_COLLECTIVE_SETTING, QVariant()); });
}

void GUI_EditInfoDialog::setCollectiveSetting(bool value, bool update)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::setCollectiveSetting"),
        FunctionLogGuard::parameter(QStringLiteral("value"), value));
    UTL_Barrier::reported(m_host, [&] {
        m_host->setPrefVariant(PREF_KEY_SAVEINFO_COLLECTIVE_SETTING, value);
        refreshAfter(update);
    });
}

QVariantMap GUI_EditInfoDialog::getFixedFontSizeRatioBaseResolution(int offset)
{
    return sizeMap(setting(InfoSetting::BaseResolution, offset).toSize());
}

int GUI_EditInfoDialog::getIconSize(int)
{
    return UTL_Barrier::reported(
        m_host, 0, [&] { return m_host->getPrefInt(PREF_KEY_INFO_ICON_SIZE, QVariant()); });
}

void GUI_EditInfoDialog::setIconSize(int size, bool update)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::setIconSize"),
        FunctionLogGuard::parameter(QStringLiteral("size"), size));
    UTL_Barrier::reported(m_host, [&] {
        if (size < 8 || size > 1024) {
            warn(QStringLiteral("The icon size must be a whole number from 8 to 1024."));
            return;
        }
        m_host->setPrefVariant(PREF_KEY_INFO_ICON_SIZE, size);
        refreshAfter(update);
    });
}

bool GUI_EditInfoDialog::getWithinImage()
{
    return UTL_Barrier::reported(m_host, false,
        [&] { return m_host->getPrefBool(PREF_KEY_SAVEINFO_WITHIN_IMAGE, QVariant()); });
}

void GUI_EditInfoDialog::setWithinImage(bool value, bool update)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::setWithinImage"),
        FunctionLogGuard::parameter(QStringLiteral("value"), value));
    UTL_Barrier::reported(m_host, [&] {
        m_host->setPrefVariant(PREF_KEY_SAVEINFO_WITHIN_IMAGE, value);
        refreshAfter(update);
    });
}

bool GUI_EditInfoDialog::getDisplayBlankLine()
{
    return UTL_Barrier::reported(
        m_host, false, [&] { return m_host->getPrefBool(PREF_KEY_INFO_BLANK_LINE, QVariant()); });
}

void GUI_EditInfoDialog::setDisplayBlankLine(bool display)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::setDisplayBlankLine"),
        FunctionLogGuard::parameter(QStringLiteral("display"), display));
    UTL_Barrier::reported(m_host, [&] {
        m_host->setPrefVariant(PREF_KEY_INFO_BLANK_LINE, display);
        refreshAfter(true);
    });
}

void GUI_EditInfoDialog::reset()
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::reset"), QString());
    UTL_Barrier::reported(m_host, [&] {
        if (m_isSaveView) {
            for (int set = 0; set < InfoSetStore::setCount; ++set)
                m_host->restoreDefault(displayKey(set));
        } else {
            QVariant display;
            if (m_host->defaultVariant(display, PREF_KEY_INFO_DISPLAY).isValid())
                m_host->setPrefString(PREF_KEY_INFO_DISPLAY, display.toString());
            QVariant blankLine;
            if (m_host->defaultVariant(blankLine, PREF_KEY_INFO_BLANK_LINE).isValid())
                m_host->setPrefBool(PREF_KEY_INFO_BLANK_LINE, blankLine.toBool());
        }
        refreshViews();
    });
}

bool GUI_EditInfoDialog::confirm(const QString& message)
{
    return UTL_Barrier::reported(
        m_host, false, [&] { return m_host->confirm(message, this, QVariantMap()); });
}

void GUI_EditInfoDialog::writeBack()
{
    if (m_writtenBack)
        return;
    m_writtenBack = true;
    UTL_Barrier::reported(m_host, [&] {
        if (m_isSaveView) {
            for (int set = 0; set < InfoSetStore::setCount; ++set)
                writeDisplay(set, m_initialDisplay[size_t(set)]);
        } else {
            writeDisplay(0, m_initialDisplay[0]);
            m_host->setPrefBool(PREF_KEY_INFO_BLANK_LINE, m_initialBlankLine);
        }
    });
    writeFontCancel();
}

void GUI_EditInfoDialog::ok()
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::ok"), QString());
    m_accepted = true;
    accept();
    close();
}

void GUI_EditInfoDialog::cancel()
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::cancel"), QString());
    writeBack();
    reject();
    close();
}

void GUI_EditInfoDialog::closeEvent(QCloseEvent* event)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::closeEvent"), QString());
    if (!m_accepted)
        writeBack();
    GUI_Dialog::closeEvent(event);
}

QString GUI_EditInfoDialog::getStyle()
{
    return UTL_Barrier::reported(m_host, QString(), [this] {
        QString style;
        return m_host->getPrefString(style, PREF_KEY_ENV_STYLE, QStringLiteral("light"));
    });
}

QString GUI_EditInfoDialog::translate(const QString& string)
{
    return UTL_Messages::translate(m_host, string);
}

bool GUI_EditInfoDialog::onConvertParameterEditDialog()
{
    return UTL_Barrier::reported(
        m_host, false, [&] { return !m_host->isFileMode() && m_mode == 6; });
}

QString GUI_EditInfoDialog::getLogoPath()
{
    return UTL_Barrier::reported(m_host, QString(), [&] {
        QString path;
        return m_host->getPrefString(
            path, m_isSaveView ? PREF_KEY_SAVEINFO_LOGO_PATH : PREF_KEY_INFO_LOGO_PATH, QVariant());
    });
}

void GUI_EditInfoDialog::runSubDialog(const char* name, const std::function<void()>& body)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::") + QLatin1String(name), QString());
    UTL_Barrier::reported(m_host, [&] {
        body();
        refreshAfter(true);
    });
}

void GUI_EditInfoDialog::openSubDialog(const char* name, InfoActions::SubDialog which)
{
    runSubDialog(name, [&] { InfoActions::runSubDialog(m_host, this, which, m_document); });
}

void GUI_EditInfoDialog::setLogoPath()
{
    runSubDialog("setLogoPath",
        [this] { InfoActions::chooseLogo(m_host, this, m_isSaveView, m_documentKeys); });
}

QString GUI_EditInfoDialog::getThumbnail(int width, int height)
{
    SYNC_TRACE(QStringLiteral("GUI_EditInfoDialog::getThumbnail"),
        FunctionLogGuard::parameter(QStringLiteral("width"), width)
            + FunctionLogGuard::parameter(QStringLiteral("height"), height));
    return UTL_Barrier::reported(m_host, QString(), [&] {
        return InfoActions::thumbnail(m_document, m_mode, QSize(width, height), m_partition,
            m_offset, m_dateTime, m_thumbnailSize);
    });
}

QString GUI_EditInfoDialog::getThumbnail(int width)
{
    const QSize resolution
        = UTL_Barrier::reported(m_host, QSize(), [&] { return documentResolution(); });
    const int height = resolution.width() > 0
        ? int(qint64(width) * resolution.height() / resolution.width())
        : width * 3 / 4;
    return getThumbnail(width, height);
}

QVariantMap GUI_EditInfoDialog::getResolution()
{
    return sizeMap(UTL_Barrier::reported(m_host, QSize(), [&] { return documentResolution(); }));
}

QVariantMap GUI_EditInfoDialog::getThumbnailResolution()
{
    return sizeMap(m_thumbnailSize);
}

QString GUI_EditInfoDialog::getResolutionStr()
{
    return UTL_Barrier::reported(m_host, QString(), [&] {
        const QSize size = documentResolution();
        return UTL_Messages::translate(m_host, QStringLiteral("Resolution")) + QStringLiteral(" : ")
            + QString::number(size.width()) + QStringLiteral(" x ")
            + QString::number(size.height());
    });
}

QString GUI_EditInfoDialog::getExportLanguage()
{
    return UTL_Barrier::reported(
        m_host, QString(), [&] { return InfoActions::exportLanguage(m_host); });
}
