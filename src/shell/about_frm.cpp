#include "shell/about_frm.h"

#include "shell/captions.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "ui_about_frm.h"

#include <QLocale>

namespace torvane {

namespace {

constexpr int leftMargin = 12;

} // namespace

AboutFrm::AboutFrm(Editor& editor)
    : EditorForm(editor, QStringLiteral("AboutFrm"), Qt::Dialog), m_ui(std::make_unique<Ui::AboutFrm>())
{
    m_ui->setupUi(this);
    m_ui->picIcon->setPixmap(QIcon(QStringLiteral(":/icons/editor.svg")).pixmap(64));
    m_ui->PicAbout->setBackColor(palette().color(QPalette::Window));
    m_ui->PicAbout->setForeColor(palette().color(QPalette::WindowText));
    on(m_ui->cmdOK, &QPushButton::clicked, [this] { close(); });
}

AboutFrm::~AboutFrm() = default;

void AboutFrm::onLoad()
{
    EditorForm::onLoad();
    const QFontMetrics metrics(m_ui->PicAbout->font());
    int width = 0;
    for (const QString& line : std::as_const(m_lines)) {
        width = std::max(width, metrics.horizontalAdvance(line));
    }
    m_ui->PicAbout->setMinimumSize(width + 2 * leftMargin,
                                   metrics.height() * static_cast<int>(m_lines.size()));
}

void AboutFrm::applyCaptions(Language language)
{
    setWindowTitle(mainText(MainText::AboutTitle, language));
    m_ui->cmdOK->setAccessibleDescription(mainText(MainText::CloseWindow, language));
    m_lines = aboutLines(language, QLocale::system().toString(versionDate(), QLocale::ShortFormat));
}

void AboutFrm::onActivate()
{
    PictureBox* picture = m_ui->PicAbout;
    picture->clear();
    for (const QString& line : std::as_const(m_lines)) {
        picture->setCurrent(QPoint(leftMargin, picture->current().y()));
        picture->print(line);
    }
}

void AboutFrm::onCloseBox()
{
    close();
}

void AboutFrm::close()
{
    leaveTo(m_editor.mainFrm());
}

} // namespace torvane
