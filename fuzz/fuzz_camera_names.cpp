// The camera name list reader on arbitrary bytes: the list is a text file the user keeps, in
// Shift-JIS or UTF-8 or anything else. Beyond not crashing, what reaches the completion is
// clean: categories and names trimmed and non-empty, names no longer than 1024 characters and
// free of path and wildcard characters, no name twice in a category.
//
// Input: the file's bytes.

#include "dialogs/CameraNameList.h"
#include "save/NamingText.h"

#include <QBuffer>
#include <QByteArray>
#include <QSet>

#include "FuzzCheck.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    CameraNameMap map;
    readCameraNameLines(buffer, map);
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        check(!it.key().isEmpty() && it.key() == it.key().trimmed());
        QSet<QString> seen;
        for (const QString& name : it.value()) {
            check(!name.isEmpty() && name.size() <= 1024);
            check(name.size() == 1024 || name == name.trimmed());
            // Tab and line feed are refused in a file name but not taken out.
            QString plain = name;
            plain.remove(QLatin1Char('\t')).remove(QLatin1Char('\n'));
            check(isValidFileName(plain));
            check(!seen.contains(name));
            seen.insert(name);
        }
    }
    return 0;
}
