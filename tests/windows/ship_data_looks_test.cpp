#include "ship_data_fixture.h"

#include <QAbstractButton>
#include <QRegularExpression>

// All pages of the ship data dialog, in both languages; the generic tests see only its first.

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

/// A page, and whether its repair panel is open.
struct PageCase
{
    int page;
    const char* opened;
};
const PageCase pageCases[] = {{generalPage, nullptr},         {systemsPage, nullptr},
                              {systemsPage, "cmdRepairProp"}, {systemsPage, "cmdRepairMan"},
                              {mainGunsPage, nullptr},        {secondaryPage, nullptr},
                              {torpedoPage, nullptr}};

class ShipDataLooks : public OneShipDialog, public ::testing::WithParamInterface<std::tuple<int, Language>>
{
protected:
    void SetUp() override
    {
        startPastSplash(std::get<1>(GetParam()));
        const auto& [page, opened] = pageCases[std::get<0>(GetParam())];
        // A class with every turret there is, and the longest percentages.
        {
            CatalogueFile file(workFile(u"Fleet.mdb"_s));
            QList<std::pair<QString, QString>> fields;
            for (const char* field :
                 {"f", "g", "h", "i", "j", "k", "l", "m", "o", "p", "q", "r", "t", "u", "v"}) {
                fields.emplaceBack(field, "3");
            }
            for (const char letter : std::string_view("ABCDEGHIJLMNOQRTUXYZ")) {
                fields.emplaceBack(u"Tur"_s + QLatin1Char(letter), "1");
            }
            file.addShip("Longest Name of All Ships", "Longest", "BB", "A class of a long name", "RN");
            file.addClass("A class of a long name", fields);
        }
        QFile::remove(workFile(u"ShipDatabase.mdb"_s));
        ASSERT_TRUE(QFile::rename(workFile(u"Fleet.mdb"_s), workFile(u"ShipDatabase.mdb"_s)));
        putShip(u"Longest Name of All Ships"_s);
        for (const char* key :
             {"CURRENTHITPOINTS", "CURRENTFLOATPOINTS", "MAGAHE", "MAGAAP", "MAGACOM", "MAGBHE", "MAGBAP",
              "MAGBCOM", "SECONDARYMAGHE", "SECONDARYMAGAP", "SECONDARYMAGCOM"}) {
            store(key, "2");
        }
        open(u"BB Longest"_s);
        if (page != generalPage) {
            turnTo(page);
        }
        if (opened) {
            press(opened);
        }
    }

    QList<QWidget*> visibleControls()
    {
        QList<QWidget*> found;
        for (QWidget* widget : dialog().findChildren<QWidget*>()) {
            if (widget->isVisible() && !widget->objectName().startsWith("qt_"_L1)) {
                found.append(widget);
            }
        }
        return found;
    }
    static QString textOf(const QWidget* widget)
    {
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            return label->text();
        }
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            return button->text();
        }
        return QString();
    }
};

TEST_P(ShipDataLooks, ClipNoText)
{
    for (const QWidget* widget : visibleControls()) {
        const QString text = textOf(widget);
        if (text.isEmpty()) {
            continue;
        }
        EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << text.toStdString();
        EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << text.toStdString();
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
            << widget->objectName().toStdString();
        const int margins = widget->inherits("torvane::ValueLabel") ? 12 : 0;
        if (qobject_cast<const QLabel*>(widget) && !static_cast<const QLabel*>(widget)->wordWrap()) {
            EXPECT_LE(widget->fontMetrics().horizontalAdvance(plain(text)) + margins, widget->width())
                << text.toStdString();
        }
    }
    for (int tab = 0; tab < tabs()->count(); ++tab) {
        EXPECT_LE(tabs()->fontMetrics().horizontalAdvance(tabs()->tabText(tab)),
                  tabs()->tabRect(tab).width());
        EXPECT_TRUE(tabs()->rect().contains(tabs()->tabRect(tab)));
    }
    for (const QGroupBox* group : dialog().findChildren<QGroupBox*>()) {
        if (group->isVisible()) {
            EXPECT_LE(group->fontMetrics().horizontalAdvance(group->title()), group->width())
                << group->title().toStdString();
        }
    }
}

TEST_P(ShipDataLooks, OverlapNoControls)
{
    const QList<QWidget*> all = visibleControls();
    for (const QWidget* one : all) {
        for (const QWidget* other : all) {
            if (one < other && one->parentWidget() == other->parentWidget()) {
                EXPECT_FALSE(one->geometry().intersects(other->geometry()))
                    << one->objectName().toStdString() << " over " << other->objectName().toStdString();
            }
        }
    }
}

TEST_P(ShipDataLooks, NameEveryControlForTheEyeAndForAssistiveTools)
{
    QStringList seen;
    for (const QWidget* widget : dialog().findChildren<QWidget*>()) {
        if (widget->window() != &dialog() || widget->parentWidget()->inherits("QComboBox") ||
            widget->parentWidget()->inherits("QAbstractScrollArea") ||
            widget->inherits("QAbstractScrollArea") || widget->inherits("QComboBoxPrivateContainer") ||
            widget->objectName().startsWith("qt_"_L1)) {
            continue;
        }
        EXPECT_FALSE(widget->objectName().isEmpty()) << widget->metaObject()->className();
        EXPECT_FALSE(seen.contains(widget->objectName())) << widget->objectName().toStdString();
        seen.append(widget->objectName());
    }
    for (const QWidget* widget : visibleControls()) {
        if (widget->inherits("torvane::StepButton") || widget->inherits("torvane::ListCombo")) {
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
        }
    }
}

TEST_P(ShipDataLooks, HaveNoTwoMnemonicsAlike)
{
    static const QRegularExpression pattern(u"&([^&\\s])"_s);
    QStringList seen;
    for (const QWidget* widget : visibleControls()) {
        if (widget->inherits("torvane::ValueLabel")) {
            continue;
        }
        const QString mnemonic = pattern.match(textOf(widget)).captured(1).toLower();
        if (!mnemonic.isEmpty()) {
            EXPECT_FALSE(seen.contains(mnemonic)) << textOf(widget).toStdString();
            seen.append(mnemonic);
        }
    }
}

TEST_P(ShipDataLooks, TabFollowsTheEyeAndReachesEveryButton)
{
    QList<QWidget*> stops;
    for (QWidget* widget = dialog().nextInFocusChain(); widget != &dialog();
         widget = widget->nextInFocusChain()) {
        if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && widget->isEnabled()) {
            stops.append(widget);
        }
    }
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const QPoint before = stops[i - 1]->mapTo(&dialog(), QPoint(0, 0));
        const QPoint after = stops[i]->mapTo(&dialog(), QPoint(0, 0));
        EXPECT_TRUE(after.x() > before.x() || after.y() > before.y())
            << stops[i - 1]->objectName().toStdString() << " before " << stops[i]->objectName().toStdString();
    }
    ASSERT_GT(stops.size(), 3);
    if (control<QPushButton>(dialog(), "cmdSave")->isEnabled()) { // no repair is open
        EXPECT_EQ(stops.first()->objectName(), "TabStrip1");
        EXPECT_EQ(stops.at(stops.size() - 2)->objectName(), "cmdSave");
        EXPECT_EQ(stops.last()->objectName(), "CmdCancel");
    }
    for (QWidget* widget : visibleControls()) {
        if (qobject_cast<QAbstractButton*>(widget) && widget->isEnabled()) {
            EXPECT_TRUE(stops.contains(widget)) << widget->objectName().toStdString();
        }
    }
}

TEST_P(ShipDataLooks, FitOnASmallScreen)
{
    EXPECT_LE(dialog().width(), 1000);
    EXPECT_LE(dialog().height(), 600);
}

std::string looksName(const ::testing::TestParamInfo<std::tuple<int, Language>>& info)
{
    const auto& [page, opened] = pageCases[std::get<0>(info.param)];
    return "Page" + std::to_string(page + 1) + (opened ? opened : "") +
           (std::get<1>(info.param) == Language::German ? "German" : "English");
}

INSTANTIATE_TEST_SUITE_P(Each, ShipDataLooks,
                         ::testing::Combine(::testing::Range(0, static_cast<int>(std::size(pageCases))),
                                            ::testing::Values(Language::German, Language::English)),
                         looksName);

} // namespace
} // namespace torvane::testing
