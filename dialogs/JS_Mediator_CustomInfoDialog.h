#pragma once

#include "web/JS_Mediator_Dialog.h"

#include <QList>
#include <QMap>
#include <QPointer>
#include <QVariant>
#include <QVariantList>

class DOC_Interface;
class QWidget;

// The custom info page's object "CustomInfoDialog". Every edit goes to the documents at once;
// the mediator keeps only the lists they held at construction, which cancel restores. The page's
// selected field stands for the display flag with callback type 15 and for the file name flag
// with any other.
class JS_Mediator_CustomInfoDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    // Takes the snapshot; a host failure while taking it leaves the constructor.
    JS_Mediator_CustomInfoDialog(APP_Host* host, QWidget* parent, bool forTemporary);

    // The parent of the file dialogs.
    void setParentWidget(QWidget* parent) { m_parent = parent; }
    void setCallbackType(int type) { m_callbackType = type; }

    // save and load once the file is chosen. Writing fails silently, as save does; reading a
    // file without an item throws DOC_ReadFileException and leaves the documents as they were.
    void saveToFile(const QVariantList& customs, const QString& path);
    void loadFromFile(const QVariantList& targets, const QString& path);

public slots:
    void cancel();
    QString getDeviceInfo();
    QString getCustomInfo(int dockey);
    void save(const QVariantList& customs);
    void load(const QVariantList& targets);
    void deleteCustomData(const QVariantList& targets, const QVariantList& customs);
    void restoreCustomData(const QVariantList& targets, const QVariantList& customs);
    void editCustomData(const QVariantList& targets, const QVariant& custom);
    void addCustomData(const QVariantList& targets, const QVariant& custom);
    void enableCustomData(const QVariantList& targets, const QVariantList& customs);
    void setSelectedDeviceItems(const QList<int>& ids);
    int getCurrentDeviceRecord();
    int getCallbackType();

private:
    QList<int> documentKeyList();
    // The documents of the page's keys, those that have gone left out.
    QList<DOC_Interface*> targetDocuments(const QVariantList& targets);
    void restoreTargets(const QVariantList& targets, const QVariantList& customs);
    // A slot that changes documents: traced, and ending in documentsChanged unless it failed.
    template <typename Body>
    void changeDocuments(const char* name, const QString& parameters, Body&& body);

    QPointer<QWidget> m_parent;
    QMap<QString, QVariant> m_originalCustomData;
    int m_currentRecord = 0;
    QList<int> m_selectedRecords;
    int m_callbackType = 15;
    bool m_forTemporary;
};
