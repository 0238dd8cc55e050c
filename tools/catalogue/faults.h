#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>
#include <tuple>
#include <vector>

namespace torvane {

/// What is wrong with the catalogue's files. Collected, so that one run names everything.
class Faults
{
public:
    /// `line` counts from 1; the header is line 1.
    void add(const QString& file, int line, const QString& reason)
    {
        m_faults.push_back({file, line, reason});
    }

    bool none() const { return m_faults.empty(); }

    /// One text a fault, "file:line: reason", by file and line.
    QStringList texts() const
    {
        std::vector<Fault> sorted = m_faults;
        std::stable_sort(sorted.begin(), sorted.end(), [](const Fault& left, const Fault& right) {
            return std::tie(left.file, left.line) < std::tie(right.file, right.line);
        });
        QStringList texts;
        for (const Fault& fault : sorted) {
            texts.append(
                QStringLiteral("%1:%2: %3").arg(fault.file, QString::number(fault.line), fault.reason));
        }
        return texts;
    }

private:
    struct Fault
    {
        QString file;
        int line = 0;
        QString reason;
    };

    std::vector<Fault> m_faults;
};

} // namespace torvane
