#pragma once

#include "platform/list_combo.h"
#include "support/input.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QString>

#include <functional>

namespace torvane {

/// An author's hand in one window: it clicks and types in controls found by their design names. Every
/// operation throws std::runtime_error, and says what it wanted, where the window doesn't follow.
class DialogHand
{
public:
    explicit DialogHand(QWidget& window) : m_window(window) {}

    template <typename Control>
    Control* find(const char* name) const
    {
        return testing::control<Control>(m_window, QLatin1StringView(name));
    }

    void push(const char* button) const;
    /// The text of a box gives way to this one, typed key by key.
    void fill(const char* box, const QString& text) const;
    /// The entry of a list by its text, or by its place from 0.
    void choose(const char* list, const QString& entry) const;
    void choose(const char* list, int row) const;
    /// Pushes a button until a condition holds.
    void pushUntil(const char* button, const std::function<bool()>& holds) const;
    QString shown(const char* label) const { return find<QLabel>(label)->text(); }

    [[noreturn]] void fail(const QString& fault) const;

private:
    QWidget& m_window;
};

} // namespace torvane
