#include "guide/write_guide.h"

#include "shell/help_book.h"

#include <QDir>
#include <QRegularExpression>

namespace torvane {

namespace {

/// The name of a chapter or section in the one file.
QString anchorOf(const QString& language, const QString& chapter, const QString& section = QString())
{
    const QString anchor = language + u'.' + chapter;
    return section.isEmpty() ? anchor : anchor + u'.' + section;
}

/// Replaces what a pattern captures first by what `replacement` makes of it.
template <typename Replacement>
QString replaced(const QString& text, const QString& pattern, Replacement replacement)
{
    QString result;
    qsizetype copied = 0;
    for (const QRegularExpressionMatch& match : QRegularExpression(pattern).globalMatch(text)) {
        result += text.mid(copied, match.capturedStart(1) - copied) + replacement(match.captured(1));
        copied = match.capturedEnd(1);
    }
    return result + text.mid(copied);
}

QString dataUri(const QString& picture, const QByteArray& bytes)
{
    const QString kind = picture.endsWith(QStringLiteral(".svg")) ? QStringLiteral("image/svg+xml")
                                                                  : QStringLiteral("image/png");
    return QStringLiteral("data:%1;base64,%2").arg(kind, QString::fromLatin1(bytes.toBase64()));
}

QString inOneFile(const GuideChapter& chapter, const Guide& guide)
{
    const auto link = [&](const QString& href) {
        const QString file = href.section(u'#', 0, 0);
        const QString name = file.isEmpty() ? chapter.name : file.chopped(5);
        return u'#' + anchorOf(chapter.language, name, href.section(u'#', 1));
    };
    const auto section = [&](const QString& id) { return anchorOf(chapter.language, chapter.name, id); };
    const auto picture = [&](const QString& source) {
        const QString path = QDir::cleanPath(chapter.language + u'/' + source);
        return dataUri(path, guide.pictures.at(path));
    };
    QString html = replaced(chapter.html, QStringLiteral("<a href=\"([^\"]*)\""), link);
    html = replaced(html, QStringLiteral("<h2 id=\"([^\"]*)\""), section);
    html = replaced(html, QStringLiteral("<img src=\"([^\"]*)\""), picture);
    return html.replace(QStringLiteral("<h1>"),
                        QStringLiteral("<h1 id=\"%1\">").arg(anchorOf(chapter.language, chapter.name)));
}

} // namespace

QByteArray guideFile(const Guide& guide)
{
    QString file =
        QStringLiteral(
            "<!DOCTYPE html>\n<html>\n<head><meta charset=\"utf-8\"><title>Torvane</title></head>\n"
            "<body>\n%1\n")
            .arg(helpFileStart);
    for (const GuideChapter& chapter : guide.chapters) {
        file += helpChapterMark(chapter.language, chapter.name) + u'\n' + inOneFile(chapter, guide);
    }
    file += helpFileEnd + QStringLiteral("\n</body>\n</html>\n");
    return file.toUtf8();
}

} // namespace torvane
