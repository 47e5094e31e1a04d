// The host's camera settings file reader on arbitrary bytes: a file a user hands the host may be
// cut short, edited, or of another program. Beyond not crashing, a file the reader takes comes
// back the same through the writer and the reader, and a refused one leaves nothing behind.
//
// Input: the file's bytes.

#include "host/HST_SettingsFile.h"

#include "FuzzCheck.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    QList<HST_SettingsFile::Camera> cameras;
    QString error;
    if (!HST_SettingsFile::read(bytes, cameras, error)) {
        check(cameras.isEmpty());
        check(!error.isEmpty());
        return 0;
    }
    check(!cameras.isEmpty());
    QList<HST_SettingsFile::Camera> again;
    check(HST_SettingsFile::read(HST_SettingsFile::write(cameras), again, error));
    check(again.size() == cameras.size());
    for (int i = 0; i < cameras.size(); ++i) {
        check(again.at(i).name == cameras.at(i).name);
        check(again.at(i).model == cameras.at(i).model);
        check(again.at(i).settings == cameras.at(i).settings);
    }
    return 0;
}
