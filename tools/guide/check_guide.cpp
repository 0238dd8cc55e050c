#include "guide/check_guide.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <cstddef>

namespace torvane {

namespace {

/// The elements of which both languages must have equally many in a chapter.
constexpr std::array<const char*, 9> comparedElements{"h1",    "h2", "h3", "p",  "li",
                                                      "table", "tr", "td", "img"};

/// Chapter names with their sections, in one language.
using Targets = std::map<QString, QStringList>;

QStringList sectionsOf(const GuideChapter& chapter)
{
    QStringList sections;
    for (const Tag& tag : tagsOf(chapter.html)) {
        if (tag.name == QStringLiteral("h2")) {
            sections.append(tag.attribute(QStringLiteral("id")));
        }
    }
    return sections;
}

class Checker
{
public:
    explicit Checker(const Guide& guide) : m_guide(guide)
    {
        for (const GuideChapter& chapter : guide.chapters) {
            m_targets[chapter.language][chapter.name] = sectionsOf(chapter);
        }
    }

    QStringList run()
    {
        for (const GuideChapter& chapter : m_guide.chapters) {
            checkElements(chapter);
            checkHeadings(chapter);
            checkLinks(chapter);
            checkPictures(chapter);
        }
        const std::size_t half = m_guide.chapters.size() / 2;
        for (std::size_t i = 0; i < half; ++i) {
            compare(m_guide.chapters[i], m_guide.chapters[half + i]);
        }
        return m_problems;
    }

private:
    void report(const GuideChapter& chapter, const QString& problem)
    {
        m_problems.append(chapter.file() + QStringLiteral(": ") + problem);
    }

    void checkElements(const GuideChapter& chapter)
    {
        static const QRegularExpression unclosed(QStringLiteral("<(img|br)([^>]*)>"));
        QString html = chapter.html;
        html.replace(unclosed, QStringLiteral("<\\1\\2/>"));
        QXmlStreamReader reader(QStringLiteral("<chapter>%1</chapter>").arg(html));
        while (!reader.atEnd()) {
            reader.readNext();
        }
        if (reader.hasError()) {
            report(chapter, QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString()));
        }
    }

    void checkHeadings(const GuideChapter& chapter)
    {
        if (!chapter.html.startsWith(QStringLiteral("<h1>")) ||
            chapter.html.count(QStringLiteral("<h1")) != 1) {
            report(chapter, QStringLiteral("doesn't begin with its one h1"));
        }
        QStringList seen;
        for (const QString& section : sectionsOf(chapter)) {
            if (section.isEmpty()) {
                report(chapter, QStringLiteral("an h2 has no id"));
            } else if (seen.contains(section)) {
                report(chapter, QStringLiteral("two sections are called %1").arg(section));
            }
            seen.append(section);
        }
    }

    void checkLinks(const GuideChapter& chapter)
    {
        for (const Tag& tag : tagsOf(chapter.html)) {
            if (tag.name != QStringLiteral("a")) {
                continue;
            }
            const QString link = tag.attribute(QStringLiteral("href"));
            const QString file = link.section(u'#', 0, 0);
            const QString section = link.section(u'#', 1);
            const QString name =
                file.isEmpty() ? chapter.name : file.chopped(file.endsWith(u".html") ? 5 : 0);
            const Targets& targets = m_targets[chapter.language];
            const auto target = targets.find(name);
            if (link.isEmpty() || target == targets.end() ||
                (!section.isEmpty() && !target->second.contains(section))) {
                report(chapter, QStringLiteral("the link \"%1\" leads nowhere").arg(link));
            }
        }
    }

    void checkPictures(const GuideChapter& chapter)
    {
        for (const QString& picture : picturesOf(chapter)) {
            if (!m_guide.pictures.contains(picture)) {
                report(chapter, QStringLiteral("the picture %1 is missing").arg(picture));
            }
        }
        for (const Tag& tag : tagsOf(chapter.html)) {
            for (const char* needed : {"width", "height", "alt"}) {
                if (tag.name == QStringLiteral("img") &&
                    tag.attribute(QString::fromLatin1(needed)).isEmpty()) {
                    report(chapter,
                           QStringLiteral("%1 has no %2")
                               .arg(tag.attribute(QStringLiteral("src")), QLatin1StringView(needed)));
                }
            }
        }
    }

    void compare(const GuideChapter& english, const GuideChapter& german)
    {
        if (sectionsOf(english) != sectionsOf(german)) {
            report(german, QStringLiteral("has other sections than the English chapter"));
        }
        if (linksOf(english) != linksOf(german)) {
            report(german, QStringLiteral("has other links than the English chapter"));
        }
        for (const char* element : comparedElements) {
            const auto count = [element](const GuideChapter& chapter) {
                const std::vector<Tag> tags = tagsOf(chapter.html);
                return std::count_if(tags.begin(), tags.end(), [element](const Tag& tag) {
                    return tag.name == QLatin1StringView(element);
                });
            };
            if (count(english) != count(german)) {
                report(german, QStringLiteral("has %1 elements %2, the English chapter %3")
                                   .arg(count(german))
                                   .arg(QLatin1StringView(element))
                                   .arg(count(english)));
            }
        }
        if (commonPictures(english) != commonPictures(german)) {
            report(german, QStringLiteral("has other pictures than the English chapter"));
        }
    }

    /// Where a chapter's links lead, sorted: a sentence may have another order in the other language.
    static QStringList linksOf(const GuideChapter& chapter)
    {
        QStringList links;
        for (const Tag& tag : tagsOf(chapter.html)) {
            if (tag.name == QStringLiteral("a")) {
                links.append(tag.attribute(QStringLiteral("href")));
            }
        }
        links.sort();
        return links;
    }

    /// A chapter's pictures, those of its own language by the name that both languages use.
    static QStringList commonPictures(const GuideChapter& chapter)
    {
        QStringList pictures = picturesOf(chapter);
        pictures.replaceInStrings(QStringLiteral("pictures/") + chapter.language + u'/',
                                  QStringLiteral("pictures/"));
        return pictures;
    }

    const Guide& m_guide;
    std::map<QString, Targets> m_targets;
    QStringList m_problems;
};

} // namespace

QStringList guideProblems(const Guide& guide)
{
    return Checker(guide).run();
}

} // namespace torvane
