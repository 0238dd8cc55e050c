#include "platform/control_captions.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

namespace torvane {

void applyCaptionTable(QWidget& window, std::span<const CaptionRow> captions, Language language)
{
    for (const CaptionRow& row : captions) {
        const QString caption = row.caption.in(language);
        if (row.control == window.objectName()) {
            window.setWindowTitle(caption);
        } else if (auto* label = window.findChild<QLabel*>(row.control)) {
            label->setText(caption);
        } else if (auto* button = window.findChild<QAbstractButton*>(row.control)) {
            button->setText(caption);
        } else if (auto* group = window.findChild<QGroupBox*>(row.control)) {
            group->setTitle(caption);
        }
    }
}

void applyControlNames(QWidget& window, std::span<const CaptionRow> names, Language language)
{
    for (const CaptionRow& row : names) {
        if (auto* control = window.findChild<QWidget*>(row.control)) {
            control->setAccessibleName(row.caption.in(language));
        }
    }
}

void applyControlDescriptions(QWidget& window, std::span<const CaptionRow> descriptions, Language language)
{
    for (const CaptionRow& row : descriptions) {
        if (auto* control = window.findChild<QWidget*>(row.control)) {
            control->setAccessibleDescription(row.caption.in(language));
        }
    }
}

void applyControlTips(QWidget& window, std::span<const CaptionRow> tips, Language language)
{
    for (const CaptionRow& row : tips) {
        if (auto* control = window.findChild<QWidget*>(row.control)) {
            control->setToolTip(row.caption.in(language));
        }
    }
    applyControlDescriptions(window, tips, language);
}

} // namespace torvane
