#include "host/HST_InputSteps.h"

#include "host/HST_Recorder.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

const char* const MouseActions[] = { "press", "move", "release", "leave" };
const int MaxDragSteps = 1000;

bool isPoint(const QJsonValue& value)
{
    const QJsonArray pair = value.toArray();
    return value.isArray() && pair.size() == 2 && pair.at(0).isDouble() && pair.at(1).isDouble()
        && std::abs(pair.at(0).toDouble()) < 1e6 && std::abs(pair.at(1).toDouble()) < 1e6;
}

QPoint point(const QJsonValue& value)
{
    const QJsonArray pair = value.toArray();
    return QPoint(int(std::lround(pair.at(0).toDouble())), int(std::lround(pair.at(1).toDouble())));
}

// A key with its modifiers, or nothing when the text names no single key.
bool parseKey(const QString& text, int& key, Qt::KeyboardModifiers& modifiers)
{
    const QKeySequence sequence(text, QKeySequence::PortableText);
    if (sequence.count() != 1)
        return false;
    const int combined = sequence[0];
    key = combined & ~int(Qt::KeyboardModifierMask);
    modifiers = Qt::KeyboardModifiers(combined & int(Qt::KeyboardModifierMask));
    return key != 0 && key != Qt::Key_unknown;
}

bool checkDocument(const QJsonObject& object, QString& problem)
{
    const QJsonValue document = object.value(QLatin1String("document"));
    if (document.isUndefined()
        || (document.isDouble() && document.toDouble() == std::floor(document.toDouble())))
        return true;
    problem = QStringLiteral("\"document\" must be a document's key");
    return false;
}

void send(QWidget* view, QEvent::Type type, const QPoint& pos, Qt::MouseButton button,
    Qt::MouseButtons buttons)
{
    QMouseEvent event(type, QPointF(pos), QPointF(view->mapTo(view->window(), pos)),
        QPointF(view->mapToGlobal(pos)), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(view, &event);
}

} // namespace

bool HST_InputSteps::handles(const QString& kind)
{
    return kind == QLatin1String("drag") || kind == QLatin1String("mouse")
        || kind == QLatin1String("key");
}

bool HST_InputSteps::validate(const QString& kind, const QJsonValue& value, QString& problem)
{
    if (kind == QLatin1String("key")) {
        int key = 0;
        Qt::KeyboardModifiers modifiers;
        if (value.isString() && parseKey(value.toString(), key, modifiers))
            return true;
        problem = QStringLiteral("expected one key with its modifiers, such as \"Shift+Left\"");
        return false;
    }
    if (!value.isObject()) {
        problem = QStringLiteral("expected an object");
        return false;
    }
    const QJsonObject object = value.toObject();
    if (!checkDocument(object, problem))
        return false;
    if (kind == QLatin1String("drag")) {
        for (auto it = object.begin(); it != object.end(); ++it) {
            if (!QStringList { "document", "from", "to", "steps" }.contains(it.key())) {
                problem = QStringLiteral("unknown key \"%1\"").arg(it.key());
                return false;
            }
        }
        if (!isPoint(object.value(QLatin1String("from")))
            || !isPoint(object.value(QLatin1String("to")))) {
            problem = QStringLiteral("\"from\" and \"to\" must be [x, y]");
            return false;
        }
        const QJsonValue steps = object.value(QLatin1String("steps"));
        const double count = steps.toDouble();
        if (!steps.isUndefined()
            && (!steps.isDouble() || count != std::floor(count) || count < 1
                || count > MaxDragSteps)) {
            problem
                = QStringLiteral("\"steps\" must be a whole number from 1 to %1").arg(MaxDragSteps);
            return false;
        }
        return true;
    }
    int actions = 0;
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (it.key() == QLatin1String("document"))
            continue;
        const bool known = std::find(std::begin(MouseActions), std::end(MouseActions), it.key())
            != std::end(MouseActions);
        if (!known) {
            problem = QStringLiteral("unknown key \"%1\"").arg(it.key());
            return false;
        }
        if (it.key() != QLatin1String("leave") && !isPoint(it.value())) {
            problem = QStringLiteral("\"%1\" must be [x, y]").arg(it.key());
            return false;
        }
        ++actions;
    }
    if (actions != 1) {
        problem = QStringLiteral("expected one of \"press\", \"move\", \"release\", \"leave\"");
        return false;
    }
    return true;
}

int HST_InputSteps::documentOf(const QString& kind, const QJsonValue& value, int currentKey)
{
    if (kind == QLatin1String("key"))
        return currentKey;
    return value.toObject().value(QLatin1String("document")).toInt(currentKey);
}

void HST_InputSteps::play(const QString& kind, const QJsonValue& value, QWidget* view, int key,
    HST_Recorder* recorder, const std::function<QJsonValue(int key)>& rectangle)
{
    const QJsonObject object = value.toObject();
    if (kind == QLatin1String("key")) {
        int code = 0;
        Qt::KeyboardModifiers modifiers;
        parseKey(value.toString(), code, modifiers);
        QKeyEvent press(QEvent::KeyPress, code, modifiers);
        QApplication::sendEvent(view, &press);
        QKeyEvent release(QEvent::KeyRelease, code, modifiers);
        QApplication::sendEvent(view, &release);
    } else if (kind == QLatin1String("drag")) {
        const QPoint from = point(object.value(QLatin1String("from")));
        const QPoint to = point(object.value(QLatin1String("to")));
        const int steps = object.value(QLatin1String("steps")).toInt(1);
        send(view, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        for (int i = 1; i <= steps; ++i) {
            const QPoint at = from + (to - from) * (double(i) / steps);
            send(view, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
        }
        send(view, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    } else if (object.contains(QLatin1String("leave"))) {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view, &leave);
    } else if (object.contains(QLatin1String("press"))) {
        send(view, QEvent::MouseButtonPress, point(object.value(QLatin1String("press"))),
            Qt::LeftButton, Qt::LeftButton);
    } else if (object.contains(QLatin1String("move"))) {
        send(view, QEvent::MouseMove, point(object.value(QLatin1String("move"))), Qt::NoButton,
            Qt::NoButton);
    } else {
        send(view, QEvent::MouseButtonRelease, point(object.value(QLatin1String("release"))),
            Qt::LeftButton, Qt::NoButton);
    }
    if (recorder)
        recorder->record(QStringLiteral("input"),
            { { QStringLiteral("kind"), kind }, { QStringLiteral("document"), key },
                { QStringLiteral("rectangle"), rectangle ? rectangle(key) : QJsonValue() } });
}
