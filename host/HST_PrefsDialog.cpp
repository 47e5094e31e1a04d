#include "host/HST_PrefsDialog.h"

#include "host/HST_Preferences.h"
#include "host/HST_Recorder.h"
#include "plugin/SharedKeys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

enum class Kind { Check, Choice, Text, Address };

struct FieldSpec
{
    const char* page;
    const QString* key;
    const char* label;
    Kind kind;
    // Check: "1" or "0"; Choice: the index; Text and Address: the text.
    const char* fallback;
    // Choice: the items, "|"-separated; the stored value is the index, or the item itself when
    // the items are words.
    const char* choices;
};

const struct
{
    const char* key;
    const char* title;
} pageSpecs[] = {
    { "s_general", "General" },
    { "s_display", "Display" },
    { "s_record", "Recording" },
    { "s_save", "Saving" },
    { "s_ethernet", "Ethernet" },
};

} // namespace

struct HST_PrefsDialog::Field
{
    QString key;
    Kind kind;
    QVariant fallback;
    bool storesText = false;
    QWidget* widget = nullptr;
};

HST_PrefsDialog::HST_PrefsDialog(
    HST_Preferences* prefs, HST_Recorder* recorder, Translate translate, QWidget* parent)
    : QDialog(parent)
    , m_prefs(prefs)
    , m_recorder(recorder)
    , m_translate(std::move(translate))
    , m_pageList(new QListWidget(this))
    , m_pages(new QStackedWidget(this))
{
    setObjectName(QStringLiteral("host_prefsDialog"));
    setWindowTitle(QStringLiteral("Preferences"));
    m_pageList->setObjectName(QStringLiteral("prefs_pages"));
    m_pageList->setFixedWidth(140);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        if (validate())
            accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_pageList, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);

    auto* body = new QHBoxLayout;
    body->addWidget(m_pageList);
    body->addWidget(m_pages, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(body);
    layout->addWidget(buttons);
    buildPages();
    m_pageList->setCurrentRow(0);
    resize(560, 320);
}

HST_PrefsDialog::~HST_PrefsDialog()
{
    qDeleteAll(m_fields);
}

void HST_PrefsDialog::buildPages()
{
    const FieldSpec specs[] = {
        { "s_general", &PREF_KEY_ENV_STYLE, "Colour theme", Kind::Choice, "light", "light|dark" },
        { "s_display", &PREF_KEY_DISPLAY_WITH_REAL_BIT_DEPTH, "Show the real bit depth",
            Kind::Check, "0", nullptr },
        { "s_display", &PREF_KEY_CUSTOMIZE_UNIT_SYSTEM, "Units", Kind::Choice, "0",
            "Imperial (in, ft, yd)|Metric (\u00b5m, mm, m)" },
        { "s_display", &PREF_KEY_DEVICEMANAGER_CONNECTED_CAMERA_ONLY_SHOWING,
            "Device list: connected cameras only", Kind::Check, "0", nullptr },
        { "s_record", &PREF_KEY_RECORDING_AUTO_DOWNLOAD, "Download automatically after recording",
            Kind::Check, "0", nullptr },
        { "s_record", &PREF_KEY_RECORDING_AUTO_INCREMENT_PARTITION,
            "Next partition after each recording", Kind::Check, "0", nullptr },
        { "s_record", &PREF_KEY_RECORDING_LOOP_RECORD, "Loop recording", Kind::Check, "0",
            nullptr },
        { "s_record", &PREF_KEY_RECORDING_STOP_RECORDING_AFTER_LAST_PARTITION,
            "Stop after the last partition", Kind::Check, "0", nullptr },
        { "s_save", &PREF_KEYS_SNAP.dir, "Snapshot folder", Kind::Text, "", nullptr },
        { "s_save", &PREF_KEY_SAVE_ENABLE_BLANK_FILENAME, "Allow a blank file name", Kind::Check,
            "0", nullptr },
        { "s_save", &PREF_KEY_SAVE_SAVE_INF_FILE, "Save the information file", Kind::Check, "0",
            nullptr },
        { "s_ethernet", &PREF_KEY_CAMERACONNECTION_SEARCH_IP, "Search address", Kind::Address,
            "192.168.0.0", nullptr },
        { "s_ethernet", &PREF_KEY_CAMERACONNECTION_SEARCH_WAY, "Search by", Kind::Choice, "0",
            "Broadcast|Address range" },
        { "s_ethernet", &PREF_KEY_CAMERACONNECTION_ADD_IP_DEFAULT, "Address of a new camera",
            Kind::Address, "192.168.0.10", nullptr },
    };
    for (const auto& pageSpec : pageSpecs) {
        const QString pageKey = QLatin1String(pageSpec.key);
        auto* page = new QWidget(m_pages);
        page->setObjectName(QStringLiteral("prefs_") + pageKey);
        auto* form = new QFormLayout(page);
        for (const FieldSpec& spec : specs) {
            if (pageKey != QLatin1String(spec.page))
                continue;
            auto* field = new Field;
            field->key = *spec.key;
            field->kind = spec.kind;
            const QString objectName
                = QString(field->key).replace(QLatin1Char('/'), QLatin1Char('_'));
            if (spec.kind == Kind::Check) {
                auto* box = new QCheckBox(page);
                field->fallback = QLatin1String(spec.fallback) == QLatin1String("1");
                field->widget = box;
            } else if (spec.kind == Kind::Choice) {
                auto* combo = new QComboBox(page);
                combo->addItems(QString::fromUtf8(spec.choices).split(QLatin1Char('|')));
                // Word items are stored as themselves ("light"), described items by index.
                field->storesText = !QString::fromUtf8(spec.choices).contains(QLatin1Char(' '));
                field->fallback = field->storesText
                    ? QVariant(QLatin1String(spec.fallback))
                    : QVariant(QString::fromLatin1(spec.fallback).toInt());
                field->widget = combo;
            } else {
                auto* edit = new QLineEdit(page);
                field->fallback = QLatin1String(spec.fallback);
                field->widget = edit;
            }
            field->widget->setObjectName(objectName);
            form->addRow(QLatin1String(spec.label), field->widget);
            m_fields.append(field);
        }
        m_pages->addWidget(page);
        // A translation of the page's name is its title; without one the host's own.
        const QString translated = m_translate(pageKey);
        m_pageList->addItem(translated == pageKey ? QLatin1String(pageSpec.title) : translated);
        m_pageKeys.append(pageKey);
    }
}

QString HST_PrefsDialog::currentPage() const
{
    return m_pageKeys.value(m_pageList->currentRow());
}

void HST_PrefsDialog::selectPage(const QString& translatedName)
{
    for (int i = 0; i < m_pageKeys.size(); ++i) {
        if (m_translate(m_pageKeys.at(i)) == translatedName
            || m_pageList->item(i)->text() == translatedName) {
            m_pageList->setCurrentRow(i);
            return;
        }
    }
}

QVariant HST_PrefsDialog::fieldValue(const Field& field) const
{
    switch (field.kind) {
    case Kind::Check:
        return static_cast<QCheckBox*>(field.widget)->isChecked();
    case Kind::Choice: {
        auto* combo = static_cast<QComboBox*>(field.widget);
        return field.storesText ? QVariant(combo->currentText()) : QVariant(combo->currentIndex());
    }
    case Kind::Text:
    case Kind::Address:
        break;
    }
    return static_cast<QLineEdit*>(field.widget)->text().trimmed();
}

void HST_PrefsDialog::load()
{
    m_loaded.clear();
    for (Field* field : qAsConst(m_fields)) {
        const QVariant value = m_prefs->value(field->key, field->fallback);
        m_loaded.insert(field->key, value);
        if (field->kind == Kind::Check) {
            static_cast<QCheckBox*>(field->widget)->setChecked(value.toBool());
        } else if (field->kind == Kind::Choice) {
            auto* combo = static_cast<QComboBox*>(field->widget);
            const int index = field->storesText ? combo->findText(value.toString()) : value.toInt();
            combo->setCurrentIndex(index >= 0 && index < combo->count() ? index : 0);
        } else {
            static_cast<QLineEdit*>(field->widget)->setText(value.toString());
        }
    }
}

bool HST_PrefsDialog::validate()
{
    static const QRegularExpression dotted(
        QStringLiteral("^(25[0-5]|2[0-4]\\d|1?\\d?\\d)(\\.(25[0-5]|2[0-4]\\d|1?\\d?\\d)){3}$"));
    for (Field* field : qAsConst(m_fields)) {
        if (field->kind != Kind::Address || dotted.match(fieldValue(*field).toString()).hasMatch())
            continue;
        m_pageList->setCurrentRow(m_pages->indexOf(field->widget->parentWidget()));
        field->widget->setFocus();
        QMessageBox box(QMessageBox::Warning, QStringLiteral("Preferences"),
            QStringLiteral("\"%1\" is not an IPv4 address.").arg(fieldValue(*field).toString()),
            QMessageBox::Ok, this);
        box.setObjectName(QStringLiteral("host_prefsWarning"));
        box.exec();
        return false;
    }
    return true;
}

void HST_PrefsDialog::save()
{
    for (Field* field : qAsConst(m_fields)) {
        const QVariant value = fieldValue(*field);
        // Compared as text: a value read back from the file is a string.
        if (value.toString() != m_loaded.value(field->key).toString())
            m_prefs->setValue(field->key, value);
    }
}

int HST_PrefsDialog::run()
{
    load();
    m_running = true;
    const int result = exec();
    m_running = false;
    if (result == QDialog::Accepted) {
        save();
        emit applied();
    }
    if (m_recorder)
        m_recorder->record(QStringLiteral("prefsDialog"),
            { { QStringLiteral("page"), currentPage() }, { QStringLiteral("result"), result } });
    return result;
}
