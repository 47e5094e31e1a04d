#pragma once

#include <QDateTime>
#include <QList>
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

// False when the text holds any of * ? | tab line-feed " < > %. Backslash, slash and colon
// pass, so a whole path can be tested.
bool isValidPathName(const QString& text);

// Movie containers always; the two raw formats only when moviesOnly is false. Case is ignored.
bool isMediaFormat(const QString& format, bool moviesOnly);

// Base 1024, two places behind the point, unit right behind: 1536 gives "1.50KB".
QString formatByteSize(quint64 bytes);

// A BCD date 0xYYMMDD as "20YY/M/D"; above 0xFFFFFF a plain build number; 0 gives "".
QString firmwareDateText(quint32 value);

// A BCD time 0xHHMMSS as "HH:MM:SS"; "" when date and time are both 0.
QString firmwareTimeText(quint32 date, qint32 time);

// "yyyy/M/d" and "HH:mm" or "HH:mm:ss"; an invalid QDateTime for anything else.
QDateTime parseDateTime(const QString& date, const QString& time);

// 1.0 with rate 0.
double framesToMilliseconds(quint32 frames, quint32 frameRate);

// Half a frame rounds up; 1 with rate 0.
quint32 millisecondsToFrames(double milliseconds, quint32 frameRate);

// A second number of 0 is outside the contract; it gives the first.
qint32 greatestCommonDivisor(quint32 a, quint32 b);

// digits counts one more than the places behind the point: (2.345678, 3) gives 2.35.
double roundToDigits(double value, quint32 digits);

// Like roundToDigits, but only the fraction is rounded, half up, also below zero.
double roundFraction(double value, quint32 digits);

// The entry closest to value at four places; on a tie the later entry; 0 for an empty list.
double nearestValue(double value, const QList<double>& list);

// Free bytes of the volume holding path, judged by its root up to the first "/"; never negative.
qint64 freeBytes(const QString& path);
