#pragma once

#include <QList>
#include <QString>

// A scenario's test hook for one host operation: the operation throws APP_Exception (code 1)
// with the text. With no steps it throws on every call; with steps, once in each of those
// script steps (0: before the first step acts, n: from step n acting on), at the operation's
// first call in that step or after it.
struct HST_Fault
{
    QString text;
    QList<int> steps;
};
