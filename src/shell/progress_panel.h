#pragma once

#include <QElapsedTimer>
#include <QRect>
#include <QString>

class QProgressBar;
class QWidget;

namespace torvane {

class PictureBox;

/// What the main window shows over the map while it saves or loads: a panel with one line and a bar from 0 to
/// 10000, hidden otherwise. The bar may be moved while it is hidden.
class ProgressPanel
{
public:
    /// Makes the two controls, which belong to `parent`.
    explicit ProgressPanel(QWidget* parent);

    /// Shows both in the middle of `area`, in pixels of the parent, with the bar at 0.
    void show(const QString& text, const QRect& area);
    /// One step of 10, unless it would lead beyond the end. The bar is painted from time to time.
    void advanceProgress();
    /// In steps to the end; a bar that stands within 10 of it stays there.
    void fillProgress();
    void hide();

private:
    PictureBox* m_picLoad;
    QProgressBar* m_prgbarLoad;
    QElapsedTimer m_sincePainted; ///< while the bar is shown
};

} // namespace torvane
