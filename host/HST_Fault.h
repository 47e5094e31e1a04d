#pragma once

#include <QList>
#include <QString>

// A scenario's test hook for one host operation: the operation throws APP_Exception (code 1)
// with the text. With no steps it throws on every call; with steps, once in each of those
// script steps (0: before the first step has acted, n: after step n acted).
struct HST_Fault
{
    QString text;
    QList<int> steps;
};
