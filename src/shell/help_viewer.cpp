#include "shell/help_viewer.h"

#include "platform/runtime_error.h"
#include "platform/text_files.h"
#include "shell/help_book.h"
#include "shell/help_frm.h"
#include "shell/help_texts.h"

#include <QFileInfo>

namespace torvane {

namespace {

/// What is larger is no help file; reading it would only take long.
constexpr qint64 largestHelpFile = 64 * 1024 * 1024;

/// The file's half of a language, or the box that says why there is none.
struct Reading
{
    std::optional<HelpBook> book;
    HelpText trouble = HelpText::FileDamaged;
    QString subject;
};

Reading readHelp(const QString& file, Language language)
{
    Reading reading{.book = {}, .trouble = HelpText::FileDamaged, .subject = file};
    if (!QFileInfo::exists(file)) {
        reading.trouble = HelpText::FileMissing;
    } else if (QFileInfo(file).isFile() && QFileInfo(file).size() <= largestHelpFile) {
        try {
            reading.book = HelpBook::parse(readWholeFile(file), language);
        } catch (const RuntimeError& error) {
            reading.trouble = HelpText::FileUnreadable;
            reading.subject = error.text();
        }
    }
    return reading;
}

} // namespace

WindowHelpViewer::WindowHelpViewer(Language language, MessageBoxes& boxes)
    : m_language(language), m_boxes(boxes)
{
}

WindowHelpViewer::~WindowHelpViewer() = default;

void WindowHelpViewer::showContents(const QString& file)
{
    showChapter(file, QString());
}

void WindowHelpViewer::showChapter(const QString& file, const QString& chapter)
{
    // Read at each showing: a file that has been put back is found without a new start.
    Reading reading = readHelp(file, m_language);
    if (!reading.book) {
        m_boxes.show({.text = helpText(reading.trouble, m_language).arg(reading.subject),
                      .title = helpText(HelpText::BoxTitle, m_language),
                      .icon = MessageBox::Icon::Exclamation});
        return;
    }
    if (!m_window) {
        m_window = std::make_unique<HelpFrm>(m_language);
    }
    m_window->setBook(std::move(*reading.book));
    m_window->showChapter(chapter);
}

} // namespace torvane
