#include "shell/progress_panel.h"

#include "platform/picture_box.h"

#include <QProgressBar>

namespace torvane {

namespace {

constexpr int progressEnd = 10000;
constexpr int progressStep = 10;
constexpr QSize panelSize(300, 48);
constexpr int barHeight = 18;

} // namespace

ProgressPanel::ProgressPanel(QWidget* parent)
    : m_picLoad(new PictureBox(parent)), m_prgbarLoad(new QProgressBar(parent))
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
}

void ProgressPanel::advanceProgress()
{
    if (m_prgbarLoad->value() + progressStep <= m_prgbarLoad->maximum()) {
        m_prgbarLoad->setValue(m_prgbarLoad->value() + progressStep);
    }
}

void ProgressPanel::fillProgress()
{
    if (m_prgbarLoad->value() < m_prgbarLoad->maximum() - progressStep) {
        // The work is done: painting each step would take longer than it did.
        m_prgbarLoad->setUpdatesEnabled(false);
        while (m_prgbarLoad->value() < m_prgbarLoad->maximum()) {
            advanceProgress();
        }
        m_prgbarLoad->setUpdatesEnabled(true);
    }
}

void ProgressPanel::hide()
{
    m_picLoad->hide();
    m_picLoad->clear();
    m_prgbarLoad->hide();
}

} // namespace torvane
