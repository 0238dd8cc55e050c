#pragma once

#include <QWidget>

namespace torvane {

/// The deck of a ship from above, bow to the top, on which a page lays out its controls.
class ShipPlan : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace torvane
