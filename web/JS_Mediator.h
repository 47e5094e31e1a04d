#pragma once

#include <QObject>

// Root of every object that pages talk to. Pages listen to open, update and close and pull
// what they need; native code never calls into a page's script.
class JS_Mediator : public QObject
{
    Q_OBJECT

public:
    explicit JS_Mediator(QObject* parent = nullptr);
    ~JS_Mediator() override;

signals:
    void open();
    void update();
    void close();
};
