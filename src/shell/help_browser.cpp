#include "shell/help_browser.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSvgRenderer>

namespace torvane {

namespace {

const QString helpScheme = QStringLiteral("help");
const QString pictureScheme = QStringLiteral("picture");

// No picture of the guide is larger; one that claims to be is damaged.
constexpr int largestPicture = 4000; // pixels

// Sizes and spaces; the colours are the desktop's.
const QString styleText =
    QStringLiteral("h1 { font-size: x-large; margin-bottom: 8px; }"
                   "h2 { font-size: large; margin-top: 18px; margin-bottom: 4px; }"
                   "p, ul, ol { margin-top: 4px; margin-bottom: 8px; }"
                   "li { margin-bottom: 3px; }"
                   "table { border-collapse: collapse; margin-top: 4px; margin-bottom: 10px; }"
                   "th, td { border-style: solid; border-width: 1px; border-color: %1; }"
                   "th { background-color: %2; text-align: left; }"
                   "a { color: %3; }");

// A desktop that is dark may still have the blue for links that is meant for white paper.
constexpr int darkGround = 128;
constexpr int faintInk = 100;
const QColor linkOnDark(110, 180, 255);

QColor linkInk(const QPalette& palette)
{
    const QColor ink = palette.color(QPalette::Link);
    const bool onDark = palette.color(QPalette::Base).lightness() < darkGround;
    return onDark && qGray(ink.rgb()) < faintInk ? linkOnDark : ink;
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent)
{
    document()->setDocumentMargin(14);
    applyStyle();
}

void HelpBrowser::applyStyle()
{
    document()->setDefaultStyleSheet(styleText.arg(palette().color(QPalette::Mid).name(),
                                                   palette().color(QPalette::AlternateBase).name(),
                                                   linkInk(palette()).name()));
}

void HelpBrowser::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        applyStyle();
        reload();
    }
}

void HelpBrowser::setBook(const HelpBook& book)
{
    m_book = &book;
    clear();
    document()->clear();
    clearHistory();
}

QUrl HelpBrowser::addressOf(const QString& chapter, const QString& anchor)
{
    QUrl address;
    address.setScheme(helpScheme);
    address.setPath(chapter);
    if (!anchor.isEmpty()) {
        address.setFragment(anchor);
    }
    return address;
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    static_cast<void>(type);
    if (m_book == nullptr) {
        return {};
    }
    if (name.scheme() == pictureScheme) {
        return picture(name.path().toInt());
    }
    const std::optional<std::size_t> chapter =
        name.scheme() == helpScheme ? m_book->indexOf(name.path()) : std::nullopt;
    return chapter ? QVariant(m_book->chapters()[*chapter].html) : QVariant();
}

// A link that leads out of the book leads nowhere.
void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type)
{
    static_cast<void>(type);
    if (m_book != nullptr && name.scheme() == helpScheme && m_book->indexOf(name.path())) {
        QTextBrowser::doSetSource(name, QTextDocument::HtmlResource);
    }
}

void HelpBrowser::goTo(const QUrl& address)
{
    if (address != source()) {
        setSource(address);
    } else if (address.hasFragment()) {
        scrollToAnchor(address.fragment());
    } else {
        verticalScrollBar()->setValue(0);
    }
}

QImage HelpBrowser::picture(int number) const
{
    const QByteArray bytes = m_book->picture(number);
    QSvgRenderer drawing;
    if (!bytes.startsWith("<svg") || !drawing.load(bytes)) {
        return QImage::fromData(bytes);
    }
    // Drawn as fine as the screen is.
    const QSize size = (QSizeF(drawing.defaultSize()) * devicePixelRatioF()).toSize();
    if (size.width() > largestPicture || size.height() > largestPicture) {
        return {};
    }
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    image.setDevicePixelRatio(devicePixelRatioF());
    return image;
}

} // namespace torvane
