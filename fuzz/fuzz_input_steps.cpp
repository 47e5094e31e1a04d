// The script steps that use the mouse and the keys, on arbitrary bytes: a script is
// hand-written and may be anything. A step is played only when it was accepted, so an accepted
// step must name a key that can be pressed, or points and counts a window can take.

#include "host/HST_InputSteps.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeySequence>

#include "FuzzCheck.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QJsonDocument document = QJsonDocument::fromJson(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size)));
    const QJsonObject steps = document.object();
    for (auto it = steps.begin(); it != steps.end(); ++it) {
        if (!HST_InputSteps::handles(it.key()))
            continue;
        QString problem;
        if (!HST_InputSteps::validate(it.key(), it.value(), problem)) {
            check(!problem.isEmpty());
            continue;
        }
        check(problem.isEmpty());
        if (it.key() == QLatin1String("key")) {
            const QKeySequence sequence(it.value().toString(), QKeySequence::PortableText);
            check(sequence.count() == 1);
        }
        // A step without a document acts on the current one.
        const QJsonObject object = it.value().toObject();
        if (!object.contains(QLatin1String("document")))
            check(HST_InputSteps::documentOf(it.key(), it.value(), 7) == 7);
    }
    return 0;
}
