#pragma once

#include <QStringList>
#include <QWidget>

namespace torvane {

class PictureBox;

/// A compass card with a round picture, `PicMap`, in its middle: degrees and letters stand on the ring round
/// the picture, which the window draws its heading mark into.
class HeadingCompass : public QWidget
{
    Q_OBJECT

public:
    explicit HeadingCompass(QWidget* parent = nullptr);

    /// The letters from north clockwise.
    void setLetters(const QStringList& letters);
    PictureBox* picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QStringList m_letters;
    PictureBox* m_picture;
};

} // namespace torvane
