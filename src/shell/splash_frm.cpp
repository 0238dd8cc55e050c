#include "shell/splash_frm.h"

#include "platform/pointer.h"
#include "shell/captions.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "ui_splash_frm.h"

#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>

namespace torvane {

namespace {

constexpr int tickMilliseconds = 250;
constexpr int progressPerTick = 10;

} // namespace

frmSplash::frmSplash(Editor& editor)
    : EditorForm(editor, QStringLiteral("frmSplash"), Qt::SplashScreen),
      m_ui(std::make_unique<Ui::frmSplash>())
{
    m_ui->setupUi(this);
    m_timer.setObjectName(QStringLiteral("Timer1"));
    m_timer.setInterval(tickMilliseconds);
    on(&m_timer, &QTimer::timeout, [this] { tick(); });
}

frmSplash::~frmSplash() = default;

void frmSplash::onLoad()
{
    EditorForm::onLoad();
    if (const QScreen* screen = this->screen()) {
        move(screen->geometry().center() - rect().center());
    }
    m_timer.start();
}

void frmSplash::applyCaptions(Language language)
{
    m_ui->Label1->setText(mainText(MainText::SplashTitle, language));
}

void frmSplash::tick()
{
    setPointer(Pointer::Hourglass);
    QProgressBar* progress = m_ui->ProgressBar1;
    progress->setValue(std::min(progress->value() + progressPerTick, progress->maximum()));
    if (progress->value() >= progress->maximum()) {
        finish();
    }
}

void frmSplash::finish()
{
    // A tick that comes while the start still asks for something waits.
    if (m_finished || !m_editor.mainFrm().hasStarted()) {
        return;
    }
    m_finished = true;
    m_timer.stop();
    setPointer(Pointer::Default);
    hideForm();
    m_editor.mainFrm().setInputEnabled(true);
    m_editor.mainFrm().showForm();
}

void frmSplash::mousePressEvent(QMouseEvent* /*event*/)
{
    runHandler([this] { finish(); });
}

void frmSplash::keyPressEvent(QKeyEvent* /*event*/)
{
    runHandler([this] { finish(); });
}

void frmSplash::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer(QStringLiteral(":/icons/splash.svg")).render(&painter, rect());
}

} // namespace torvane
