#include "divisions/division_texts.h"
#include "divisions/speed_limits.h"
#include "guide/check_guide.h"
#include "guide/write_guide.h"
#include "map/map_geometry.h"
#include "map/range_rings.h"
#include "map/view_tools.h"
#include "overview/environment_rules.h"
#include "overview/missions.h"
#include "overview/overview_texts.h"
#include "platform/error_names.h"
#include "scenario_file/save_texts.h"
#include "shell/captions.h"
#include "shell/commands.h"
#include "shell/help_book.h"
#include "shell/help_texts.h"
#include "ship_selection/ship_texts.h"
#include "store/force_sizes.h"
#include "support/printers.h"

#include <QRegularExpression>

#include <gmock/gmock.h>

// The guide that comes with the editor, held against what the program says and does.

namespace torvane::testing {
namespace {

constexpr Language bothLanguages[] = {Language::English, Language::German};

const Guide& guide()
{
    static const Guide read = readGuide(QStringLiteral(GUIDE_FILES));
    return read;
}

const HelpBook& book(Language language)
{
    static const QByteArray file = guideFile(guide());
    static const std::optional<HelpBook> english = HelpBook::parse(file, Language::English);
    static const std::optional<HelpBook> german = HelpBook::parse(file, Language::German);
    return *(language == Language::German ? german : english);
}

QString plainText(QString html)
{
    html.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    html.replace(QStringLiteral("&lt;"), QStringLiteral("<"));
    html.replace(QStringLiteral("&gt;"), QStringLiteral(">"));
    html.replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    return html.simplified();
}

QString chapterHtml(const QString& name, Language language)
{
    const std::optional<std::size_t> index = book(language).indexOf(name);
    return index ? book(language).chapters()[*index].html : QString();
}

QString wholeText(Language language)
{
    QString text;
    for (const HelpChapter& chapter : book(language).chapters()) {
        text += plainText(chapter.html) + u'\n';
    }
    return text;
}

/// Every fixed piece of a text stands in the guide; blanks count as one, and what a text leaves open is left
/// out.
void expectExplained(const QString& text, Language language, const QString& in)
{
    static const QRegularExpression open(QStringLiteral("%[0-9]|\n"));
    for (const QString& piece : text.split(open)) {
        EXPECT_TRUE(in.contains(piece.simplified()))
            << piece.toStdString() << (language == Language::German ? " (German)" : " (English)");
    }
}

/// The cells of the first table in a section, row by row, without its heads and its thousands separators.
QList<QStringList> tableRows(const QString& chapter, const QString& section, Language language)
{
    QString html = chapterHtml(chapter, language);
    html = html.mid(
        html.indexOf(QRegularExpression(QStringLiteral("<h2 id=\"..\\.%1\\.%2\"").arg(chapter, section))));
    html = html.mid(html.indexOf(QStringLiteral("<table")));
    html = html.left(html.indexOf(QStringLiteral("</table>")));
    static const QRegularExpression row(QStringLiteral("<tr>(.*?)</tr>"),
                                        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression cell(QStringLiteral("<td>(.*?)</td>"),
                                         QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression separator(QStringLiteral("(?<=[0-9])[.,](?=[0-9]{3})"));
    QList<QStringList> rows;
    for (const QRegularExpressionMatch& match : row.globalMatch(html)) {
        QStringList cells;
        for (const QRegularExpressionMatch& inner : cell.globalMatch(match.captured(1))) {
            cells.append(plainText(inner.captured(1)).remove(separator));
        }
        if (!cells.isEmpty()) {
            rows.append(cells);
        }
    }
    return rows;
}

TEST(DeliveredGuide, HasNoProblems)
{
    EXPECT_EQ(guideProblems(guide()), QStringList());
}

TEST(DeliveredGuide, HasTheSameChaptersAndSectionsInBothLanguages)
{
    const std::vector<HelpChapter>& english = book(Language::English).chapters();
    const std::vector<HelpChapter>& german = book(Language::German).chapters();
    ASSERT_EQ(english.size(), german.size());
    EXPECT_GE(english.size(), 15U);
    for (std::size_t i = 0; i < english.size(); ++i) {
        EXPECT_EQ(english[i].name, german[i].name);
        EXPECT_NE(english[i].html, german[i].html);
        EXPECT_GE(english[i].sections.size(), 2) << english[i].name.toStdString();
        ASSERT_EQ(english[i].sections.size(), german[i].sections.size());
        for (qsizetype j = 0; j < english[i].sections.size(); ++j) {
            EXPECT_EQ(english[i].sections[j].anchor.mid(2), german[i].sections[j].anchor.mid(2));
        }
    }
}

TEST(DeliveredGuide, IsEquallyLongInBothLanguages)
{
    for (const HelpChapter& chapter : book(Language::English).chapters()) {
        const double english = static_cast<double>(plainText(chapter.html).size());
        const double german =
            static_cast<double>(plainText(chapterHtml(chapter.name, Language::German)).size());
        EXPECT_GT(german / english, 0.9) << chapter.name.toStdString();
        EXPECT_LT(german / english, 1.4) << chapter.name.toStdString();
    }
}

TEST(DeliveredGuide, HasTheChapterOfEveryDialog)
{
    for (const char* window : {"OverviewFrm", "EnviroFrm", "CreateDivisionFrm", "ShipDBaseFrm", "ShipDataFrm",
                               "ZoomLevelFrm", "GridLevelFrm", "AboutFrm"}) {
        const QString chapter = helpChapterFor(QString::fromLatin1(window));
        EXPECT_TRUE(book(Language::English).indexOf(chapter)) << window;
    }
}

TEST(DeliveredGuide, ExplainsEveryMessageOfTheOverviewAndEnvironment)
{
    for (const Language language : bothLanguages) {
        const QString text = wholeText(language);
        for (const auto& row : overviewMessages) {
            expectExplained(row.text.in(language), language, text);
        }
    }
}

TEST(DeliveredGuide, ExplainsEveryMessageOfSaving)
{
    for (const Language language : bothLanguages) {
        const QString text = wholeText(language);
        for (const auto& row : saveTexts) {
            expectExplained(row.text.in(language), language, text);
        }
    }
}

TEST(DeliveredGuide, ExplainsWhatTheMainWindowSays)
{
    for (const Language language : bothLanguages) {
        const QString text = wholeText(language);
        for (const MainText message :
             {MainText::ExitQuestion, MainText::ExitTitle, MainText::Loading, MainText::Saving,
              MainText::FolderInUse, MainText::UnsavedFile, MainText::Unrecovered, MainText::HelpTagsOn,
              MainText::HelpTagsOff, MainText::RulerCaption}) {
            expectExplained(mainText(message, language), language, text);
        }
        for (const ViewTool& tool : viewTools) {
            expectExplained(tool.tagText(language).string(), language, text);
        }
    }
}

TEST(DeliveredGuide, ExplainsEveryMessageOfTheDivisionDialog)
{
    for (const Language language : bothLanguages) {
        const QString text = wholeText(language);
        for (const DivisionText message :
             {DivisionText::TooManyDivisions, DivisionText::HeadingRange, DivisionText::OutOfRangeTitle}) {
            expectExplained(divisionText(message, language), language, text);
        }
    }
}

TEST(DeliveredGuide, ExplainsEveryErrorOfTheSystem)
{
    for (const Language language : bothLanguages) {
        const QString text = plainText(chapterHtml(QStringLiteral("messages"), language));
        for (const ErrorName& error : errorNames) {
            expectExplained(error.name.in(language), language, text);
        }
    }
}

TEST(DeliveredGuide, ExplainsEveryMessageOfTheShipDialog)
{
    for (const Language language : bothLanguages) {
        const QString text = plainText(chapterHtml(QStringLiteral("messages"), language));
        for (const SelectionMessageRow& row : selectionMessages) {
            expectExplained(row.text.in(language), language, text);
            expectExplained(row.title.in(language), language, text);
        }
        for (const ShipText search :
             {ShipText::SearchPrompt, ShipText::SearchTitle, ShipText::NotFound, ShipText::NotFoundTitle}) {
            expectExplained(shipText(search, language), language, text);
        }
    }
}

TEST(DeliveredGuide, ExplainsEveryMenuEntry)
{
    for (const Language language : bothLanguages) {
        const QString text = plainText(chapterHtml(QStringLiteral("window"), language));
        for (const MenuRow& row : menuRows()) {
            const bool numbered = row.designCaption.contains(QRegularExpression(QStringLiteral("[0-9]$")));
            if (row.kind == MenuRow::Kind::Separator || numbered) {
                continue;
            }
            const QString own = language == Language::German ? row.germanCaption : row.englishCaption;
            QString caption = own.isNull() ? row.designCaption : own;
            expectExplained(caption.remove(u'&'), language, text);
        }
    }
}

TEST(DeliveredGuide, NamesEveryMissionAndRole)
{
    for (const Language language : bothLanguages) {
        const QString text = plainText(chapterHtml(QStringLiteral("overview"), language));
        for (const Mission& mission : missions) {
            expectExplained(mission.caption.in(language), language, text);
            expectExplained(mission.firstRole.name.in(language), language, text);
            expectExplained(mission.secondRole.name.in(language), language, text);
        }
    }
}

TEST(DeliveredGuide, TellsTheScaleOfEveryZoomLevel)
{
    for (const Language language : bothLanguages) {
        const QList<QStringList> rows = tableRows(QStringLiteral("map"), QStringLiteral("zoom"), language);
        ASSERT_EQ(rows.size(), static_cast<qsizetype>(zoomLevels.size()));
        for (std::size_t i = 0; i < zoomLevels.size(); ++i) {
            const ZoomLevel& level = zoomLevels[i];
            const bool german = language == Language::German;
            const auto width = [german](int scale) {
                return QString::number(625 * scale) +
                       (german ? QStringLiteral(" Yards") : QStringLiteral(" yards"));
            };
            const QStringList expected{QString::fromUtf8(german ? level.german : level.english),
                                       QString::number(level.dayScale), QString::number(level.nightScale),
                                       width(level.dayScale), width(level.nightScale)};
            EXPECT_EQ(rows[static_cast<qsizetype>(i)], expected);
        }
    }
}

TEST(DeliveredGuide, TellsTheSpacingOfEveryGrid)
{
    for (const Language language : bothLanguages) {
        QStringList levels;
        for (const QStringList& row : tableRows(QStringLiteral("map"), QStringLiteral("grid"), language)) {
            for (const QString& number : row.constFirst().split(QStringLiteral(", "))) {
                levels.append(number);
                const ZoomLevel& level = zoomLevels.at(number.toUInt());
                QStringList expected;
                for (const GridSpacings& grid : {level.dayGrid, level.nightGrid}) {
                    expected += {QString::number(grid.large), QString::number(grid.medium),
                                 QString::number(grid.small)};
                }
                EXPECT_EQ(row.mid(1), expected) << number.toStdString();
            }
        }
        EXPECT_EQ(levels.join(u' '), QStringLiteral("0 1 2 3 4 5 6 7 8 9 10"));
    }
}

TEST(DeliveredGuide, TellsTheWindOfEverySeaState)
{
    for (const Language language : bothLanguages) {
        const QList<QStringList> rows =
            tableRows(QStringLiteral("environment"), QStringLiteral("sea"), language);
        ASSERT_EQ(rows.size(), 1);
        QStringList expected;
        for (const SeaStateBand& band : seaStateBands) {
            expected.append(QStringLiteral("%1-%2").arg(band.lowestWind).arg(band.highestWind));
        }
        EXPECT_EQ(rows[0].mid(1), expected);
    }
}

TEST(DeliveredGuide, TellsTheSpeedOfEveryTypeInEverySea)
{
    constexpr std::array<std::size_t, 5> columns{0, 2, 3, 4, 5}; // BC makes what BB makes
    for (const Language language : bothLanguages) {
        const QList<QStringList> rows =
            tableRows(QStringLiteral("divisions"), QStringLiteral("speed"), language);
        ASSERT_EQ(rows.size(), static_cast<qsizetype>(seaStateSpeedTable.size()));
        for (std::size_t sea = 0; sea < seaStateSpeedTable.size(); ++sea) {
            const auto& speeds = seaStateSpeedTable.at(sea);
            ASSERT_EQ(speeds[0], speeds[1]);
            QStringList expected{QString::number(sea + 1)};
            for (const std::size_t column : columns) {
                expected.append(QString::number(speeds.at(column)));
            }
            EXPECT_EQ(rows[static_cast<qsizetype>(sea)], expected);
        }
    }
}

TEST(DeliveredGuide, TellsHowManyOfEachAScenarioHolds)
{
    for (const Language language : bothLanguages) {
        QStringList most;
        for (const QStringList& row :
             tableRows(QStringLiteral("limits"), QStringLiteral("numbers"), language)) {
            most.append(row.value(2));
        }
        EXPECT_EQ(most, (QStringList{QString::number(divisionsPerSide), QString::number(shipsPerDivision),
                                     QString::number(shipsPerForce), QString::number(shipsPerScenario), "1",
                                     "30", "369"}));
    }
}

TEST(DeliveredGuide, TellsWhatRadarAndSeaLeaveOfARange)
{
    for (const Language language : bothLanguages) {
        const QString text = plainText(chapterHtml(QStringLiteral("rings"), language));
        for (const NamedPercent& rating : radarRatings) {
            EXPECT_TRUE(text.contains(QStringLiteral(" %1 %").arg(rating.percent))) << rating.percent;
        }
        for (const SeaPercent& sea : radarSeas) {
            if (sea.percent > 0) {
                expectExplained(QStringLiteral("%1: %2 %").arg(sea.seaState).arg(sea.percent), language,
                                text);
            }
        }
    }
}

/// The three rings of a table, as the guide shows them: to each target, by battleship, cruiser and destroyer.
void expectReach(const RangeTable& table, const QString& section)
{
    for (const Language language : bothLanguages) {
        const QList<QStringList> rows = tableRows(QStringLiteral("rings"), section, language);
        ASSERT_EQ(rows.size(), static_cast<qsizetype>(ringClasses.size()));
        for (std::size_t i = 0; i < ringClasses.size(); ++i) {
            const QStringList& row = rows[static_cast<qsizetype>(i)];
            EXPECT_TRUE(row[0].contains(ringClasses[i].label)) << row[0].toStdString();
            QStringList expected;
            for (const char* type : {"BB", "CA", "DD"}) {
                expected.append(QString::number(
                    rangeOf(table, typeIndex(QString::fromLatin1(type)), ringClasses[i].number)));
            }
            EXPECT_EQ(row.mid(1), expected);
        }
    }
}

TEST(DeliveredGuide, TellsHowFarShipsSee)
{
    expectReach(visibilityRangeTable, QStringLiteral("visibility"));
}

TEST(DeliveredGuide, TellsHowFarRadarReaches)
{
    expectReach(radarRangeTable, QStringLiteral("radar"));
}

TEST(DeliveredGuide, SpeaksToAuthorsAndNotOfTheProgramsInside)
{
    const QRegularExpression inside(
        QStringLiteral("\\.bmm|iniTemp|INVALID_|\\b(cmd|chk|mnu|lbl|txt|opt|Cmb)[A-Z]|SHIPCNT|DIVISIONCNT"));
    for (const Language language : bothLanguages) {
        EXPECT_FALSE(inside.match(wholeText(language)).hasMatch())
            << inside.match(wholeText(language)).captured(0).toStdString();
    }
}

} // namespace
} // namespace torvane::testing
