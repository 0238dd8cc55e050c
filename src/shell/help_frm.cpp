#include "shell/help_frm.h"

#include "platform/control_captions.h"
#include "shell/help_texts.h"
#include "ui_help_frm.h"

#include <QShortcut>
#include <QSignalBlocker>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace torvane {

namespace {

constexpr int contentsWidth = 250;
constexpr int guideWidth = 724; // holds the guide's pictures beside its scroll bar
constexpr int largestZoom = 10;
constexpr int smallestZoom = -4;

QString plainTextOf(const HelpChapter& chapter)
{
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    document.setHtml(chapter.html);
    return document.toPlainText();
}

} // namespace

HelpFrm::HelpFrm(Language language)
    : QWidget(nullptr, Qt::Window), m_language(language), m_ui(std::make_unique<Ui::HelpFrm>())
{
    m_ui->setupUi(this);
    applyCaptionTable(*this, helpCaptions, language);
    applyControlTips(*this, helpTips, language);
    m_ui->split->setSizes({contentsWidth, guideWidth});
    m_ui->split->setStretchFactor(1, 1);
    applyControlNames(*this, helpNames, language);
    applyControlDescriptions(*this, helpDescriptions, language);
    // Room for what it may say, so that nothing moves when it says it.
    m_ui->lblFound->setMinimumWidth(
        m_ui->lblFound->fontMetrics().horizontalAdvance(helpText(HelpText::NotFound, language)));
    connectControls();
    connectKeys();
}

HelpFrm::~HelpFrm() = default;

void HelpFrm::connectControls()
{
    HelpBrowser* guide = m_ui->txtGuide;
    connect(m_ui->cmdBack, &QPushButton::clicked, guide, &HelpBrowser::backward);
    connect(m_ui->cmdForward, &QPushButton::clicked, guide, &HelpBrowser::forward);
    connect(m_ui->cmdContents, &QPushButton::clicked, this, [this] { showFirstPage(); });
    connect(guide, &HelpBrowser::backwardAvailable, m_ui->cmdBack, &QPushButton::setEnabled);
    connect(guide, &HelpBrowser::forwardAvailable, m_ui->cmdForward, &QPushButton::setEnabled);
    connect(guide, &HelpBrowser::sourceChanged, this,
            [this](const QUrl& address) { markInContents(address); });
    connect(m_ui->treContents, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr) {
            m_ui->txtGuide->setSource(item->data(0, Qt::UserRole).toUrl());
        }
    });
    // The entry where the reader is already is the current one: a click on it leads to its beginning.
    connect(m_ui->treContents, &QTreeWidget::itemClicked, guide,
            [guide](QTreeWidgetItem* item) { guide->goTo(item->data(0, Qt::UserRole).toUrl()); });
    connect(m_ui->txtFind, &QLineEdit::textChanged, m_ui->lblFound, &QLabel::clear);
    connect(m_ui->txtFind, &QLineEdit::returnPressed, this, [this] { find(Direction::Next); });
    connect(m_ui->cmdFindNext, &QPushButton::clicked, this, [this] { find(Direction::Next); });
    connect(m_ui->cmdFindPrevious, &QPushButton::clicked, this, [this] { find(Direction::Previous); });
}

void HelpFrm::connectKeys()
{
    const auto key = [this](const QKeySequence& sequence, auto handler) {
        connect(new QShortcut(sequence, this), &QShortcut::activated, this, handler);
    };
    key(Qt::ALT | Qt::Key_Left, [this] { m_ui->txtGuide->backward(); });
    key(Qt::ALT | Qt::Key_Right, [this] { m_ui->txtGuide->forward(); });
    key(Qt::ALT | Qt::Key_Home, [this] { showFirstPage(); });
    key(Qt::Key_F1, [this] { showFirstPage(); });
    key(Qt::CTRL | Qt::Key_F, [this] { startSearch(); });
    key(Qt::Key_F3, [this] { find(Direction::Next); });
    key(Qt::SHIFT | Qt::Key_F3, [this] { find(Direction::Previous); });
    key(Qt::CTRL | Qt::Key_Plus, [this] { zoom(1); });
    key(Qt::CTRL | Qt::Key_Equal, [this] { zoom(1); });
    key(Qt::CTRL | Qt::Key_Minus, [this] { zoom(-1); });
    key(Qt::CTRL | Qt::Key_0, [this] { zoom(-m_zoom); });
    key(Qt::Key_Escape, [this] { close(); });
}

void HelpFrm::setBook(HelpBook book)
{
    if (book == m_book) {
        return;
    }
    m_book = std::move(book);
    m_plainTexts.clear();
    m_ui->lblFound->clear();
    m_ui->txtGuide->setBook(m_book);
    m_ui->cmdBack->setEnabled(false);
    m_ui->cmdForward->setEnabled(false);
    fillContents();
    showFirstPage();
}

void HelpFrm::showChapter(const QString& chapter)
{
    if (m_book.indexOf(chapter)) {
        m_ui->txtGuide->setSource(HelpBrowser::addressOf(chapter));
    } else {
        showFirstPage();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    m_ui->txtGuide->setFocus();
    show();
    raise();
    activateWindow();
}

void HelpFrm::fillContents()
{
    const QSignalBlocker quiet(m_ui->treContents);
    m_ui->treContents->clear();
    for (const HelpChapter& chapter : m_book.chapters()) {
        auto* entry = new QTreeWidgetItem(m_ui->treContents, {chapter.title});
        entry->setData(0, Qt::UserRole, HelpBrowser::addressOf(chapter.name));
        for (const HelpSection& section : chapter.sections) {
            auto* part = new QTreeWidgetItem(entry, {section.title});
            part->setData(0, Qt::UserRole, HelpBrowser::addressOf(chapter.name, section.anchor));
        }
    }
}

void HelpFrm::showFirstPage()
{
    m_ui->txtGuide->setSource(HelpBrowser::addressOf(m_book.chapters().front().name));
}

void HelpFrm::markInContents(const QUrl& address)
{
    const std::optional<std::size_t> chapter = m_book.indexOf(address.path());
    if (!chapter) {
        return;
    }
    QTreeWidgetItem* entry = m_ui->treContents->topLevelItem(static_cast<int>(*chapter));
    for (int i = 0; address.hasFragment() && i < entry->childCount(); ++i) {
        if (entry->child(i)->data(0, Qt::UserRole).toUrl() == address) {
            entry = entry->child(i);
            break;
        }
    }
    const QSignalBlocker quiet(m_ui->treContents);
    m_ui->treContents->setCurrentItem(entry);
    m_ui->treContents->scrollToItem(entry);
}

const QStringList& HelpFrm::plainTexts()
{
    if (m_plainTexts.isEmpty()) {
        for (const HelpChapter& chapter : m_book.chapters()) {
            m_plainTexts.append(plainTextOf(chapter));
        }
    }
    return m_plainTexts;
}

void HelpFrm::find(Direction direction)
{
    const QString text = m_ui->txtFind->text().simplified();
    if (text.isEmpty()) {
        startSearch();
        return;
    }
    const HelpSearch search(plainTexts(), text);
    const HelpPlace from = placeToSearchFrom(direction);
    const std::optional<std::size_t> found =
        direction == Direction::Next ? search.atOrAfter(from) : search.before(from);
    if (!found) {
        m_ui->lblFound->setText(helpText(HelpText::NotFound, m_language));
        return;
    }
    select(search.places()[*found], text.size());
    m_ui->lblFound->setText(
        helpText(HelpText::Found, m_language).arg(*found + 1).arg(search.places().size()));
}

// Behind or before what is selected, which is mostly what was found last.
HelpPlace HelpFrm::placeToSearchFrom(Direction direction) const
{
    const QTextCursor cursor = m_ui->txtGuide->textCursor();
    return {m_book.indexOf(m_ui->txtGuide->chapter()).value_or(0),
            direction == Direction::Next ? cursor.selectionEnd() : cursor.selectionStart()};
}

void HelpFrm::select(const HelpPlace& place, qsizetype length)
{
    HelpBrowser* guide = m_ui->txtGuide;
    const QString& chapter = m_book.chapters()[place.chapter].name;
    if (guide->chapter() != chapter) {
        guide->setSource(HelpBrowser::addressOf(chapter));
    }
    QTextCursor cursor(guide->document());
    cursor.setPosition(place.position);
    cursor.setPosition(place.position + static_cast<int>(length), QTextCursor::KeepAnchor);
    guide->setTextCursor(cursor);
    guide->ensureCursorVisible();
}

void HelpFrm::startSearch()
{
    m_ui->txtFind->setFocus();
    m_ui->txtFind->selectAll();
}

void HelpFrm::zoom(int steps)
{
    const int target = std::clamp(m_zoom + steps, smallestZoom, largestZoom);
    m_ui->txtGuide->zoomIn(target - m_zoom);
    m_zoom = target;
}

} // namespace torvane
