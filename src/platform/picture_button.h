#pragma once

#include <QAbstractButton>

namespace torvane {

/// A button that is all picture. Whether it stands pressed in is set by `setChecked` alone: a click doesn't
/// change it. A click leaves the keyboard's focus where it is.
class PictureButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit PictureButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void nextCheckState() override {}
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

} // namespace torvane
