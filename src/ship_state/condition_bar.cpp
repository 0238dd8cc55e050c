#include "ship_state/condition_bar.h"

namespace torvane {

namespace {

constexpr int steps = 1000;
constexpr int barHeight = 14;
constexpr int barWidth = 110;
constexpr double wellAbove = 2.0 / 3;
constexpr double badBelow = 1.0 / 3;
const QColor good(58, 138, 70);
const QColor worn(206, 150, 30);
const QColor bad(184, 44, 44);

QColor colorOf(double health)
{
    if (health >= wellAbove) {
        return good;
    }
    return health >= badBelow ? worn : bad;
}

} // namespace

ConditionBar::ConditionBar(Full full, QWidget* parent) : QProgressBar(parent), m_full(full)
{
    setRange(0, steps);
    setTextVisible(false);
    setFixedHeight(barHeight);
    setMinimumWidth(barWidth);
    setShare(0);
}

void ConditionBar::setShare(double share)
{
    setValue(qRound(share * steps));
    QPalette colors = palette();
    colors.setColor(QPalette::Highlight, colorOf(m_full == Full::Good ? share : 1 - share));
    setPalette(colors);
}

} // namespace torvane
