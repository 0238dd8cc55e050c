#include "divisions/create_division_frm.h"
#include "map/grid_level_frm.h"
#include "map/zoom_level_frm.h"
#include "overview/enviro_frm.h"
#include "overview/overview_frm.h"
#include "shell/about_frm.h"
#include "shell/commands.h"
#include "shell/help_frm.h"
#include "shell/main_frm.h"
#include "shell/splash_frm.h"
#include "ship_selection/ship_dbase_frm.h"
#include "ship_state/ship_data_frm.h"
#include "support/editor_fixture.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabBar>

namespace torvane::testing {
namespace {

/// A window by its design name, and how to get at it. The help window has no place in the editor.
struct Subject
{
    const char* name;
    Form& (*form)(Editor&);
};

const Subject subjects[] = {
    {"MainFrm", [](Editor& editor) -> Form& { return editor.mainFrm(); }},
    {"frmSplash", [](Editor& editor) -> Form& { return editor.splashFrm(); }},
    {"HelpFrm", nullptr},
    {"AboutFrm", [](Editor& editor) -> Form& { return editor.aboutFrm(); }},
    {"OverviewFrm", [](Editor& editor) -> Form& { return editor.overviewFrm(); }},
    {"EnviroFrm", [](Editor& editor) -> Form& { return editor.enviroFrm(); }},
    {"CreateDivisionFrm", [](Editor& editor) -> Form& { return editor.createDivisionFrm(); }},
    {"ZoomLevelFrm", [](Editor& editor) -> Form& { return editor.zoomLevelFrm(); }},
    {"GridLevelFrm", [](Editor& editor) -> Form& { return editor.gridLevelFrm(); }},
    {"ShipDBaseFrm", [](Editor& editor) -> Form& { return editor.shipDBaseFrm(); }},
    {"ShipDataFrm", [](Editor& editor) -> Form& { return editor.shipDataFrm(); }},
};

// What Qt makes for itself inside its own controls carries Qt's names, or none inside a control.
bool isOurs(const QWidget* widget)
{
    if (widget->objectName().startsWith(QLatin1StringView("qt_"))) {
        return false;
    }
    for (const QWidget* parent = widget->parentWidget(); parent && !parent->isWindow();
         parent = parent->parentWidget()) {
        if (qobject_cast<const QMenuBar*>(parent) || qobject_cast<const QAbstractScrollArea*>(parent) ||
            parent->inherits("QComboBox") || parent->inherits("QAbstractSpinBox") ||
            parent->inherits("QLineEdit")) {
            return false;
        }
    }
    return true;
}

using Case = std::tuple<int, Language>;

class AllWindows : public EditorFixture, public ::testing::WithParamInterface<Case>
{
protected:
    void SetUp() override
    {
        startPastSplash(std::get<1>(GetParam()));
        if (subject().form != nullptr) {
            Form& shown = subject().form(editor());
            shown.showForm(&shown == &editor().mainFrm() ? nullptr : &editor().mainFrm());
            form = &shown;
        } else {
            showHelp(std::get<1>(GetParam()));
        }
        settle();
    }

    void showHelp(Language language)
    {
        const QString mark =
            helpChapterMark(language == Language::German ? QStringLiteral("de") : QStringLiteral("en"),
                            QStringLiteral("one"));
        const QString file = helpFileStart + mark + QStringLiteral("<h1>One</h1>") + helpFileEnd;
        m_help = std::make_unique<HelpFrm>(language);
        m_help->setBook(HelpBook::parse(file.toUtf8(), language).value());
        m_help->showChapter(QString());
        form = m_help.get();
    }

    const Subject& subject() const { return subjects[std::get<0>(GetParam())]; }

    QList<QWidget*> controls() const
    {
        QList<QWidget*> found;
        for (QWidget* widget : form->findChildren<QWidget*>()) {
            if (isOurs(widget) && widget->window() == form) {
                found.append(widget);
            }
        }
        return found;
    }

    QWidget* form = nullptr;

private:
    std::unique_ptr<HelpFrm> m_help;
};

TEST_P(AllWindows, CarryTheirDesignNames)
{
    EXPECT_EQ(form->objectName(), QLatin1StringView(subject().name));
    QStringList seen;
    for (const QWidget* widget : controls()) {
        EXPECT_FALSE(widget->objectName().isEmpty()) << widget->metaObject()->className();
        EXPECT_FALSE(seen.contains(widget->objectName()))
            << widget->objectName().toStdString() << " stands twice";
        seen.append(widget->objectName());
    }
}

TEST_P(AllWindows, ClipNoText)
{
    for (const QWidget* widget : controls()) {
        if (!widget->isVisible()) {
            continue;
        }
        QString text;
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            text = label->text();
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            text = button->text();
        }
        if (text.isEmpty()) {
            continue;
        }
        EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << text.toStdString();
        EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << text.toStdString();
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
            << widget->objectName().toStdString() << " stands out of its window";
    }
}

TEST_P(AllWindows, OverlapNoVisibleControls)
{
    const QList<QWidget*> all = controls();
    for (const QWidget* one : all) {
        for (const QWidget* other : all) {
            if (one < other && one->isVisible() && other->isVisible() &&
                one->parentWidget() == other->parentWidget()) {
                // The map's scroll bars share its last column and row of pixels, as neighbouring tools do.
                const QRect shared = one->geometry().intersected(other->geometry());
                EXPECT_LE(std::min(shared.width(), shared.height()), 1)
                    << one->objectName().toStdString() << " over " << other->objectName().toStdString();
            }
        }
    }
}

QString mnemonicOf(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("(?<!&)&([^&\\s])"));
    return pattern.match(text).captured(1).toLower();
}

TEST_P(AllWindows, HaveNoTwoMnemonicsAlike)
{
    QStringList seen;
    const auto check = [&seen](const QString& text) {
        const QString mnemonic = mnemonicOf(text);
        if (!mnemonic.isEmpty()) {
            EXPECT_FALSE(seen.contains(mnemonic)) << text.toStdString();
            seen.append(mnemonic);
        }
    };
    for (const QWidget* widget : controls()) {
        if (const auto* label = qobject_cast<const QLabel*>(widget); label && widget->isVisible()) {
            check(label->text());
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget);
                   button && widget->isVisible()) {
            check(button->text());
        }
    }
    if (const auto* bar = form->findChild<QMenuBar*>()) {
        for (const QAction* action : bar->actions()) {
            check(action->text());
        }
    }
    for (const QMenu* menu : form->findChildren<QMenu*>()) {
        seen.clear();
        for (const QAction* action : menu->actions()) {
            if (action->isVisible()) {
                check(action->text());
            }
        }
    }
}

TEST_P(AllWindows, AreUsableByTheKeyboard)
{
    QStringList chain;
    for (const QWidget* widget = form->nextInFocusChain(); widget != form;
         widget = widget->nextInFocusChain()) {
        if (widget->focusPolicy() & Qt::TabFocus) {
            chain.append(widget->objectName());
        }
    }
    for (const QWidget* widget : controls()) {
        const bool button = qobject_cast<const QAbstractButton*>(widget) != nullptr;
        if (button && widget->isVisible()) {
            EXPECT_TRUE(chain.contains(widget->objectName())) << widget->objectName().toStdString();
        }
    }
}

TEST_P(AllWindows, TabFollowsTheEye)
{
    QList<QWidget*> stops;
    for (QWidget* widget = form->nextInFocusChain(); widget != form; widget = widget->nextInFocusChain()) {
        if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && isOurs(widget)) {
            stops.append(widget);
        }
    }
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const QPoint before = stops[i - 1]->mapTo(form, QPoint(0, 0));
        const QPoint after = stops[i]->mapTo(form, QPoint(0, 0));
        const bool onward = after.x() > before.x() || after.y() > before.y();
        EXPECT_TRUE(onward) << stops[i - 1]->objectName().toStdString() << " before "
                            << stops[i]->objectName().toStdString();
    }
}

/// What a person works: it takes the focus by key or mouse, or is a button.
bool isWorked(const QWidget* widget)
{
    return widget->isVisible() &&
           (widget->focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton*>(widget));
}

// The toolkit's face of a row of tabs says which tab is open and nothing else.
QString spoken(QWidget* widget, QAccessible::Text what)
{
    if (what == QAccessible::Description && qobject_cast<const QTabBar*>(widget)) {
        return widget->accessibleDescription();
    }
    const QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(widget);
    return face ? face->text(what).trimmed() : QString();
}

TEST_P(AllWindows, TellAssistiveTechnologyWhatEveryControlIsAndDoes)
{
    int told = 0;
    for (QWidget* widget : controls()) {
        if (isWorked(widget)) {
            const QString name = spoken(widget, QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << widget->objectName().toStdString();
            const QString description = spoken(widget, QAccessible::Description);
            EXPECT_FALSE(description.isEmpty() || description == name)
                << widget->objectName().toStdString() << " (" << name.toStdString()
                << "): " << description.toStdString();
            ++told;
        }
    }
    EXPECT_TRUE(told > 0 || QLatin1StringView(subject().name) == QLatin1StringView("frmSplash"));
}

std::string caseName(const ::testing::TestParamInfo<Case>& info)
{
    const bool german = std::get<1>(info.param) == Language::German;
    return std::string(subjects[std::get<0>(info.param)].name) + (german ? "German" : "English");
}

INSTANTIATE_TEST_SUITE_P(Each, AllWindows,
                         ::testing::Combine(::testing::Range(0, static_cast<int>(std::size(subjects))),
                                            ::testing::Values(Language::German, Language::English)),
                         caseName);

} // namespace
} // namespace torvane::testing
