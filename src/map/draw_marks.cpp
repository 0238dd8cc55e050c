#include "map/draw_marks.h"

#include "platform/picture_box.h"

namespace torvane {

namespace {

QPoint pointOf(PixelPoint point)
{
    return {point.x, point.y};
}

class MarkPainter
{
public:
    explicit MarkPainter(PictureBox& picture) : m_picture(picture) {}

    void operator()(const LineMark& mark)
    {
        m_picture.setForeColor(QColor::fromRgb(mark.colour));
        m_picture.line(pointOf(mark.from), pointOf(mark.to));
    }
    void operator()(const BoxMark& mark)
    {
        m_picture.setForeColor(QColor::fromRgb(mark.colour));
        if (mark.filled) {
            m_picture.filledBox(pointOf(mark.from), pointOf(mark.to));
        } else {
            m_picture.box(pointOf(mark.from), pointOf(mark.to));
        }
    }
    void operator()(const CircleMark& mark)
    {
        m_picture.setForeColor(QColor::fromRgb(mark.colour));
        m_picture.circle(pointOf(mark.centre), mark.radius);
    }
    void operator()(const TextMark& mark)
    {
        m_picture.setForeColor(QColor::fromRgb(mark.colour));
        m_picture.setCurrent(pointOf(mark.at));
        m_picture.print(mark.text);
    }

private:
    PictureBox& m_picture;
};

} // namespace

void drawMarks(PictureBox& picture, const MarkList& marks)
{
    const PictureBox::Batch batch(picture);
    MarkPainter painter(picture);
    for (const Mark& mark : marks) {
        std::visit(painter, mark);
    }
    picture.setForeColor(Qt::black);
}

} // namespace torvane
