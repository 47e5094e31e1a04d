#pragma once

#include <QObject>
#include <QVariant>
#include <QVariantMap>

// Binds a value to a trigger (a menu action, a button), so that one slot serves many of them:
// the map when one is set, else the single value.
class UTL_CustomAction : public QObject
{
    Q_OBJECT

public:
    explicit UTL_CustomAction(QObject* parent = nullptr);

    QVariant value() const { return m_value; }
    void setValue(const QVariant& value) { m_value = value; }
    QVariantMap values() const { return m_values; }
    void setValues(const QVariantMap& values) { m_values = values; }

signals:
    void signalTriggered(const QVariant& value);
    void signalTriggeredMap(const QVariantMap& values);

public slots:
    void slotTriggered();

private:
    QVariant m_value;
    QVariantMap m_values;
};
