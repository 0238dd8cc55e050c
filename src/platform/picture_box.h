#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QWidget>

#include <optional>

namespace torvane {

/// A persistent drawing surface in pixels: what was drawn stays until `clear`; a change of size keeps what is
/// inside. The widget shows the image; exposing it draws nothing anew. Lines are one pixel wide and not
/// smoothed. On a screen with several dots a pixel, lines, boxes, circles and fills lie on the same dots of a
/// pixel.
class PictureBox : public QWidget
{
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    /// Colour of the ground; takes effect on what is there, as `clear` does.
    void setBackColor(const QColor& color);
    QColor backColor() const { return m_backColor; }

    /// Colour of lines, outlines and text from now on.
    void setForeColor(const QColor& color) { m_foreColor = color; }
    QColor foreColor() const { return m_foreColor; }

    /// Where the next text goes: its top left corner, in pixels.
    void setCurrent(QPoint position) { m_current = position; }
    QPoint current() const { return m_current; }

    /// Fills the picture with the ground colour; the current position becomes (0, 0).
    void clear();
    /// A line with both ends.
    void line(QPoint from, QPoint to);
    /// The outline of the box with these corners, or the box filled.
    void box(QPoint from, QPoint to);
    void filledBox(QPoint from, QPoint to);
    /// A circle of whole-pixel radius, of any size anywhere; 0 is a point, and one below 0 is as large as its
    /// opposite. Only the part in the picture takes time.
    void circle(QPoint centre, int radius);
    /// Writes a line of text at the current position, which moves to the start of the next line.
    void print(const QString& text);

    /// What the box shows.
    const QImage& image() const { return m_image; }

    /// While one lives, drawing goes on with one painter, and the screen is updated once, at its end. The
    /// picture's size doesn't change meanwhile.
    class Batch
    {
    public:
        explicit Batch(PictureBox& picture);
        ~Batch();
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        PictureBox& m_picture;
    };

Q_SIGNALS:
    /// The picture came to a screen with more or fewer dots a pixel. What was drawn is enlarged or reduced
    /// until it is drawn anew.
    void densityChanged();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void growImage(QSize size);
    bool isDense() const;
    /// The box with these corners.
    void fillPixels(QPainter& painter, QPoint from, QPoint to);
    /// Draws with a painter that has the fore colour.
    template <typename Drawing>
    void draw(Drawing drawing);

    QImage m_image;
    QColor m_backColor;
    QColor m_foreColor{Qt::black};
    QPoint m_current{0, 0};
    std::optional<QPainter> m_painter; ///< of a batch
};

} // namespace torvane
