#include "scenarios/dialog_hand.h"

#include <QTest>

#include <stdexcept>

namespace torvane {

using testing::click;
using testing::press;

// More than the steps of any value that steps: a day has 60 minutes, a percentage 101 values.
static constexpr int mostPushes = 120;

void DialogHand::push(const char* button) const
{
    auto* found = find<QAbstractButton>(button);
    if (!found->isVisible() || !found->isEnabled()) {
        fail(QLatin1StringView(button) + QStringLiteral(" can't be pushed"));
    }
    click(found);
}

void DialogHand::fill(const char* box, const QString& text) const
{
    auto* found = find<QWidget>(box);
    if (!found->isVisible() || !found->isEnabled()) {
        fail(QLatin1StringView(box) + QStringLiteral(" takes no text"));
    }
    found->setFocus();
    press(found, Qt::Key_A, Qt::ControlModifier);
    // By its text: the keys that the test library knows are those of ASCII.
    for (const QChar letter : text) {
        QTest::sendKeyEvent(QTest::Click, found, static_cast<Qt::Key>(letter.toUpper().unicode()), letter,
                            Qt::NoModifier);
    }
    testing::settle();
}

void DialogHand::choose(const char* list, const QString& entry) const
{
    const int row = find<ListCombo>(list)->findText(entry);
    if (row < 0) {
        fail(QLatin1StringView(list) + QStringLiteral(" has no entry ") + entry);
    }
    choose(list, row);
}

// The keys of a closed list: Home and then down.
void DialogHand::choose(const char* list, int row) const
{
    auto* found = find<ListCombo>(list);
    press(found, Qt::Key_Home);
    for (int i = 0; i < row; ++i) {
        press(found, Qt::Key_Down);
    }
    if (!found->isEnabled() || found->currentIndex() != row) {
        fail(QLatin1StringView(list) + QStringLiteral(" didn't take entry %1").arg(row));
    }
}

void DialogHand::pushUntil(const char* button, const std::function<bool()>& holds) const
{
    for (int i = 0; i < mostPushes && !holds(); ++i) {
        push(button);
    }
    if (!holds()) {
        fail(QLatin1StringView(button) + QStringLiteral(" doesn't lead there"));
    }
}

void DialogHand::fail(const QString& fault) const
{
    throw std::runtime_error((m_window.objectName() + QStringLiteral(": ") + fault).toStdString());
}

} // namespace torvane
