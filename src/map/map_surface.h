#pragma once

#include "map/map_view.h"
#include "platform/picture_box.h"

#include <QScrollBar>

#include <array>
#include <optional>

class QAbstractButton;
class QLabel;

namespace torvane {

class ToolRow;

/// The tactical map's own picture: takes the mouse and the keys, and shows when it has the focus. Keys do
/// what the mouse does: an arrow with Ctrl moves the pointer by a pixel, with Shift too by ten, Space and
/// Enter click, and Backspace clicks with the right button. A pointer that a key has moved is drawn on the
/// map until the mouse moves.
class MapBox : public PictureBox
{
    Q_OBJECT

public:
    explicit MapBox(QWidget* parent);

    /// The bars that the wheel and the arrow keys move.
    void setBars(QScrollBar* horizontal, QScrollBar* vertical);

Q_SIGNALS:
    /// A key that gives a character.
    void typed(const QString& character);
    /// Space, Enter or Backspace; a move to the pointer and a press follow.
    void clickKeyTyped(const QString& character);
    void pressed(Qt::MouseButton button, QPointF position);
    void moved(QPointF position);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool takePointerKey(const QKeyEvent& event);
    void movePointerBy(QPointF pixels);
    void clickAtPointer(Qt::MouseButton mouseButton);
    QPointF pointer() const;

    QScrollBar* m_horizontal = nullptr;
    QScrollBar* m_vertical = nullptr;
    std::optional<QPointF> m_pointer; ///< where it moved last; none before its first move
    bool m_movedByKey = false;
};

/// A scroll bar that counts steps: its value is no position.
class MapScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    /// `change` is its small and its large change.
    MapScrollBar(Qt::Orientation orientation, int change, QWidget* parent);

    /// To its middle, without an event.
    void centre();

Q_SIGNALS:
    void stepped(int value, torvane::ScrollEvent event);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    int m_valueAtPress = 0;
};

/// The inside of the main window below its menu: the map between its scroll bars, and the row above it with
/// the tools, the ruler and the read-outs.
class MapSurface : public QWidget
{
    Q_OBJECT

public:
    explicit MapSurface(QWidget* parent);

    MapBox& map() { return *m_map; }
    MapScrollBar& horizontal() { return *m_horizontal; }
    MapScrollBar& vertical() { return *m_vertical; }
    ToolRow& tools() { return *m_tools; }
    /// Never shown: it arms the target area as the menu does.
    QAbstractButton* targetTool() { return m_targetTool; }

    void arrange(const MapLayout& layout);
    void centreBars();
    void setRulerCaption(const QString& caption, int leastWidth);

    void showDistance(const QString& text);
    /// The view's extent in yards, and for development once more with another unit.
    void showExtent(const ReadOut& yards, const ReadOut& metres);
    void showCursor(const ReadOut& yards);
    /// The anchor, for development.
    void showAnchor(const QString& text);
    void showHorizontalValue(int value);
    void showVerticalValue(int value);
    void showDevelopmentReadOuts();

private:
    void makeReadOuts();
    void makeTools();
    PictureBox* readOut(const char* designName, QWidget* parent, QRect place);

    MapBox* m_map;
    MapScrollBar* m_horizontal;
    MapScrollBar* m_vertical;
    QLabel* m_rulerCaption;
    QLabel* m_distance;
    QWidget* m_scalePanel;
    ToolRow* m_tools = nullptr;
    QAbstractButton* m_targetTool;

    PictureBox* m_width = nullptr;
    PictureBox* m_height = nullptr;
    PictureBox* m_extentBy = nullptr;
    PictureBox* m_cursorX = nullptr;
    PictureBox* m_cursorY = nullptr;
    PictureBox* m_cursorBy = nullptr;
    PictureBox* m_scrollX = nullptr;
    PictureBox* m_scrollY = nullptr;
    PictureBox* m_anchor = nullptr;
    PictureBox* m_heightMetres = nullptr;
    PictureBox* m_widthMetres = nullptr;
};

} // namespace torvane
