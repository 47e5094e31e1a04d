#pragma once

#include "generator/DOC_SignalGenerator.h"

#include <QStringList>

// The 33210A over a VISA TCP/IP session, in SCPI. Every operation but the opening of the
// session runs on the GUI thread; the opening runs on a worker behind a running bar.
class DOC_VIGen : public DOC_SignalGenerator
{
public:
    explicit DOC_VIGen(APP_Host* host);
    ~DOC_VIGen() override;

    // Says only whether VISA could open the resource; isSupportedDevice is the caller's next step.
    bool connect(int kind, quint32 address) override;
    void disconnect() override;
    bool isConnected() override;
    bool isSupportedDevice() override;
    QString getIdentity() override;
    void sync(int frequency) override;
    bool loadLibrary() override;
    void unloadLibrary() override;
    QList<int>& getFrequencyList(QList<int>& list) override;
    int getFrequency() override;

    // The VISA resource string for connect's kind and address; empty for an unknown kind.
    static QString resourceString(int kind, quint32 address);

private:
    QStringList m_supportedModels;
    bool m_libraryLoaded = false;
};
