// HST_Document's multi-head device and preset operations, apart from the rest of the document.
#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_HeadGroups.h"
#include "host/HST_Recorder.h"
#include "util/APP_Exception.h"

namespace {

int keyOf(DOC_Interface* document)
{
    const auto* ours = dynamic_cast<HST_Document*>(document);
    return ours ? ours->key() : -1;
}

} // namespace

void HST_Document::setConnectWanted(bool wanted)
{
    hostCall("document.setConnectWanted");
    m_connectWanted = wanted;
    record(QStringLiteral("connectWanted"), { { QStringLiteral("wanted"), wanted } });
}

bool HST_Document::isSelectedMulti()
{
    hostCall("document.isSelectedMulti");
    HST_HeadGroups* groups = m_context ? m_context->headGroups : nullptr;
    if (!groups || !groups->isOwner(m_key))
        return m_selected;
    // An owner shows selected while any of its heads is.
    return m_selected || groups->selectedHeadCount(m_key) > 0;
}

bool HST_Document::hasSiblingHeads()
{
    hostCall("document.hasSiblingHeads");
    HST_HeadGroups* groups = m_context ? m_context->headGroups : nullptr;
    return groups && groups->deviceOf(m_key).size() > 1;
}

bool HST_Document::isHeadGroupOwner()
{
    hostCall("document.isHeadGroupOwner");
    return m_context && m_context->headGroups && m_context->headGroups->isOwner(m_key);
}

bool HST_Document::isHeadOfGroup()
{
    hostCall("document.isHeadOfGroup");
    return m_context && m_context->headGroups && m_context->headGroups->isHead(m_key);
}

void HST_Document::selectHead(DOC_Interface* head)
{
    hostCall("document.selectHead");
    const int key = keyOf(head);
    if (isHeadGroupOwner() && m_context->headGroups->ownerOf(key) == m_key)
        m_context->headGroups->selectHeads(m_key, { key }, true);
}

void HST_Document::unselectHead(DOC_Interface* head)
{
    hostCall("document.unselectHead");
    const int key = keyOf(head);
    if (isHeadGroupOwner() && m_context->headGroups->ownerOf(key) == m_key)
        m_context->headGroups->selectHeads(m_key, { key }, false);
}

void HST_Document::unselectAllHeads()
{
    hostCall("document.unselectAllHeads");
    if (isHeadGroupOwner())
        m_context->headGroups->selectHeads(m_key, {}, false);
}

void HST_Document::selectAllHeads()
{
    hostCall("document.selectAllHeads");
    if (isHeadGroupOwner())
        m_context->headGroups->selectHeads(m_key, {}, true);
}

int HST_Document::presetCount()
{
    hostCall("document.presetCount");
    return m_camera ? m_camera->spec.setup.presets.size() : 0;
}

QStringList& HST_Document::presetTexts(QStringList& out)
{
    hostCall("document.presetTexts");
    out = m_camera ? m_camera->spec.setup.presets : QStringList();
    return out;
}

void HST_Document::writePreset(int preset)
{
    hostCall("document.writePreset");
    if (!m_camera || preset < 1 || preset > m_camera->spec.setup.presets.size())
        throw APP_Exception(QStringLiteral("%1 has no preset %2.").arg(title()).arg(preset), 1);
    // The slot shows what it holds: the camera's trigger mode and exposure, as the camera's
    // own menu would.
    const HST_CameraSpec& spec = m_camera->spec;
    m_camera->spec.setup.presets[preset - 1] = QStringLiteral("%1 trigger %2 lowlight %3")
                                                   .arg(spec.name)
                                                   .arg(spec.triggerMode)
                                                   .arg(spec.lowLightMode);
    record(QStringLiteral("writePreset"),
        { { QStringLiteral("camera"), spec.name }, { QStringLiteral("preset"), preset },
            { QStringLiteral("text"), m_camera->spec.setup.presets.at(preset - 1) } });
}

bool HST_Document::presetNeedsReboot(int)
{
    hostCall("document.presetNeedsReboot");
    return m_camera && m_camera->spec.setup.presetNeedsReboot;
}

int HST_Document::partitionCount(int, int)
{
    hostCall("document.partitionCount");
    if (!m_camera)
        return 0;
    int highest = 0;
    for (const HST_PartitionSpec& spec : m_spec.partitions)
        highest = qMax(highest, spec.number);
    return highest;
}
