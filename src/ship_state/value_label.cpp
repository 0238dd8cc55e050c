#include "ship_state/value_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace torvane {

namespace {

constexpr int sideMargin = 6;
constexpr int topMargin = 3;

} // namespace

ValueLabel::ValueLabel(int characters, QWidget* parent) : QLabel(parent), m_characters(characters)
{
    setTextFormat(Qt::PlainText);
    setFrameShape(QFrame::StyledPanel);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize ValueLabel::sizeHint() const
{
    const QFontMetrics metrics(font());
    const int frame = 2 * frameWidth();
    return {m_characters * metrics.horizontalAdvance(u'0') + 2 * sideMargin + frame,
            metrics.height() + 2 * topMargin + frame};
}

QString ValueLabel::shownText() const
{
    const int room = contentsRect().width() - 2 * sideMargin;
    return fontMetrics().elidedText(text(), Qt::ElideRight, room);
}

bool ValueLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && shownText() != text()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
        return true;
    }
    return QLabel::event(event);
}

void ValueLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawFrame(&painter);
    painter.drawText(contentsRect().adjusted(sideMargin, 0, -sideMargin, 0), static_cast<int>(alignment()),
                     shownText());
}

} // namespace torvane
