#pragma once

#include <QRadioButton>

namespace torvane {

/// One of several options that stand together. Tab and the arrow keys lead from one to the next and choose
/// nothing; a click, the space bar and Enter choose. Choosing the one that is on changes nothing. The window
/// turns the others off.
class OptionButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit OptionButton(QWidget* parent = nullptr);

protected:
    /// The whole of its row can be clicked.
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void nextCheckState() override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace torvane
