#pragma once

#include <QDateTime>
#include <QString>

// The text rules every output name shares: number texts, file-name characters, times and
// separators. No host involved, so readers of outside data can use them too.

// "C%1H%2S%3", each number right-aligned and filled with "0" to its count; a part whose count
// is below 1 is left out, and a number wider than its count is not cut.
QString numberText(
    int camera, int head, int session, int cameraDigits, int headDigits, int sessionDigits);

// False when the text holds any of \ / * ? | tab line-feed " : < > %.
bool isValidFileName(const QString& text);

// In an invalid name, every \ / : * ? " < > | % becomes the replacement (tab and line feed
// stay); a result of exactly "." or ".." has its dots replaced too.
QString replaceInvalidCharacters(const QString& text, const QString& replacement);

// Always in the C locale, so month and day names never follow the user's language.
QString formatDateTime(const QDateTime& dateTime, const QString& format);
QString currentDateTimeText(const QString& format);

// A non-empty text that doesn't end in "/" gets one; an empty text stays empty.
QString withTrailingSeparator(const QString& path);

// The part behind the name: "name_part", or just "part" when the name is empty.
QString appendNamePart(const QString& name, const QString& part);
