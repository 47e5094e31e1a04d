#include <QtTest>

class tst_ScriptRunner : public QObject
{
    Q_OBJECT
};

QTEST_MAIN(tst_ScriptRunner)
#include "tst_scriptrunner.moc"
