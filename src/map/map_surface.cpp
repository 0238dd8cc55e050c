#include "map/map_surface.h"

#include "map/tool_row.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace torvane {

namespace {

constexpr int scrollBarSize = 18;
constexpr int mapFontPixels = 11;
constexpr int rulerLeft = 320;
const QColor rulerColor(211, 211, 211); // on every desktop
// The pointer that keys move: pixels of a large step, and of each arm of its cross.
constexpr int largeStep = 10;
constexpr int pointerArm = 7;
// The read-outs: two rows of number, "X", number.
constexpr QRect scalePanel(434, 4, 208, 40);
constexpr QRect leftColumn(0, 2, 96, 17);
constexpr QRect middleColumn(96, 2, 14, 17);
constexpr QRect rightColumn(110, 2, 96, 17);
constexpr int rowHeight = 18;

QRect lowerRow(QRect place)
{
    return place.translated(0, rowHeight);
}

/// Which way an arrow key leads; null for another key.
QPoint directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

/// Writes a text into a read-out, in its middle row of pixels.
void tell(PictureBox* readOut, const QString& text)
{
    readOut->clear();
    readOut->setForeColor(readOut->palette().color(QPalette::WindowText));
    readOut->setCurrent(QPoint(3, std::max(0, (readOut->height() - readOut->fontMetrics().height()) / 2)));
    readOut->print(text);
}

} // namespace

MapBox::MapBox(QWidget* parent) : PictureBox(parent)
{
    setObjectName(QStringLiteral("Picture_Main"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    QFont plain = font();
    plain.setPixelSize(mapFontPixels);
    plain.setHintingPreference(QFont::PreferFullHinting);
    setFont(plain);
}

void MapBox::setBars(QScrollBar* horizontal, QScrollBar* vertical)
{
    m_horizontal = horizontal;
    m_vertical = vertical;
}

void MapBox::keyPressEvent(QKeyEvent* event)
{
    if (takePointerKey(*event)) {
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        QCoreApplication::sendEvent(m_horizontal, event);
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(m_vertical, event);
        return;
    default:
        break;
    }
    if (!event->text().isEmpty()) {
        Q_EMIT typed(event->text());
    }
    // The window has keys of its own.
    event->ignore();
}

bool MapBox::takePointerKey(const QKeyEvent& event)
{
    const QPoint direction = directionOf(event.key());
    if (!direction.isNull() && event.modifiers().testFlag(Qt::ControlModifier)) {
        movePointerBy(direction * (event.modifiers().testFlag(Qt::ShiftModifier) ? largeStep : 1));
        return true;
    }
    const bool right = event.key() == Qt::Key_Backspace;
    if (!right && event.key() != Qt::Key_Space && event.key() != Qt::Key_Return &&
        event.key() != Qt::Key_Enter) {
        return false;
    }
    if (!event.isAutoRepeat()) {
        Q_EMIT clickKeyTyped(event.text());
        clickAtPointer(right ? Qt::RightButton : Qt::LeftButton);
    }
    return true;
}

QPointF MapBox::pointer() const
{
    const QPointF at = m_pointer.value_or(rect().center());
    return {std::clamp(at.x(), 0.0, width() - 1.0), std::clamp(at.y(), 0.0, height() - 1.0)};
}

void MapBox::movePointerBy(QPointF pixels)
{
    m_pointer = pointer() + pixels;
    const QPointF at = pointer();
    QMouseEvent move(QEvent::MouseMove, at, mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &move);
    m_movedByKey = true;
    update();
}

// A click follows a move, which takes the anchor.
void MapBox::clickAtPointer(Qt::MouseButton mouseButton)
{
    movePointerBy({});
    Q_EMIT pressed(mouseButton, pointer());
}

void MapBox::mousePressEvent(QMouseEvent* event)
{
    Q_EMIT pressed(event->button(), event->position());
}

void MapBox::mouseMoveEvent(QMouseEvent* event)
{
    m_pointer = event->position();
    if (std::exchange(m_movedByKey, false)) {
        update();
    }
    Q_EMIT moved(event->position());
}

void MapBox::wheelEvent(QWheelEvent* event)
{
    const QPoint turn = event->angleDelta();
    const bool aside = std::abs(turn.x()) > std::abs(turn.y());
    const bool horizontal = aside || event->modifiers().testFlag(Qt::ShiftModifier);
    QScrollBar* bar = horizontal ? m_horizontal : m_vertical;
    QWheelEvent forBar(event->position(), event->globalPosition(), event->pixelDelta(),
                       aside ? QPoint(turn.x(), 0) : QPoint(0, turn.y()), event->buttons(), Qt::NoModifier,
                       event->phase(), event->inverted());
    QCoreApplication::sendEvent(bar, &forBar);
    event->accept();
}

void MapBox::paintEvent(QPaintEvent* event)
{
    PictureBox::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        QPen pen(palette().color(QPalette::Highlight));
        pen.setWidth(1);
        painter.setPen(pen);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (m_movedByKey) {
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Difference);
        painter.setPen(Qt::white);
        const QPointF at = pointer();
        painter.drawLine(at - QPointF(pointerArm, 0), at + QPointF(pointerArm, 0));
        painter.drawLine(at - QPointF(0, pointerArm), at + QPointF(0, pointerArm));
    }
}

void MapBox::focusInEvent(QFocusEvent* /*event*/)
{
    update();
}

void MapBox::focusOutEvent(QFocusEvent* /*event*/)
{
    update();
}

MapScrollBar::MapScrollBar(Qt::Orientation orientation, int change, QWidget* parent)
    : QScrollBar(orientation, parent)
{
    setRange(0, scrollMaximum);
    setValue(scrollMiddle(scrollMaximum));
    setSingleStep(change);
    setPageStep(change);
    setFocusPolicy(Qt::StrongFocus);
    // A menu with words of the platform's, in its language.
    setContextMenuPolicy(Qt::PreventContextMenu);
    connect(this, &QScrollBar::sliderPressed, this, [this] { m_valueAtPress = value(); });
    connect(this, &QScrollBar::valueChanged, this, [this](int value) {
        Q_EMIT stepped(value, isSliderDown() ? ScrollEvent::Scroll : ScrollEvent::Change);
    });
    // A drag ends with a change of its own, unless it came back to where it began.
    connect(this, &QScrollBar::sliderReleased, this, [this] {
        if (value() != m_valueAtPress) {
            Q_EMIT stepped(value(), ScrollEvent::Change);
        }
    });
}

// A bar of this platform takes the arrow to the right for a step back.
void MapScrollBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Right) {
        triggerAction(SliderSingleStepAdd);
    } else if (event->key() == Qt::Key_Left) {
        triggerAction(SliderSingleStepSub);
    } else {
        QScrollBar::keyPressEvent(event);
    }
}

void MapScrollBar::centre()
{
    const QSignalBlocker quiet(this);
    setValue(scrollMiddle(maximum()));
}

MapSurface::MapSurface(QWidget* parent)
    : QWidget(parent),
      m_map(new MapBox(this)),
      m_horizontal(new MapScrollBar(Qt::Horizontal, hScrollChange, this)),
      m_vertical(new MapScrollBar(Qt::Vertical, vScrollChange, this)),
      m_rulerCaption(new QLabel(this)),
      m_distance(new QLabel(QStringLiteral("0 yds."), this)),
      m_scalePanel(new QWidget(this)),
      m_targetTool(new QPushButton(this))
{
    setObjectName(QStringLiteral("surface"));
    m_horizontal->setObjectName(QStringLiteral("HScroll1"));
    m_vertical->setObjectName(QStringLiteral("VScroll1"));
    m_map->setBars(m_horizontal, m_vertical);
    m_rulerCaption->setObjectName(QStringLiteral("Label1"));
    m_rulerCaption->move(rulerLeft, 8);
    m_distance->setObjectName(QStringLiteral("lblDistance"));
    m_distance->setGeometry(rulerLeft + 8, 24, 88, 18);
    m_distance->setAutoFillBackground(true);
    QPalette colors = m_distance->palette();
    colors.setColor(QPalette::Window, rulerColor);
    colors.setColor(QPalette::WindowText, Qt::black);
    m_distance->setPalette(colors);
    m_distance->setAlignment(Qt::AlignCenter);
    m_scalePanel->setObjectName(QStringLiteral("picScaleYards"));
    m_scalePanel->setGeometry(scalePanel);
    m_targetTool->setObjectName(QStringLiteral("cmdTarget"));
    m_targetTool->hide();
    makeReadOuts();
    makeTools();
    const MapLayout normal = *mapLayout(WindowState::Normal, {}, {});
    setMinimumSize(normal.vScrollLeft + scrollBarSize, normal.hScrollTop + scrollBarSize);
    arrange(normal);
}

PictureBox* MapSurface::readOut(const char* designName, QWidget* parent, QRect place)
{
    auto* box = new PictureBox(parent);
    box->setObjectName(QLatin1StringView(designName));
    QFont plain = box->font();
    plain.setPixelSize(mapFontPixels);
    box->setFont(plain);
    box->setGeometry(place);
    return box;
}

void MapSurface::makeReadOuts()
{
    m_width = readOut("Picture2", m_scalePanel, leftColumn);
    m_extentBy = readOut("Picture4", m_scalePanel, middleColumn);
    m_height = readOut("Picture1", m_scalePanel, rightColumn);
    m_cursorX = readOut("picMapScale1", m_scalePanel, lowerRow(leftColumn));
    m_cursorBy = readOut("picMapScaleX", m_scalePanel, lowerRow(middleColumn));
    m_cursorY = readOut("picMapScale2", m_scalePanel, lowerRow(rightColumn));
    // For development: hidden but for the debug mode, the scroll values hidden always.
    m_anchor = readOut("PicCoords", this, {424, 4, 72, 16});
    m_heightMetres = readOut("Picture3", this, {498, 4, 72, 16});
    m_widthMetres = readOut("Picture5", this, {572, 4, 70, 16});
    m_scrollX = readOut("PicXcoord", this, {424, 4, 60, 16});
    m_scrollY = readOut("PicYCoord", this, {486, 4, 60, 16});
    for (PictureBox* box : {m_anchor, m_heightMetres, m_widthMetres, m_scrollX, m_scrollY}) {
        box->hide();
    }
}

void MapSurface::makeTools()
{
    m_tools = new ToolRow(this);
    m_tools->watch(m_map, ToolRow::Place::Map);
    m_tools->watch(m_rulerCaption, ToolRow::Place::Ruler);
    m_tools->watch(m_distance, ToolRow::Place::Ruler);
    m_tools->watch(m_scalePanel, ToolRow::Place::ScalePanel);
    m_tools->leadTabThrough({m_map, m_horizontal, m_vertical});
    // The keys that pick rings are typed on the map: it has the focus from the start.
    m_map->setFocus();
}

void MapSurface::arrange(const MapLayout& layout)
{
    m_map->setGeometry(MapLayout::mapLeft, MapLayout::mapTop, layout.mapWidth, layout.mapHeight);
    m_horizontal->setGeometry(0, layout.hScrollTop, layout.hScrollWidth, scrollBarSize);
    m_vertical->setGeometry(layout.vScrollLeft, MapLayout::mapTop, scrollBarSize, layout.vScrollHeight);
    m_tools->placeCorner({layout.vScrollLeft, layout.hScrollTop}, scrollBarSize,
                         {layout.hotCenterMapLeft, layout.hotCenterMapTop});
}

void MapSurface::centreBars()
{
    m_horizontal->centre();
    m_vertical->centre();
}

void MapSurface::setRulerCaption(const QString& caption, int leastWidth)
{
    m_rulerCaption->setText(caption);
    m_rulerCaption->adjustSize();
    m_rulerCaption->resize(std::max(leastWidth, m_rulerCaption->width()), m_rulerCaption->height());
    m_distance->setAccessibleName(caption);
}

void MapSurface::showDistance(const QString& text)
{
    m_distance->setText(text);
}

void MapSurface::showExtent(const ReadOut& yards, const ReadOut& metres)
{
    tell(m_extentBy, QStringLiteral("X"));
    tell(m_width, yards.x);
    tell(m_height, yards.y);
    tell(m_heightMetres, metres.y);
    tell(m_widthMetres, metres.x);
}

void MapSurface::showCursor(const ReadOut& yards)
{
    tell(m_cursorBy, QStringLiteral("X"));
    tell(m_cursorX, yards.x);
    tell(m_cursorY, yards.y);
}

void MapSurface::showAnchor(const QString& text)
{
    m_anchor->clear();
    m_anchor->setForeColor(palette().color(QPalette::HighlightedText));
    m_anchor->print(text);
    m_anchor->setForeColor(palette().color(QPalette::WindowText));
}

void MapSurface::showHorizontalValue(int value)
{
    tell(m_scrollX, QString::number(value));
}

void MapSurface::showVerticalValue(int value)
{
    tell(m_scrollY, QString::number(value));
}

void MapSurface::showDevelopmentReadOuts()
{
    for (PictureBox* box : {m_anchor, m_heightMetres, m_widthMetres}) {
        box->raise();
        box->show();
    }
}

} // namespace torvane
