#include "util/UTL_Messages.h"

#include "plugin/APP_Host.h"
#include "plugin/SharedKeys.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDebug>
#include <QDesktopWidget>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTextStream>

namespace {

const char* const TRANSLATION_CONTEXT = "tarvix4";

// Ends a modal announcement also when exec() is left by an exception.
class ModalAnnouncement
{
public:
    explicit ModalAnnouncement(APP_Host* host)
        : m_host(host && host->isModalAnnounced() ? host : nullptr)
    {
        if (m_host)
            m_host->beginModalDialog();
    }
    ~ModalAnnouncement()
    {
        if (m_host)
            UTL_Barrier::sealed(m_host, "ModalAnnouncement", [this] { m_host->endModalDialog(); });
    }
    ModalAnnouncement(const ModalAnnouncement&) = delete;
    ModalAnnouncement& operator=(const ModalAnnouncement&) = delete;

private:
    APP_Host* m_host;
};

} // namespace

int UTL_Messages::confirmYesNoCancel(
    const QString& text, APP_Host* host, QWidget* parent, const QMap<int, QString>& buttonTexts)
{
    const QString translated
        = QCoreApplication::translate(TRANSLATION_CONTEXT, text.toUtf8().constData());
    SYNC_TRACE(QStringLiteral("UTL_Messages::confirmYesNoCancel"),
        FunctionLogGuard::parameter(QStringLiteral("text"), translated));

    if (!parent && host)
        parent = host->getMainWindow();

    int result = QMessageBox::Cancel;
    {
        QMessageBox box(parent);
        box.setWindowTitle(QCoreApplication::translate(TRANSLATION_CONTEXT, "Confirmation"));
        box.setText(translated);
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        box.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        box.setWindowFlags(box.windowFlags() | Qt::WindowStaysOnTopHint);

        if (!buttonTexts.contains(QMessageBox::Cancel) && host)
            box.button(QMessageBox::Cancel)->setText(translate(host, QStringLiteral("Cancel")));
        for (auto it = buttonTexts.cbegin(); it != buttonTexts.cend(); ++it) {
            if (QAbstractButton* button = box.button(QMessageBox::StandardButton(it.key())))
                button->setText(QCoreApplication::translate(
                    TRANSLATION_CONTEXT, it.value().toUtf8().constData()));
        }
        if (buttonTexts.isEmpty())
            setNativeStyle(host, &box);
        else
            setMessageBoxStyle(host, &box);

        const ModalAnnouncement announcement(host);
        box.show();
        centerOnScreen(host, &box);
        result = box.exec();
    }
    QMessageLogger().info() << QStringLiteral("[") + translated + QStringLiteral("][result:")
            + buttonName(result) + QStringLiteral("]");
    return result;
}

void UTL_Messages::setMessageBoxStyle(APP_Host* host, QWidget* widget)
{
    if (!widget)
        return;
    widget->setStyleSheet(
        styleSheet(isDarkTheme(host) ? QStringLiteral("://ui-messageBox-dark.css")
                                     : QStringLiteral("://ui-messageBox-light.css")));
}

void UTL_Messages::setNativeStyle(APP_Host* host, QWidget* widget)
{
    if (!widget)
        return;
    widget->setStyleSheet(styleSheet(isDarkTheme(host) ? QStringLiteral("://ui-native-dark.css")
                                                       : QStringLiteral("://ui-native-light.css")));
}

void UTL_Messages::centerOnScreen(APP_Host* host, QWidget* widget)
{
    if (!widget || !host || host->getMainWindow())
        return;
    const QList<QScreen*> screens = QGuiApplication::screens();
    const int number = host->getPrefInt(PREF_KEY_MAIN_SCRNO, 0);
    QScreen* screen
        = (number >= 0 && number < screens.size()) ? screens.at(number) : widget->screen();
    if (!screen)
        return;
    const QRect area = screen->geometry();
    widget->move(area.topLeft()
        + QPoint((area.width() - widget->width()) / 2, (area.height() - widget->height()) / 2));
}

QString UTL_Messages::translate(APP_Host* host, const QString& sourceText)
{
    return UTL_Barrier::logged(
        "translate", sourceText, [&] { return host ? host->translate(sourceText) : sourceText; });
}

QString UTL_Messages::buttonName(int button)
{
    switch (button) {
    case QMessageBox::Ok:
        return QStringLiteral("Ok");
    case QMessageBox::No:
        return QStringLiteral("No");
    case QMessageBox::Save:
        return QStringLiteral("Save");
    case QMessageBox::Yes:
        return QStringLiteral("Yes");
    case QMessageBox::Cancel:
        return QStringLiteral("Cancel");
    default:
        return QString();
    }
}

bool UTL_Messages::isDarkTheme(APP_Host* host)
{
    if (!host)
        return false;
    QString style;
    host->getPrefString(style, PREF_KEY_ENV_STYLE, QStringLiteral("light"));
    return style.toLower() == QLatin1String("dark");
}

QString UTL_Messages::styleSheet(const QString& resource)
{
    QFile file(resource);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QString();
    return QTextStream(&file).readAll();
}
