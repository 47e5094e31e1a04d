#include "generator/DOC_SignalGenerator.h"

DOC_SignalGenerator::DOC_SignalGenerator(APP_Host* host)
    : m_host(host)
{
}

DOC_SignalGenerator::~DOC_SignalGenerator() = default;
