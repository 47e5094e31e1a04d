#pragma once

#include <QComboBox>
#include <QList>

// The frequency choice of one hub row. It signals only a real change of the frequency, not
// its own setup.
class GUI_SyncControlCombobox : public QComboBox
{
    Q_OBJECT

public:
    GUI_SyncControlCombobox(const QString& ipAddress, const QList<int>& frequencies, int current,
                            QWidget* parent);
    ~GUI_SyncControlCombobox() override;

    int value() const { return m_value; }
    void setValue(int value) { m_value = value; }

signals:
    void signalTextChanged(GUI_SyncControlCombobox* pComboBox, const QString& ipaddress,
                           int value);

public slots:
    void slotTextChanged();

private:
    QString m_ipAddress;
    int m_value = 0;
};
