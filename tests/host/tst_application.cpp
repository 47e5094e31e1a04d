#include <QtTest>

class tst_Application : public QObject
{
    Q_OBJECT
};

QTEST_MAIN(tst_Application)
#include "tst_application.moc"
