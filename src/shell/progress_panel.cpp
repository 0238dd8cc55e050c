#include "shell/progress_panel.h"

#include "platform/picture_box.h"

#include <QProgressBar>

namespace torvane {

namespace {

constexpr int progressEnd = 10000;
constexpr int progressStep = 10;
constexpr QSize panelSize(300, 48);
constexpr int barHeight = 18;
constexpr int paintInterval = 40; // milliseconds

/// A bar without words: Qt would put them together at each of a load's thousand steps.
class WordlessBar : public QProgressBar
{
public:
    using QProgressBar::QProgressBar;
    QString text() const override { return {}; }
};

} // namespace

ProgressPanel::ProgressPanel(QWidget* parent)
    : m_picLoad(new PictureBox(parent)), m_prgbarLoad(new WordlessBar(parent))
{
    m_picLoad->setObjectName(QStringLiteral("picLoad"));
    m_prgbarLoad->setObjectName(QStringLiteral("prgbarLoad"));
    m_prgbarLoad->setRange(0, progressEnd);
    m_prgbarLoad->setValue(0);
    m_prgbarLoad->setTextVisible(false);
    hide();
}

void ProgressPanel::show(const QString& text, const QRect& area)
{
    QRect place({}, panelSize + QSize(0, barHeight));
    place.moveCenter(area.center());
    m_picLoad->setGeometry({place.topLeft(), panelSize});
    m_prgbarLoad->setGeometry(place.adjusted(0, panelSize.height(), 0, 0));
    m_picLoad->show();
    m_picLoad->raise();
    m_picLoad->clear();
    m_picLoad->print(QString());
    m_picLoad->print(QStringLiteral("     ") + text);
    m_prgbarLoad->setValue(0);
    m_prgbarLoad->show();
    m_prgbarLoad->raise();
    // The work that follows runs in one event: without this the panel would never be seen.
    m_picLoad->repaint();
    m_prgbarLoad->repaint();
    // A bar paints itself at each step, which would take longer than the work.
    m_prgbarLoad->setUpdatesEnabled(false);
    m_sincePainted.start();
}

void ProgressPanel::advanceProgress()
{
    if (m_prgbarLoad->value() + progressStep <= m_prgbarLoad->maximum()) {
        m_prgbarLoad->setValue(m_prgbarLoad->value() + progressStep);
    }
    if (m_prgbarLoad->isVisible() && m_sincePainted.elapsed() >= paintInterval) {
        m_prgbarLoad->setUpdatesEnabled(true);
        m_prgbarLoad->repaint();
        m_prgbarLoad->setUpdatesEnabled(false);
        m_sincePainted.start();
    }
}

void ProgressPanel::fillProgress()
{
    if (m_prgbarLoad->value() < m_prgbarLoad->maximum() - progressStep) {
        while (m_prgbarLoad->value() < m_prgbarLoad->maximum()) {
            advanceProgress();
        }
    }
}

void ProgressPanel::hide()
{
    m_picLoad->hide();
    m_picLoad->clear();
    m_prgbarLoad->hide();
    m_prgbarLoad->setUpdatesEnabled(true);
}

} // namespace torvane
