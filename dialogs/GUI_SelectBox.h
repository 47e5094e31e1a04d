#pragma once

#include <QWidget>

#include <memory>

class APP_Host;
class GUI_WebView;
class JS_Mediator_SelectBox;

// A small floating web box in which the user picks a partition or a variable. Its owner says
// what to offer through the box's object (items()) and when to show it; the box shows only
// once its page has loaded, and a choice closes it.
class GUI_SelectBox : public QWidget
{
    Q_OBJECT

public:
    GUI_SelectBox(APP_Host* host, QWidget* parent);
    ~GUI_SelectBox() override;

    // The box's object, "items" in the page; the box keeps it.
    Q_INVOKABLE QObject* items() const;
    // Shows the box now, or once its page has loaded.
    Q_INVOKABLE void setWantVisible(bool visible);
    Q_INVOKABLE bool isLoaded() const { return m_loaded; }

private slots:
    void addJSObject();
    void onLoadFinish(bool ok);
    void onClose();
    void onUpdate();

private:
    APP_Host* m_host;
    std::unique_ptr<JS_Mediator_SelectBox> m_mediator;
    GUI_WebView* m_view;
    QObject* m_items;
    bool m_wantVisible = false;
    bool m_loaded = false;
};
