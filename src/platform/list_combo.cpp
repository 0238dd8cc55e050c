#include "platform/list_combo.h"

namespace torvane {

ListCombo::ListCombo(QWidget* parent) : QComboBox(parent)
{
    // A text outside the list is no hint to fill something in: it looks like any other.
    QPalette colors = palette();
    colors.setColor(QPalette::PlaceholderText, colors.color(QPalette::ButtonText));
    setPalette(colors);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
}

QString ListCombo::shownText() const
{
    return currentIndex() < 0 ? placeholderText() : currentText();
}

void ListCombo::showEntry(const QString& text)
{
    const int index = findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (index >= 0) {
        setCurrentIndex(index);
    }
}

void ListCombo::showText(const QString& text)
{
    const int index = findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    setPlaceholderText(text);
    setCurrentIndex(index);
}

} // namespace torvane
