#include "shell/help_book.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace torvane {

namespace {

QString plainText(QString html)
{
    static const QRegularExpression tags(QStringLiteral("<[^>]*>"));
    html.remove(tags);
    // The ampersand last, so that what it makes is not read again.
    html.replace(QStringLiteral("&lt;"), QStringLiteral("<"));
    html.replace(QStringLiteral("&gt;"), QStringLiteral(">"));
    html.replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    return html.simplified();
}

QList<HelpSection> sectionsOf(const QString& html)
{
    static const QRegularExpression heading(QStringLiteral("<h2 id=\"([^\"]*)\">(.*?)</h2>"),
                                            QRegularExpression::DotMatchesEverythingOption);
    QList<HelpSection> sections;
    for (const QRegularExpressionMatch& match : heading.globalMatch(html)) {
        sections.append({.anchor = match.captured(1), .title = plainText(match.captured(2))});
    }
    return sections;
}

/// Takes the pictures out of a text, which would be slow to read with them, and leaves their numbers.
QString withoutPictures(const QString& html, QList<QByteArray>& pictures)
{
    static const QRegularExpression source(QStringLiteral("src=\"data:[^,\"]*;base64,([^\"]*)\""));
    QString result;
    qsizetype copied = 0;
    for (const QRegularExpressionMatch& match : source.globalMatch(html)) {
        result += QStringView(html).mid(copied, match.capturedStart() - copied);
        result += QStringLiteral("src=\"picture:%1\"").arg(pictures.size());
        copied = match.capturedEnd();
        pictures.append(QByteArray::fromBase64(match.captured(1).toLatin1()));
    }
    result += QStringView(html).mid(copied);
    return result;
}

} // namespace

QString helpChapterMark(const QString& language, const QString& chapter)
{
    return QStringLiteral("<!-- chapter %1 %2 -->").arg(language, chapter);
}

std::optional<HelpBook> HelpBook::parse(const QByteArray& file, Language language)
{
    const QString text = QString::fromUtf8(file);
    const qsizetype start = text.indexOf(helpFileStart);
    const qsizetype end = text.lastIndexOf(helpFileEnd);
    if (start < 0 || end < start) {
        return std::nullopt;
    }
    static const QRegularExpression mark(
        helpChapterMark(QStringLiteral("([a-z]+)"), QStringLiteral("([a-z0-9-]+)")));
    const QString wanted = language == Language::German ? QStringLiteral("de") : QStringLiteral("en");
    HelpBook book;
    qsizetype at = start;
    QRegularExpressionMatch chapter = mark.match(text, at);
    while (chapter.hasMatch() && chapter.capturedStart() < end) {
        at = chapter.capturedEnd();
        QRegularExpressionMatch next = mark.match(text, at);
        const qsizetype chapterEnd = next.hasMatch() ? std::min(next.capturedStart(), end) : end;
        if (chapter.captured(1) == wanted) {
            book.add(chapter.captured(2), text.mid(at, chapterEnd - at));
        }
        chapter = std::move(next);
    }
    if (book.m_chapters.empty()) {
        return std::nullopt;
    }
    return book;
}

void HelpBook::add(const QString& name, QString html)
{
    html = withoutPictures(html, m_pictures);
    // "#en.map.zoom" becomes "help:map#en.map.zoom".
    static const QRegularExpression link(QStringLiteral("href=\"(#[a-z]+\\.([a-z0-9-]+))"));
    html.replace(link, QStringLiteral("href=\"help:\\2\\1"));
    static const QRegularExpression heading(QStringLiteral("<h1[^>]*>(.*?)</h1>"),
                                            QRegularExpression::DotMatchesEverythingOption);
    const QString title = plainText(heading.match(html).captured(1));
    m_chapters.push_back(
        {.name = name, .title = title.isEmpty() ? name : title, .html = html, .sections = sectionsOf(html)});
}

std::optional<std::size_t> HelpBook::indexOf(const QString& name) const
{
    const auto found = std::find_if(m_chapters.begin(), m_chapters.end(),
                                    [&name](const HelpChapter& chapter) { return chapter.name == name; });
    if (found == m_chapters.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - m_chapters.begin());
}

QByteArray HelpBook::picture(int number) const
{
    return m_pictures.value(number);
}

} // namespace torvane
