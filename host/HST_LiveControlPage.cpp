#include "host/HST_LiveControlPage.h"

#include "host/HST_Recorder.h"

HST_LiveControlPage::HST_LiveControlPage(HST_Recorder* recorder, QObject* parent)
    : PLG_Interface(parent)
    , m_recorder(recorder)
    , m_name(QStringLiteral("livecontrol"))
{
    setObjectName(QStringLiteral("livecontrol"));
    m_variables = QStringList { QStringLiteral("Variable 1"), QStringLiteral("Variable 2"),
        QStringLiteral("Variable 3") };
}

void HST_LiveControlPage::showTab(int tab)
{
    m_tab = tab;
    m_recorder->record(QStringLiteral("showTab"), { { QStringLiteral("tab"), tab } });
}

void HST_LiveControlPage::registerVariable(const QString& value)
{
    m_variables.append(value);
    m_recorder->record(QStringLiteral("registerVariable"), { { QStringLiteral("name"), value } });
}
