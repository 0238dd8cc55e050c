#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <vector>

namespace torvane::testing {

/// A working profile as it lies on disk, read by a way of its own: the checks don't lean on the reader that
/// they check.
struct ProfileText
{
    struct Section
    {
        QByteArrayView name;
        std::vector<QByteArrayView> keys; ///< in order, without the blanks round them
        std::vector<QByteArrayView> values;
    };

    /// `bytes` outlives what is made of it.
    static ProfileText of(const QByteArray& bytes);

    const Section* section(QByteArrayView name) const;

    std::vector<Section> sections; ///< the lines before the first head are the nameless one, which is first
    QByteArray fault;              ///< a line that is neither head nor key; empty if there is none
};

/// The value of a key in a section, or nothing written.
QByteArrayView valueOf(const ProfileText::Section& section, QByteArrayView key);
bool hasKey(const ProfileText::Section& section, QByteArrayView key);

} // namespace torvane::testing
