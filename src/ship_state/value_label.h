#pragma once

#include <QLabel>

namespace torvane {

/// Shows a value that comes from a file: plain text, of any length. It has room for a number of characters
/// and no more; what is longer ends in dots and stands whole in the tool tip.
class ValueLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ValueLabel(int characters, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownText() const;

    int m_characters;
};

} // namespace torvane
