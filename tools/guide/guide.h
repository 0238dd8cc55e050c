#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <vector>

namespace torvane {

/// One chapter of the guide in one language, as it stands in its source file.
struct GuideChapter
{
    QString language; ///< "en" or "de"
    QString name;     ///< the file's name without its suffix
    QString html;

    QString file() const { return language + u'/' + name + QStringLiteral(".html"); }
};

/// The sources of the guide: `chapters.txt` names the chapters in order, `en/` and `de/` hold them, and
/// `pictures/` what they show.
struct Guide
{
    /// English first, in the order of the contents.
    std::vector<GuideChapter> chapters;
    /// The bytes of every picture that a chapter shows, by its path below the guide's folder. A picture that
    /// is missing is not in the map.
    std::map<QString, QByteArray> pictures;
};

/// Reads the sources from their folder. Throws RuntimeError, naming the file, if a chapter is missing or
/// can't be read.
Guide readGuide(const QString& folder);

/// The paths of the pictures that a chapter shows, below the guide's folder, in order.
QStringList picturesOf(const GuideChapter& chapter);

/// An element's start: its name and its attributes. Attributes are quoted with double quotes.
struct Tag
{
    QString name;
    QString attributes;

    /// The value of an attribute; empty if the tag has none of that name.
    QString attribute(const QString& attributeName) const;
};

/// The start tags of a text in order.
std::vector<Tag> tagsOf(const QString& html);

} // namespace torvane
