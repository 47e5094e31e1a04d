#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

class HST_Document;
class HST_ViewHost;
class QPainter;

// The window of one open document: the simulated frame of its camera (or file), drawn as the
// document's view state says (zoom, turn, mirrors, binning, scale factor), with the rectangle
// of the plug-in that has one over it. Mouse and keys go to every plug-in through the host. The
// frame is what the support file and the clipboard get as the document's current image.
class HST_DocumentView : public QWidget
{
    Q_OBJECT

public:
    // Both outlive the view: the host keeps closed documents until it ends.
    HST_DocumentView(HST_ViewHost* host, HST_Document* document, QWidget* parent = nullptr);

    int key() const { return m_key; }
    QImage frame() const { return m_frame; }
    // Test hook: the frame drawn from now on, in place of the simulated one.
    void setFrame(const QImage& frame);

    // The simulated frame of a document: a test pattern with its title and key.
    static QImage makeFrame(int key, const QString& title, const QSize& size = QSize(640, 480));

    QSize sizeHint() const override { return QSize(320, 240); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    // The frame at the resolution the camera delivers at the view's binning and scale.
    const QImage& shownFrame();
    // Under the image's transform, so in image coordinates.
    void paintRectangle(QPainter& painter);
    // In the window's own coordinates, over everything else.
    void paintOverlay(QPainter& painter);

    HST_ViewHost* m_host;
    HST_Document* m_document;
    int m_key;
    QString m_title;
    QImage m_frame;
    bool m_frameGiven = false;
};
