#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>

#include <exception>

class APP_Host;
class DOC_Interface;
class QWebView;

// Root of every object that pages talk to. Pages call its public slots and get plain values;
// they listen to open, update and close and pull what they need. Native code never calls into
// a page's script. Methods that do real work report their failures to the host themselves.
class JS_Mediator : public QObject
{
    Q_OBJECT
    // Set by the host's attachMediator; pages don't see it.
    Q_PROPERTY(QWebView* webView READ webView WRITE setWebView SCRIPTABLE false)

public:
    JS_Mediator(APP_Host* host, const QString& name);
    ~JS_Mediator() override;

    APP_Host* host() const { return m_host; }
    QString mediatorName() const { return m_name; }
    QWebView* webView() const { return m_webView; }
    void setWebView(QWebView* view);
    unsigned updateMask() const { return m_updateMask; }

    // For the mediators' own code: the exception goes to the host's reportException.
    void errorHandler(const std::exception& e);

signals:
    void open();
    void update();
    void close();
    void enterQtWidget();

public slots:
    virtual void applySkipMode(int mode);
    virtual void applySkipFrames(double frames);
    virtual int getSkipMode();
    virtual void setSkipFrames(double val);
    virtual double getSkipFrames();
    virtual bool isFileMode();
    virtual void addPrefsJSObject();
    // One compact JSON entry per document; isMinilist in camera mode may leave out the
    // documents that aren't connected ("devicemanager/connectedCameraOnlyShowing").
    virtual QVariantList getDeviceInfoList(bool isMinilist);

    double getSkipMinFrames() { return m_skipMinFrames; }
    double getSkipMaxFrames() { return m_skipMaxFrames; }
    void setStyle(const QString& style);
    QString getStyle();
    void openPlugin(const QString& name);
    void closePlugin();
    void closePlugin(const QString& name);
    void info(const QString& message);
    void warn(const QString& message);
    void warn(const QString& message, const QStringList& messages);
    void alert(const QString& message);
    void alert(const QString& message, const QStringList& messages);
    bool confirm(const QString& message);
    QString translate(const QString& string);
    QString translate(const QString& string, const QString& arg);
    bool isReady();
    bool isLiveMode();
    bool isMemoryMode();
    bool isPlaying();
    bool isConnected();
    QString load(const QString& fileName);
    void updateUI();
    void deterUpdateUI(bool deter);
    void openAbouTarvixDialog();
    void log(const QString& msg);
    void infoLog(const QString& msg);
    void debugLog(const QString& msg);
    void errorLog(const QString& msg);
    bool isWaveDataAcquisition();
    bool isUpdateIgnore();
    void setDisableAllQuickTool();
    void userOperationLogWebView(const QString& url, const QString& operation,
        const QString& control, const QString& id, const QString& className, const QVariant& value);
    void userOperationErrorLog(const QString& message);
    int countMdiWindow(bool visible = true);
    bool isRostraRunning();
    void checkRestoredPrefs();
    void hideSelectBox();
    bool isShownDropBox();
    void showDropDownBox(const QString& key, int x, int y, int width, int height);
    void hideDropDownBox(const QString& key);
    void hideDropDownBox(const QString& key, int x, int y);

    // Preferences. A setter with update true (the default) is traced and ends in a refresh;
    // with false it writes silently, so that a page can batch writes and call updateUI.
    int getPrefInt(const QString& name, const QVariant& defaultValue = QVariant());
    bool getPrefBool(const QString& name, const QVariant& defaultValue = QVariant());
    float getPrefFloat(const QString& name, const QVariant& defaultValue = QVariant());
    QString getPrefString(const QString& name, const QVariant& defaultValue = QVariant());
    void setPrefInt(const QString& name, int value, bool update = true);
    void setPrefBool(const QString& name, bool value, bool update = true);
    void setPrefFloat(const QString& name, float value, bool update = true);
    void setPrefString(const QString& name, const QString& value, bool update = true);
    void setPrefDQString(const QString& name, const QString& value, bool update = true);

    // Preferences dialog, status and documents.
    int openPrefsDialog(const QString& page = QString());
    void openPrefsEthernetSettings();
    void openExportSupportFileDialog();
    // Every status name with its bool, as compact JSON in the host's order; pDoc null: the
    // current document. Empty when a host query failed.
    QString getControlStatus(DOC_Interface* pDoc = nullptr);
    QVariantList getSelectedDockey();
    // A text that is no decimal number clears the selection.
    void setSelectDoc(const QString& docKey);
    void selectAllDocs();
    void copySelectAreaToClipboard();
    QString getCalibrationUnits();
    int getRangeMax();
    void setConnectedCameraShowing(bool check);
    bool getConnectedCameraShowing();

protected:
    // Works out the range (and the proposed values) of the skip setting for what is going to
    // be saved: each document with its partitions. Nothing for an empty map.
    void updateSkipRange(const QMap<DOC_Interface*, QList<int>>& partitions);

    APP_Host* m_host;
    QWebView* m_webView = nullptr;
    QString m_name;
    unsigned m_updateMask = 63;
    double m_skipMinFrames = 1.0;
    double m_skipMaxFrames = 1.0;
    int m_skipBase = 0;
    QList<double> m_skipSteps;

private:
    template <typename Write>
    void setPref(const char* operation, const QString& name, bool update, Write write);
};
