#pragma once

#include "plugin/APP_PrefsDialog.h"

#include <QDialog>
#include <QList>
#include <QMap>
#include <QVariant>

#include <functional>

class HST_Preferences;
class HST_Recorder;
class QListWidget;
class QStackedWidget;

// The host's preferences dialog: named pages ("s_general", "s_display", "s_record", "s_save",
// "s_ethernet"), each a form of preferences. A page is chosen by its translated name; OK writes
// the values the user changed, Cancel writes nothing.
class HST_PrefsDialog : public QDialog, public APP_PrefsDialog
{
    Q_OBJECT

public:
    using Translate = std::function<QString(const QString&)>;

    HST_PrefsDialog(
        HST_Preferences* prefs, HST_Recorder* recorder, Translate translate, QWidget* parent);
    ~HST_PrefsDialog() override;

    // APP_PrefsDialog. A name that is no page's leaves the page shown last.
    void selectPage(const QString& translatedName) override;
    int run() override;

    bool isRunning() const { return m_running; }
    QString currentPage() const;
    static QString ethernetPage() { return QStringLiteral("s_ethernet"); }

signals:
    // OK wrote the preferences: whatever shows them is refreshed.
    void applied();

private:
    struct Field;
    void buildPages();
    void load();
    // False, with the user told, while a field holds what its preference can't take.
    bool validate();
    void save();
    QVariant fieldValue(const Field& field) const;

    HST_Preferences* m_prefs;
    HST_Recorder* m_recorder;
    Translate m_translate;
    QListWidget* m_pageList;
    QStackedWidget* m_pages;
    QList<Field*> m_fields;
    QStringList m_pageKeys;
    QMap<QString, QVariant> m_loaded;
    bool m_running = false;
};
