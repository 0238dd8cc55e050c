#pragma once

#include <QPushButton>

namespace torvane {

/// A small button that steps a value: a click acts once, also a slow one. Held for half a second it repeats
/// until it is let go, which then is no click of its own. The keys "+" and "-" on the focused button are told
/// apart from a click; where nobody listens to them they go on to the window.
class StepButton : public QPushButton
{
    Q_OBJECT

public:
    explicit StepButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

Q_SIGNALS:
    void plusPressed();
    void minusPressed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void endRepeats();

    bool m_repeated = false; ///< since it was pressed
};

} // namespace torvane
