#include "map_fixture.h"
#include "overview/enviro_frm.h"
#include "platform/picture_button.h"

namespace torvane::testing {
namespace {

/// The rings on the map and the tools that show them.
class Rings : public MapFixture
{
protected:
    PictureButton* tool(const char* name) { return control<PictureButton>(main(), QLatin1StringView(name)); }
    /// One ship in the middle of the map, of 480 yards a pixel by day.
    void addShip(const char* type, const char* radar = "EXCELLENT")
    {
        addDivision(0, "Blue", 1, 1);
        set(shipSection(0, 0), "TYPE", QString::fromLatin1(type));
        set(shipSection(0, 0), "RADARTYPE", QString::fromLatin1(radar));
    }
    void setConditions(const char* visibility, const char* radar, const char* seaState, const char* rain)
    {
        EnvironmentValues values = editor().enviroFrm().values();
        values.visibility = QLatin1StringView(visibility);
        values.radar = QLatin1StringView(radar);
        values.seaState = QLatin1StringView(seaState);
        values.rain = QLatin1StringView(rain);
        editor().enviroFrm().show(values);
    }
    const QColor sea{1, 176, 235};
    const QColor white{255, 255, 255};
    const QColor green{0, 255, 0};
    const QColor yellow{255, 255, 0};
    const QColor blue{0, 0, 255};
    const QColor brown{128, 64, 0};
    const QColor rust{192, 64, 0};
    const QColor orange{255, 128, 0};
};

TEST_F(Rings, EachToolDrawsItsFamilyAndTakesItAway)
{
    startPastSplash();
    addShip("CA");
    chooseZoom("optZoomLevel9");
    // 25920, 30650 and 34425 yards at 480 a pixel.
    for (const auto& [name, colour, radius] :
         {std::tuple("cmdVisibCircles", yellow, 54), std::tuple("cmdGunCircles", blue, 63),
          std::tuple("cmdRadarCircles", orange, 71)}) {
        use(name);
        EXPECT_TRUE(tool(name)->isChecked()) << name;
        EXPECT_EQ(pixel(312 + radius, 208), colour) << name;
        EXPECT_EQ(pixel(312, 208 - radius), colour) << name;
        use(name);
        EXPECT_FALSE(tool(name)->isChecked()) << name;
        EXPECT_NE(pixel(312 + radius, 208), colour) << name;
    }
}

TEST_F(Rings, OfAllFamiliesStandInTheirColours)
{
    startPastSplash();
    addShip("CA");
    chooseZoom("optZoomLevel9");
    use("cmdVisibCircles");
    use("cmdGunCircles");
    use("cmdRadarCircles");
    for (const auto& [radius, colour] :
         {std::pair(67, white), std::pair(60, green), std::pair(54, yellow), std::pair(63, blue),
          std::pair(84, brown), std::pair(75, rust), std::pair(71, orange)}) {
        EXPECT_EQ(pixel(312 + radius, 208), colour) << radius;
    }
    press(map(), Qt::Key_D);
    EXPECT_EQ(pixel(312 + 54, 208), yellow);
    EXPECT_EQ(pixel(312 + 71, 208), orange);
    EXPECT_EQ(pixel(312 + 63, 208), blue) << "gun rings stay";
    EXPECT_EQ(countOf(green) + countOf(brown) + countOf(rust), 0);
    press(map(), Qt::Key_F);
    EXPECT_EQ(pixel(312 + 60, 208), green);
}

TEST_F(Rings, FollowTheEnvironmentDialogAsItStands)
{
    startPastSplash();
    addShip("CA");
    chooseZoom("optZoomLevel9");
    use("cmdVisibCircles");
    use("cmdRadarCircles");
    setConditions("50 %", "50 %", "1", "Off");
    main().redrawMap();
    EXPECT_EQ(pixel(312 + 27, 208), yellow);
    EXPECT_EQ(pixel(312 + 35, 208), orange);
    setConditions("50 %", "50 %", "8", "Off");
    main().redrawMap();
    EXPECT_EQ(pixel(312 + 35, 208), sea);
}

TEST_F(Rings, OfRadarAreShortenedByRainInTheEnglishProgramAlone)
{
    for (const auto& [language, word, radius] :
         {std::tuple(Language::English, "On", 50), // 70 % of 34425
          std::tuple(Language::English, "Off", 71), std::tuple(Language::German, "Ein", 71)}) {
        startPastSplash(language);
        addShip("CA");
        chooseZoom("optZoomLevel9");
        use("cmdRadarCircles");
        setConditions("50 %", "100 %", "1", word);
        ASSERT_EQ(editor().enviroFrm().values().rain, QLatin1StringView(word));
        main().redrawMap();
        EXPECT_EQ(pixel(312 + radius, 208), orange) << word;
    }
}

TEST_F(Rings, AtNightAreTwiceAsLargeAndTrainingCounts)
{
    startPastSplash();
    addShip("CA");
    set(shipSection(0, 0), "NIGHTTRAINING", QStringLiteral("poor"));
    chooseZoom("optZoomLevel9");
    use("cmdVisibCircles");
    setConditions("40 %", "100 %", "1", "Off");
    setValue(main().chkDayNight, 0);
    returnFromDialog();
    // A fifth of 25920 yards at 240 a pixel.
    EXPECT_EQ(pixel(312 + 21, 208), yellow);
    setValue(main().chkDayNight, 1);
    returnFromDialog();
    EXPECT_EQ(pixel(312 + 21, 208), yellow) << "two fifths at 480 a pixel";
}

TEST_F(Rings, OfAnUnknownTypeAreToldOnceAndEndTheWalkBehindItsHull)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 3, "Line of Bearing");
    set(shipSection(0, 1), "TYPE", QStringLiteral("CV"));
    set(shipSection(0, 1), "XPOSITION", QStringLiteral("3000")); // pixel 362
    set(shipSection(0, 2), "XPOSITION", QStringLiteral("6000")); // pixel 412
    set(QStringLiteral("DIVISION0"), "FLAGSHIPINDEX", QStringLiteral("1"));
    setConditions("50 %", "50 %", "1", "Off"); // the smallest ring is on the map
    use("cmdVisibCircles");
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("CV"));
    use("cmdGunCircles");
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_GT(countOf(yellow), 0) << "the ship before has its rings";
    EXPECT_EQ(pixel(362, 209), QColor(Qt::black)) << "its stern";
    EXPECT_EQ(pixel(366, 190), blue) << "its pennant";
    EXPECT_NE(pixel(412, 209), QColor(Qt::black)) << "the ship behind it";
    EXPECT_EQ(entry("mnuDiv1Ship1")->text(), QStringLiteral("DD S00"));
    EXPECT_FALSE(entry("mnuDiv1Ship2")->isVisible());
    EXPECT_FALSE(entry("mnuDiv1Ship3")->isVisible());
    use("cmdVisibCircles");
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_TRUE(entry("mnuDiv1Ship2")->isVisible());
    EXPECT_TRUE(entry("mnuDiv1Ship3")->isVisible());
    EXPECT_EQ(pixel(412, 209), QColor(Qt::black));
}

} // namespace
} // namespace torvane::testing
