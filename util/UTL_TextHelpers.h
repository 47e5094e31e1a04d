#pragma once

#include <QString>

// Stateless helpers shared by dialogs and mediators. Texts end up in the user's view and
// addresses on the wire, so each follows its rule exactly, surprises included.

// True when a dotted quad of 1-3 digit groups starts the text; the text may go on, and octets
// are not limited to 255 ("300.300.300.300" passes).
bool isIpAddress(const QString& text);

// Folds the dot-separated parts into one number, first octet in the top byte. A part that is no
// number counts as 0; an octet above 255 spills into the next one up; only the low 32 bits stay.
quint32 ipToNumber(const QString& text);

// The four octets, top byte first, joined by ".".
QString numberToIp(quint32 number);
