#include "windows/map_fixture.h"

#include <QPainter>

#include <algorithm>

namespace torvane::testing {
namespace {

const QColor daySea(1, 176, 235);
const QColor nightSea(0, 0, 128);
const QColor gridGrey(128, 128, 128);

class MapDrawing : public MapFixture
{
protected:
    PictureBox* readOut(const char* name) { return control<PictureBox>(main(), QLatin1StringView(name)); }
    /// A picture of a size with a text, printed without the picture's own help.
    static QImage written(const PictureBox& box, QSize size, QPoint at, const QString& text, QColor colour)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(box.backColor());
        QPainter painter(&image);
        painter.setFont(box.font());
        painter.setPen(colour);
        painter.drawText(at + QPoint(0, QFontMetrics(box.font()).ascent()), text);
        return image;
    }
    /// A read-out as it is with a text, three pixels from its left edge and in the middle of its height.
    static QImage asReadOut(const PictureBox* box, const char* text)
    {
        const int spare = box->height() - QFontMetrics(box->font()).height();
        return written(*box, box->image().size(), QPoint(3, std::max(0, spare / 2)),
                       QString::fromLatin1(text), box->palette().color(QPalette::WindowText));
    }
    void expectReadOut(const char* name, const char* text)
    {
        EXPECT_EQ(readOut(name)->image(), asReadOut(readOut(name), text)) << name << ": " << text;
    }
    /// The column of a box in the panel of the read-outs.
    int column(const char* name) { return readOut(name)->x(); }
    int row(const char* name) { return readOut(name)->y(); }
};

struct LevelPixels
{
    const char* option;
    int dayGrid; ///< column of the second line of the small grid
    int dayShip; ///< pixels from the origin to a ship 1,200 yards from it
    int nightGrid;
    int nightShip;
};

constexpr std::array<LevelPixels, 11> levelPixels{{
    {"optZoomLevel0", 25 + 50, 120, 25 + 50, 240},
    {"optZoomLevel8", 25 + 50, 60, 25 + 50, 120},
    {"optZoomLevel7", 42 + 83, 40, 34 + 67, 80},
    {"optZoomLevel6", 31 + 62, 30, 25 + 50, 60},
    {"optZoomLevel5", 25 + 50, 24, 20 + 40, 48},
    {"optZoomLevel4", 42 + 83, 20, 42 + 83, 40},
    {"optZoomLevel3", 31 + 62, 15, 31 + 62, 30},
    {"optZoomLevel2", 42 + 83, 10, 42 + 83, 20},
    {"optZoomLevel1", 21 + 42, 5, 21 + 42, 10},
    {"optZoomLevel9", 16 + 31, 2, 16 + 31, 5},
    {"optZoomLevel10", 8 + 16, 1, 8 + 16, 2},
}};

TEST_F(MapDrawing, EveryZoomLevelHasItsGridAndItsShipsByDayAndByNight)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    set(QStringLiteral("DIVISION0SHIP0"), "XPOSITION", QStringLiteral("1200"));
    const auto expectPixels = [this](const char* option, int grid, int ship, const QColor& sea) {
        EXPECT_EQ(pixel(grid - 1, 5), sea) << option;
        EXPECT_EQ(pixel(grid, 5), gridGrey) << option;
        EXPECT_EQ(pixel(grid + 1, 5), sea) << option;
        EXPECT_EQ(pixel(312 + ship + 1, 190), QColor(Qt::black)) << option << ": the pennant's outline";
        EXPECT_EQ(pixel(312 + ship + 2, 190), QColor(Qt::blue)) << option << ": its fill";
    };
    for (const LevelPixels& level : levelPixels) {
        setValue(main().chkDayNight, 1);
        chooseZoom(level.option);
        expectPixels(level.option, level.dayGrid, level.dayShip, daySea);
        setValue(main().chkDayNight, 0);
        returnFromDialog();
        expectPixels(level.option, level.nightGrid, level.nightShip, nightSea);
    }
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(MapDrawing, TheReadOutsReadWidthXHeightAndBelowThemTheCursor)
{
    startPastSplash();
    movePointer({100, 50});
    expectReadOut("Picture2", "37,500 yds.");
    expectReadOut("Picture4", "X");
    expectReadOut("Picture1", "25,020 yds.");
    expectReadOut("picMapScale1", "6,000 yds.");
    expectReadOut("picMapScaleX", "X");
    expectReadOut("picMapScale2", "3,000 yds.");
    EXPECT_LT(column("Picture2"), column("Picture4"));
    EXPECT_LT(column("Picture4"), column("Picture1"));
    EXPECT_LT(column("picMapScale1"), column("picMapScaleX"));
    EXPECT_LT(column("picMapScaleX"), column("picMapScale2"));
    for (const auto& [upper, lower] :
         {std::pair("Picture2", "picMapScale1"), std::pair("Picture4", "picMapScaleX"),
          std::pair("Picture1", "picMapScale2")}) {
        EXPECT_LT(row(upper), row(lower));
        EXPECT_EQ(readOut(upper)->parentWidget()->objectName(), QStringLiteral("picScaleYards"));
        EXPECT_EQ(readOut(lower)->parentWidget(), readOut(upper)->parentWidget());
        EXPECT_TRUE(readOut(upper)->isVisible());
    }
}

TEST_F(MapDrawing, TheReadOutsHalveAtNightAndKeepTheirUnit)
{
    startPastSplash();
    setValue(main().chkDayNight, 0);
    returnFromDialog();
    movePointer({100, 50});
    expectReadOut("Picture2", "18,750 yds.");
    expectReadOut("Picture1", "12,510 yds.");
    expectReadOut("picMapScale1", "3,000 yds.");
    expectReadOut("picMapScale2", "1,500 yds.");
}

TEST_F(MapDrawing, TheReadOutsOfDevelopmentAreWrittenThoughHidden)
{
    startPastSplash();
    expectReadOut("Picture5", "37,500 mts.");
    expectReadOut("Picture3", "25,020 mts.");
    const PictureBox* anchor = readOut("PicCoords");
    const QColor highlighted = anchor->parentWidget()->palette().color(QPalette::HighlightedText);
    EXPECT_EQ(anchor->image(),
              written(*anchor, anchor->image().size(), {}, QStringLiteral("312 X 208"), highlighted));
    EXPECT_EQ(anchor->foreColor(), anchor->parentWidget()->palette().color(QPalette::WindowText));
    for (const char* name : {"Picture3", "Picture5", "PicCoords", "PicXcoord", "PicYCoord"}) {
        EXPECT_FALSE(readOut(name)->isVisible()) << name;
    }
}

TEST_F(MapDrawing, ABarsValueGoesToItsOwnPanelAlone)
{
    startPastSplash();
    press(bar("HScroll1"), Qt::Key_Right);
    expectReadOut("PicXcoord", "17383");
    expectReadOut("PicYCoord", "");
    press(bar("VScroll1"), Qt::Key_Up);
    expectReadOut("PicXcoord", "17383");
    expectReadOut("PicYCoord", "14883");
    press(bar("HScroll1"), Qt::Key_Right);
    expectReadOut("PicXcoord", "18383");
    expectReadOut("PicYCoord", "14883");
}

TEST_F(MapDrawing, AShipLiesOverTheGridTheTargetOverTheShipAndARingOfSeparationOverAll)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    set(QStringLiteral("DIVISION0SHIP0"), "XPOSITION", QStringLiteral("600"));
    set(QStringLiteral("DIVISION0SHIP0"), "ZPOSITION", QStringLiteral("4980")); // at pixel 322, 291
    main().redrawMap();
    EXPECT_EQ(pixel(319, 291), QColor(Qt::black)) << "a dark line of the grid";
    EXPECT_EQ(pixel(321, 291), QColor(Qt::white)) << "the bow on it";
    setValue(main().chkBombardment, 1);
    returnFromDialog();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuTargetBox")));
    clickMap({321, 291});
    EXPECT_EQ(pixel(321, 291), QColor(Qt::red)) << "the middle of the target area";
    EXPECT_EQ(pixel(333, 303), QColor(Qt::red)) << "on its diagonal";
    main().map().awaitSeparationRings();
    main().redrawMap();
    EXPECT_EQ(pixel(321, 291), QColor(Qt::red));
    EXPECT_EQ(pixel(333, 303), QColor(Qt::black)) << "16 pixels from the ship";
    main().redrawMap();
    EXPECT_EQ(pixel(333, 303), QColor(Qt::red)) << "rings of separation show once";
}

class DivisionMark : public MapDrawing
{
protected:
    void expectMark(Language language, const char* mark)
    {
        startPastSplash(language);
        addDivision(0, "Red", 3, 1);
        chooseGrid("optOff");
        const QRect place(313, 173, 60, 12); // from a pixel right of the ship, 35 above it
        EXPECT_EQ(map()->image().copy(place),
                  written(*map(), place.size(), {}, QString::fromLatin1(mark), Qt::red));
    }
};

TEST_F(DivisionMark, IsDivWithTheDivisionsNumberInTheEnglishProgram)
{
    expectMark(Language::English, "Div3");
}

TEST_F(DivisionMark, IsVerbInTheGermanProgram)
{
    expectMark(Language::German, "Verb.3");
}

class DivisionCount : public MapDrawing
{
protected:
    void redrawWith(const char* count)
    {
        set(QStringLiteral("SCENARIOINFO"), "DIVISIONCNT", QString::fromLatin1(count));
        main().redrawMap();
    }
};

TEST_F(DivisionCount, IsRoundedBeforeItIsTakenForNone)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    redrawWith("0.4");
    EXPECT_EQ(pixel(316, 190), daySea);
    redrawWith("0.6");
    EXPECT_EQ(pixel(316, 190), QColor(Qt::blue));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(DivisionCount, BeyondItsBitsIsToldOnceAndLeavesGridAndTarget)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    setValue(main().chkBombardment, 1);
    returnFromDialog();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuTargetBox")));
    clickMap({400, 100});
    redrawWith("40000");
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_TRUE(boxes().first().text.contains(QStringLiteral("40000"))) << boxes().first().text.toStdString();
    EXPECT_EQ(pixel(316, 190), daySea) << "no ships";
    EXPECT_EQ(pixel(42, 10), gridGrey);
    EXPECT_EQ(pixel(400, 100), QColor(Qt::red));
    press(bar("HScroll1"), Qt::Key_Right);
    EXPECT_EQ(pixel(390, 100), QColor(Qt::red));
    EXPECT_EQ(boxes().size(), 1);
}

class FarShip : public MapDrawing
{
protected:
    void placeShip(const char* x)
    {
        set(QStringLiteral("DIVISION1SHIP0"), "XPOSITION", QString::fromLatin1(x));
        main().redrawMap();
    }
    void scrollAndZoom()
    {
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left}) {
            press(bar("HScroll1"), key);
        }
        press(bar("VScroll1"), Qt::Key_Down);
        chooseZoom("optZoomLevel0");
        chooseZoom("optZoomLevel8");
        main().showMaximized();
        settle();
        main().showNormal();
        settle();
    }
};

TEST_F(FarShip, IsToldOnceHoweverTheMapIsScrolledAndZoomed)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    addDivision(1, "Red", 1, 1);
    placeShip("3000000");
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_TRUE(boxes().first().text.endsWith(QStringLiteral(
        "Overflow: XPOSITION 3000000, ZPOSITION 0.000000 of DIVISION1SHIP0 (S10) is out of range.")))
        << boxes().first().text.toStdString();
    EXPECT_EQ(pixel(316, 190), QColor(Qt::blue)) << "the ships before it are drawn";
    scrollAndZoom();
    EXPECT_EQ(boxes().size(), 1);
    placeShip("600");
    EXPECT_EQ(boxes().size(), 1);
    placeShip("3000000");
    EXPECT_EQ(boxes().size(), 2) << "new again after a redraw without it";
    scrollAndZoom();
    EXPECT_EQ(boxes().size(), 2);
}

TEST_F(FarShip, IsToldAnewAtAnotherPlace)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    addDivision(1, "Red", 1, 1);
    placeShip("3000000");
    placeShip("-3000000");
    ASSERT_EQ(boxes().size(), 2);
    EXPECT_TRUE(boxes().last().text.contains(QStringLiteral("-3000000")));
}

TEST_F(FarShip, OfNoPixelsAtAllIsToldOnceThoughItsRingCannotBeDrawnEither)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    addDivision(1, "Red", 1, 1);
    main().map().awaitSeparationRings();
    placeShip("3000000000");
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_TRUE(boxes().first().text.contains(QStringLiteral("3000000000")));
}

// The pointer's yards are those of the level at which it was moved: at another its pixels may be beyond 16
// bits.
TEST_F(FarShip, OrAPointerFarOffAtTheLevelShownIsToldOnce)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    chooseZoom("optZoomLevel10");
    movePointer({600, 100});
    chooseZoom("optZoomLevel0");
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_TRUE(
        boxes().first().text.endsWith(QStringLiteral("Overflow: position 576000 X 96000 is out of range.")))
        << boxes().first().text.toStdString();
    press(bar("HScroll1"), Qt::Key_Right);
    setValue(main().chkDayNight, 0);
    returnFromDialog();
    EXPECT_EQ(boxes().size(), 1) << "half the scale, twice the pixels";
    movePointer({601, 100});
    main().redrawMap();
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_EQ(pixel(316, 190), QColor(Qt::blue));
}

TEST_F(MapDrawing, OnAScreenOfAnotherDensityTheMapIsDrawnAnew)
{
    startPastSplash();
    map()->setForeColor(Qt::magenta);
    map()->line({3, 3}, {9, 3});
    Q_EMIT map()->densityChanged();
    EXPECT_EQ(pixel(5, 3), QColor(Qt::magenta)) << "once all pictures are there";
    settle();
    EXPECT_EQ(pixel(5, 3), daySea);
}

TEST_F(MapDrawing, TheControlOfDayAndNightHasItsCaption)
{
    startPastSplash();
    EXPECT_EQ(main().chkDayNight->text(), QStringLiteral("Day On"));
    EXPECT_EQ(valueOf(main().chkDayNight), 1);
    EXPECT_FALSE(main().chkDayNight->isVisible());
}

} // namespace
} // namespace torvane::testing
