#pragma once

#include "platform/language.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>
#include <vector>

namespace torvane {

/// The marks in a help file. What lies before the first and behind the last is for browsers.
inline constexpr QLatin1StringView helpFileStart{"<!-- torvane help 1 -->"};
inline constexpr QLatin1StringView helpFileEnd{"<!-- torvane help end -->"};
/// The mark in front of a chapter; `language` is "en" or "de".
QString helpChapterMark(const QString& language, const QString& chapter);

/// A part of a chapter that the contents list.
struct HelpSection
{
    QString anchor;
    QString title;

    bool operator==(const HelpSection&) const = default;
};

struct HelpChapter
{
    QString name;
    QString title;
    /// The chapter's text. Links read "help:chapter#anchor", pictures "picture:number".
    QString html;
    QList<HelpSection> sections;

    bool operator==(const HelpChapter&) const = default;
};

/// One language's half of the help file.
class HelpBook
{
public:
    /// Reads the half of a language. Nothing if the bytes are no help file, are cut off, or lack the
    /// language.
    static std::optional<HelpBook> parse(const QByteArray& file, Language language);

    /// In the order of the contents; never empty.
    const std::vector<HelpChapter>& chapters() const { return m_chapters; }
    /// The index of a chapter by its name.
    std::optional<std::size_t> indexOf(const QString& name) const;
    /// The bytes of a picture; empty if there is none of that number.
    QByteArray picture(int number) const;

    bool operator==(const HelpBook&) const = default;

private:
    void add(const QString& name, QString html);

    std::vector<HelpChapter> m_chapters;
    QList<QByteArray> m_pictures;
};

} // namespace torvane
