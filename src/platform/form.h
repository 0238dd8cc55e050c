#pragma once

#include "platform/form_stack.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <type_traits>
#include <utility>

namespace torvane {

/// The base of all windows. Loaded once, then shown and hidden. Every handler of a window is connected
/// through `on`, so that it runs in a profile batch and no exception meets Qt's own code.
class Form : public QWidget
{
    Q_OBJECT
    /// False: takes no mouse, no key, no menu and no close, but looks as ever.
    Q_PROPERTY(bool inputEnabled READ isInputEnabled WRITE setInputEnabled)

public:
    /// `designName` becomes the objectName. `forms` outlives the window.
    Form(FormStack& forms, const QString& designName, Qt::WindowFlags flags);
    ~Form() override;

    /// Runs `onLoad`. Called once, right after construction.
    void load();

    /// Shows the window in front, above `opener` where one is given. Doesn't wait.
    void showForm(Form* opener = nullptr);
    void hideForm();

    /// Shows a dialog over the window that opens it, which then takes no input.
    void openOver(Form& opener);
    /// Gives the input back to the window that opened the dialog, and hides the dialog.
    void leaveTo(Form& opener);

    void setInputEnabled(bool enabled) { m_inputEnabled = enabled; }
    bool isInputEnabled() const { return m_inputEnabled; }

protected:
    friend class FormStack;

    /// Once, before the first showing.
    virtual void onLoad() {}
    /// Each time the window comes to the front within the program.
    virtual void onActivate() {}
    /// The close box. A dialog does what its Cancel does; where nothing is laid down, nothing happens.
    virtual void onCloseBox() {}

    /// Connects a handler to a signal. The handler takes the signal's arguments or none. The click of a
    /// button counts only while its page is shown and the window takes input.
    template <typename Sender, typename Signal, typename Handler>
    void on(Sender* sender, Signal signal, Handler handler)
    {
        static_assert(Fits<Handler, Signal>::value, "the handler takes the signal's arguments or none");
        const bool isClick = isClickOf(signal);
        const auto call = [this, sender, isClick, handler = std::move(handler)](const auto&... arguments) {
            if (!isClick || takesClickOf(sender)) {
                m_formStack.runHandler([&] { callHandler(handler, arguments...); });
            }
        };
        connect(sender, signal, this, call);
    }

    /// Runs something that Qt calls through a virtual function rather than a signal, as `on` does.
    void runHandler(const std::function<void()>& handler) { m_formStack.runHandler(handler); }

    /// Makes one of the controls that are never shown and hold state between the windows.
    template <typename Control>
    Control* hiddenControl(const char* designName)
    {
        auto* control = new Control(this);
        control->setObjectName(QLatin1StringView(designName));
        control->setFocusPolicy(Qt::NoFocus);
        control->hide();
        return control;
    }

    FormStack& forms() const { return m_formStack; }

    void closeEvent(QCloseEvent* event) override;
    /// In a dialog Esc does what the close box does and Enter presses the default button.
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    template <typename Handler, typename Signal>
    struct Fits;
    template <typename Handler, typename Class, typename... Arguments>
    struct Fits<Handler, void (Class::*)(Arguments...)>
        : std::bool_constant<std::is_invocable_v<const Handler&, const Arguments&...> ||
                             std::is_invocable_v<const Handler&>>
    {
    };

    // Also compiled for fewer arguments than the signal has, with which it is never called.
    template <typename Handler, typename... Arguments>
    static void callHandler(const Handler& handler, const Arguments&... arguments)
    {
        if constexpr (std::is_invocable_v<const Handler&, const Arguments&...>) {
            handler(arguments...);
        } else if constexpr (std::is_invocable_v<const Handler&>) {
            handler();
        }
    }

    template <typename Signal>
    static bool isClickOf(Signal signal)
    {
        if constexpr (std::is_same_v<Signal, void (QAbstractButton::*)(bool)>) {
            return signal == &QAbstractButton::clicked;
        }
        return false;
    }
    // A button that a key presses is clicked a moment later, when its page or window may have been left. One
    // that is hidden by itself is pressed by nobody but the program.
    template <typename Sender>
    bool takesClickOf(const Sender* sender) const
    {
        bool isInSight = isVisible();
        if constexpr (std::is_base_of_v<QWidget, Sender>) {
            isInSight = isInSight && (sender->isVisible() || sender->isHidden());
        }
        return m_inputEnabled && isInSight;
    }

    void watch(QObject* object);
    bool isOfBox(const QObject* watched) const;
    void placeAbove(const Form& opener);

    FormStack& m_formStack;
    bool m_inputEnabled = true;
    bool m_wasShown = false;
};

/// A check box holds 0 or 1.
inline int valueOf(const QCheckBox* box)
{
    return box->isChecked() ? 1 : 0;
}
inline void setValue(QCheckBox* box, int value)
{
    box->setChecked(value != 0);
}

} // namespace torvane
