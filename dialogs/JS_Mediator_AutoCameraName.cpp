#include "dialogs/JS_Mediator_AutoCameraName.h"

#include "dialogs/CameraNameList.h"
#include "plugin/APP_Host.h"
#include "util/UTL_Barrier.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

JS_Mediator_AutoCameraName::JS_Mediator_AutoCameraName(APP_Host* host, const QString& name)
    : JS_Mediator(host, name)
{
}

bool JS_Mediator_AutoCameraName::existsAutoCompleteFile()
{
    return UTL_Barrier::reported(m_host, false,
        [this] { return m_host->isCameraNameListEnabled() && cameraNameListExists(m_host); });
}

QString JS_Mediator_AutoCameraName::autoCompleteCameraList()
{
    return UTL_Barrier::reported(m_host, QStringLiteral("[]"), [this] {
        CameraNameMap map;
        QJsonArray defaults;
        QJsonArray others;
        if (readCameraNameList(m_host, map)) {
            const QString defaultCategory = QLatin1String(defaultCameraCategory);
            for (auto it = map.cbegin(); it != map.cend(); ++it) {
                const bool isDefault = it.key() == defaultCategory;
                QJsonArray& entries = isDefault ? defaults : others;
                const QString category = isDefault ? QString() : it.key();
                for (const QString& name : it.value())
                    entries.append(QJsonObject { { QStringLiteral("label"), name },
                        { QStringLiteral("category"), category } });
            }
        }
        for (const QJsonValue& entry : qAsConst(others))
            defaults.append(entry);
        return QString::fromUtf8(QJsonDocument(defaults).toJson(QJsonDocument::Compact));
    });
}
