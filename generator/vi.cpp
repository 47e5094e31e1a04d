#include "generator/vi.h"

#include <QDebug>
#include <QFile>
#include <QLibrary>

#include <cstring>
#include <memory>
#include <stdexcept>

namespace {

// The VISA standard's types, declared here rather than taken from a VISA header: the plug-in
// never links a VISA library, it binds one.
using ViStatus = qint32;
using ViSession = quint32;
using ViOpenDefaultRM = ViStatus (*)(ViSession*);
using ViOpen = ViStatus (*)(ViSession, const char*, quint32, quint32, ViSession*);
using ViPrintf = ViStatus (*)(ViSession, const char*, ...);
using ViScanf = ViStatus (*)(ViSession, const char*, ...);
using ViClose = ViStatus (*)(ViSession);
using ViClear = ViStatus (*)(ViSession);

constexpr int replyBufferSize = 1024;

// Process-wide by design: one library, one session. Plain pointers and integers only, so that
// loading and unloading the plug-in runs no static constructors or destructors.
QLibrary* libraryHandle = nullptr;
ViOpenDefaultRM viOpenDefaultRM = nullptr;
ViOpen viOpen = nullptr;
ViPrintf viPrintf = nullptr;
ViScanf viScanf = nullptr;
ViClose viClose = nullptr;
ViClear viClear = nullptr;
ViStatus status = 0;
ViSession session = 0;
ViSession defaultRM = 0;

void clearEntryPoints()
{
    viOpenDefaultRM = nullptr;
    viOpen = nullptr;
    viPrintf = nullptr;
    viScanf = nullptr;
    viClose = nullptr;
    viClear = nullptr;
}

template <typename F>
bool resolve(QLibrary* library, const char* name, F& out)
{
    out = reinterpret_cast<F>(library->resolve(name));
    return out != nullptr;
}

std::runtime_error failure(const QString& function, const QString& command = QString())
{
    QString text = QStringLiteral("visa.dll error, function: %1 error:%2").arg(function).arg(status);
    if (!command.isNull())
        text += QStringLiteral(" command:%1").arg(command);
    return std::runtime_error(text.toStdString());
}

} // namespace

namespace vi {

QByteArray libraryFileName()
{
    QByteArray configured = qgetenv("SYNC_VISA_LIBRARY");
    if (!configured.isEmpty())
        return configured;
#if defined(Q_OS_WIN)
    return QByteArrayLiteral("visa64.dll");
#else
#if defined(SYNC_VISA_BUILT_LIBRARY)
    if (QFile::exists(QStringLiteral(SYNC_VISA_BUILT_LIBRARY)))
        return QByteArrayLiteral(SYNC_VISA_BUILT_LIBRARY);
#endif
    return QByteArrayLiteral("libvxivisa.so");
#endif
}

bool load(const char* fileName)
{
    if (libraryHandle)
        return true;
    auto library = std::make_unique<QLibrary>(QString::fromLocal8Bit(fileName));
    if (!library->load())
        return false;
    QLibrary* file = library.get();
    const bool complete = resolve(file, "viOpenDefaultRM", viOpenDefaultRM)
                          && resolve(file, "viOpen", viOpen)
                          && resolve(file, "viPrintf", viPrintf)
                          && resolve(file, "viScanf", viScanf)
                          && resolve(file, "viClose", viClose)
                          && resolve(file, "viClear", viClear);
    if (!complete) {
        clearEntryPoints();
        library->unload();
        return false;
    }
    // Kept until unload().
    libraryHandle = library.release();
    return true;
}

void unload()
{
    if (!libraryHandle)
        return;
    clearEntryPoints();
    libraryHandle->unload();
    delete libraryHandle;
    libraryHandle = nullptr;
}

bool isLoaded()
{
    return libraryHandle != nullptr;
}

bool open(const QString& resource)
{
    status = viOpenDefaultRM(&defaultRM);
    if (status != 0) {
        QMessageLogger().warning()
            << QStringLiteral("visa.dll error, function: %1 vifunc: %2 error: %3")
                   .arg(QStringLiteral("vi::open"), QStringLiteral("viOpenDefaultRM"))
                   .arg(status);
        return false;
    }
    const QByteArray name = resource.toUtf8();
    status = viOpen(defaultRM, name.constData(), 0, 0, &session);
    if (status != 0) {
        QMessageLogger().warning()
            << QStringLiteral("visa.dll error, function: %1 vifunc: %2 error: %3 constr: %4")
                   .arg(QStringLiteral("vi::open"), QStringLiteral("viOpen"))
                   .arg(status)
                   .arg(resource);
        return false;
    }
    return true;
}

void close()
{
    status = viClose(session);
    if (status != 0) {
        QMessageLogger().warning()
            << QStringLiteral("visa.dll error, function: %1 vifunc: %2 (1) error: %3")
                   .arg(QStringLiteral("vi::close"), QStringLiteral("viClose"))
                   .arg(status);
    }
    status = viClose(defaultRM);
    if (status != 0) {
        QMessageLogger().warning()
            << QStringLiteral("visa.dll error, function: %1 vifunc: %2 (2) error: %3")
                   .arg(QStringLiteral("vi::close"), QStringLiteral("viClose"))
                   .arg(status);
    }
}

void clear()
{
    status = viClear(session);
    if (status < 0)
        throw failure(QStringLiteral("vi::clear"));
}

void sendCommandString(const QString& command)
{
    // The command is the format itself: it must carry no conversion, and none of ours does.
    const QByteArray text = command.toUtf8();
    status = viPrintf(session, text.constData());
    if (status < 0)
        throw failure(QStringLiteral("vi::sendCommandString"), command);
}

QString recvString()
{
    char buffer[replyBufferSize];
    std::memset(buffer, 0, sizeof buffer);
    status = viScanf(session, "%1024t", buffer);
    if (status < 0)
        throw failure(QStringLiteral("vi::recvString"));
    // A full buffer has no terminating zero: never look past its end.
    return QString::fromLatin1(buffer, int(qstrnlen(buffer, sizeof buffer)));
}

qint32 lastStatus()
{
    return status;
}

} // namespace vi
