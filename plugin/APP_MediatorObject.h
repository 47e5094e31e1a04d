#pragma once

#include <QObject>

class JS_Mediator;

// A mediator crosses the boundary as JS_Mediator*, a class of the plug-in's own that the host
// never sees; what the host does with it (publish it to a page under its object name) needs
// only the QObject it is. JS_Mediator derives from QObject alone, which puts that QObject at
// the mediator's own address.
inline QObject* APP_mediatorObject(JS_Mediator* mediator)
{
    return reinterpret_cast<QObject*>(mediator);
}

// The other way, for a mediator the host got as a QObject (the plug-in's dialog factory makes
// the mediators of pages the host shows itself).
inline JS_Mediator* APP_mediatorFromObject(QObject* object)
{
    return reinterpret_cast<JS_Mediator*>(object);
}
