#include "guide/guide.h"

#include "platform/text_files.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace torvane {

Guide readGuide(const QString& folder)
{
    const QDir root(folder);
    const QStringList names = QString::fromUtf8(readWholeFile(root.filePath(QStringLiteral("chapters.txt"))))
                                  .split(u'\n', Qt::SkipEmptyParts);
    Guide guide;
    for (const char* language : {"en", "de"}) {
        for (const QString& name : names) {
            GuideChapter chapter{
                .language = QString::fromLatin1(language), .name = name.trimmed(), .html = {}};
            chapter.html = QString::fromUtf8(readWholeFile(root.filePath(chapter.file())));
            guide.chapters.push_back(chapter);
        }
    }
    for (const GuideChapter& chapter : guide.chapters) {
        for (const QString& picture : picturesOf(chapter)) {
            if (QFileInfo(root.filePath(picture)).isFile()) {
                guide.pictures[picture] = readWholeFile(root.filePath(picture));
            }
        }
    }
    return guide;
}

QStringList picturesOf(const GuideChapter& chapter)
{
    QStringList pictures;
    for (const Tag& tag : tagsOf(chapter.html)) {
        if (tag.name == QStringLiteral("img")) {
            pictures.append(QDir::cleanPath(chapter.language + u'/' + tag.attribute(QStringLiteral("src"))));
        }
    }
    return pictures;
}

QString Tag::attribute(const QString& attributeName) const
{
    const QRegularExpression pattern(QStringLiteral("(?:^|\\s)%1=\"([^\"]*)\"").arg(attributeName));
    return pattern.match(attributes).captured(1);
}

std::vector<Tag> tagsOf(const QString& html)
{
    static const QRegularExpression pattern(QStringLiteral("<([a-z][a-z0-9]*)([^>]*)>"));
    std::vector<Tag> tags;
    for (const QRegularExpressionMatch& match : pattern.globalMatch(html)) {
        tags.push_back({.name = match.captured(1), .attributes = match.captured(2)});
    }
    return tags;
}

} // namespace torvane
