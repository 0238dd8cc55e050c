#pragma once

#include <QComboBox>

namespace torvane {

/// A drop-down list. It can also show a text that is not in its list, as a list does that was filled by a
/// program; the user picks entries alone.
class ListCombo : public QComboBox
{
    Q_OBJECT

public:
    explicit ListCombo(QWidget* parent = nullptr);

    /// What it shows.
    QString shownText() const;
    /// Shows the entry of this text; a text without an entry changes nothing.
    void showEntry(const QString& text);
    /// Shows the entry of this text, or the text itself.
    void showText(const QString& text);
};

} // namespace torvane
