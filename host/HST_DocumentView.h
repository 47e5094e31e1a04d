#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

#include <functional>

class QPainter;

// The window of one open document: the simulated frame of its camera (or file), drawn to fit.
// The frame is what the support file and the clipboard get as the document's current image.
class HST_DocumentView : public QWidget
{
    Q_OBJECT

public:
    HST_DocumentView(int key, const QString& title, QWidget* parent = nullptr);

    int key() const { return m_key; }
    QImage frame() const { return m_frame; }

    // The simulated frame of a document: a test pattern with its title and key.
    static QImage makeFrame(int key, const QString& title, const QSize& size = QSize(640, 480));

    QSize sizeHint() const override { return QSize(320, 240); }

    // Drawn over the image after it, in the view's coordinates; the rectangle is the image's.
    using Overlay = std::function<void(QPainter&, const QRect&)>;
    void setOverlay(Overlay overlay) { m_overlay = std::move(overlay); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_key;
    QImage m_frame;
    Overlay m_overlay;
};
