#pragma once

#include <QMap>
#include <QString>

#include <cstdint>

namespace torvane::testing {

/// What a flood has met: how often each window came to the front, each command was carried out, each box was
/// shown, and so on. Shows whether a flood gets everywhere.
class Census
{
public:
    void count(const QString& group, const QString& what) { ++m_counts[group][what]; }
    void atLeast(const QString& group, const QString& what, std::int64_t value);
    std::int64_t countOf(const QString& group, const QString& what) const
    {
        return m_counts.value(group).value(what);
    }
    QString text() const;

private:
    QMap<QString, QMap<QString, std::int64_t>> m_counts;
};

} // namespace torvane::testing
