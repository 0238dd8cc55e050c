#pragma once

#include <QProxyStyle>

namespace torvane {

/// The toolkit's own style, with what it lacks on a black desktop: it derives the edges of controls from the
/// window's colour, and black has no darker shade. There each box, button, list and bar gets an edge in the
/// colour of the text. On other desktops nothing changes.
class ContrastStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ContrastStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

} // namespace torvane
