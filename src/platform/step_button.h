#pragma once

#include <QPushButton>

namespace torvane {

/// A small button that steps a value: a click acts once, holding it repeats. The keys "+" and "-" on the
/// focused button are told apart from a click.
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
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace torvane
