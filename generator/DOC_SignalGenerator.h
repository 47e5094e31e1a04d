#pragma once

#include <QList>
#include <QString>

class APP_Host;

// A bench signal generator that can source the cameras' external sync signal. The host is
// borrowed; the session behind a driver is opened by connect and closed by disconnect.
class DOC_SignalGenerator
{
public:
    virtual ~DOC_SignalGenerator();

    // kind 0 is a network instrument at the IPv4 address (first octet in the top byte).
    virtual bool connect(int kind, quint32 address) = 0;
    virtual void disconnect() = 0;
    // A live test on the wire while a session is open.
    virtual bool isConnected() = 0;
    virtual bool isSupportedDevice() = 0;
    virtual QString getIdentity() = 0;
    // Sets the instrument up as the sync source at this frequency in hertz.
    virtual void sync(int frequency) = 0;
    virtual bool loadLibrary() = 0;
    virtual void unloadLibrary() = 0;
    // The frequencies a user may choose, in hertz.
    virtual QList<int>& getFrequencyList(QList<int>& list) = 0;
    virtual int getFrequency() = 0;

    DOC_SignalGenerator(const DOC_SignalGenerator&) = delete;
    DOC_SignalGenerator& operator=(const DOC_SignalGenerator&) = delete;

protected:
    explicit DOC_SignalGenerator(APP_Host* host);

    APP_Host* m_host;
    bool m_connected = false;
};
