#include "overview_fixture.h"

namespace torvane::testing {
namespace {

class EnvironmentWeather : public Dialogs
{
protected:
    void openFresh(Language language = Language::English)
    {
        openNew(language);
        openEnvironment();
    }
    void setWind(const char* speed) { retype(envBox("TxtWindSpd"), QLatin1StringView(speed)); }
    QString wind() { return envBox("TxtWindSpd")->text(); }
    QString sea() { return envList("ComboSeaState")->currentText(); }
    /// Opens the dialog at an hour of the night, or of the day.
    void openBy(bool day, const char* visibility)
    {
        openNew();
        store("START_TIME", day ? "12:30" : "22:30");
        store("VISIBILITY", visibility);
        openEnvironment();
    }
};

TEST_F(EnvironmentWeather, EveryTypedWindBringsTheSeaOfItsBand)
{
    const int lowest[] = {1, 4, 7, 11, 17, 22, 28, 34, 41};
    openFresh();
    for (int state = 1; state <= 8; ++state) {
        for (int speed = lowest[state - 1]; speed < lowest[state]; ++speed) {
            pasteOver(envBox("TxtWindSpd"), QString::number(speed));
            EXPECT_EQ(sea(), QString::number(state)) << speed;
        }
    }
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_TRUE(script.randomSource.seeds.isEmpty()) << "nothing is drawn";
}

TEST_F(EnvironmentWeather, TheStepperBringsTheSeaWithIt)
{
    openFresh();
    clickTimes(envButton("Command7"), 3);
    EXPECT_EQ(wind(), QStringLiteral("4"));
    EXPECT_EQ(sea(), QStringLiteral("2"));
    click(envButton("Command8"));
    EXPECT_EQ(wind(), QStringLiteral("3"));
    EXPECT_EQ(sea(), QStringLiteral("1"));
}

TEST_F(EnvironmentWeather, Wind40UpIsWind1InSea1AndWind1DownIsWind40InSea8)
{
    openFresh();
    setWind("40");
    EXPECT_EQ(sea(), QStringLiteral("8"));
    click(envButton("Command7"));
    EXPECT_EQ(wind(), QStringLiteral("1"));
    EXPECT_EQ(sea(), QStringLiteral("1"));
    click(envButton("Command8"));
    EXPECT_EQ(wind(), QStringLiteral("40"));
    EXPECT_EQ(sea(), QStringLiteral("8"));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(EnvironmentWeather, Wind10StaysAtSea3AndBecomes34To40AtSea8)
{
    openFresh();
    setWind("10");
    pick(envList("ComboSeaState"), "3");
    EXPECT_EQ(wind(), QStringLiteral("10"));
    EXPECT_TRUE(script.randomSource.seeds.isEmpty());
    script.randomSource.values = {0.0, 0.5, 0.999999};
    for (const char* drawn : {"34", "37", "40"}) {
        setWind("10");
        pick(envList("ComboSeaState"), "8");
        EXPECT_EQ(wind(), QLatin1StringView(drawn));
        EXPECT_EQ(sea(), QStringLiteral("8"));
    }
}

TEST_F(EnvironmentWeather, EachSeaDrawsFromItsLowEndToItsHighEnd)
{
    const char* const ends[][2] = {{"1", "3"},   {"4", "6"},   {"7", "10"},  {"11", "16"},
                                   {"17", "21"}, {"22", "27"}, {"28", "33"}, {"34", "40"}};
    openFresh();
    for (int state = 1; state <= 8; ++state) {
        const QByteArray entry = QByteArray::number(state);
        for (const int end : {0, 1}) {
            setWind(state == 1 ? "40" : "1");
            script.randomSource.values = {end == 0 ? 0.0 : 0.9999};
            pick(envList("ComboSeaState"), entry.constData());
            EXPECT_EQ(wind(), QLatin1StringView(ends[state - 1][end])) << state;
            EXPECT_EQ(sea(), QString::number(state));
        }
    }
}

TEST_F(EnvironmentWeather, VisibilityIsLoadedBehindTheClocksAndTheSeaBehindTheWind)
{
    openBy(false, "100");
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("100 %"))
        << "what the scenario holds, not what night allows";
    EXPECT_TRUE(envLabel("imgNight")->isVisible());
    EXPECT_FALSE(envLabel("imgDay")->isVisible());
    cancelEnvironment();
    store("WIND_SPEED", "1");
    store("SEASTATE", "8");
    openEnvironment();
    EXPECT_EQ(wind(), QStringLiteral("1"));
    EXPECT_EQ(sea(), QStringLiteral("8"));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(EnvironmentWeather, EachDrawIsSeededFromTheClockAnew)
{
    openFresh();
    pick(envList("ComboSeaState"), "5");
    script.clock.time = script.clock.time.addMSecs(1234);
    pick(envList("ComboSeaState"), "7");
    ASSERT_EQ(script.randomSource.seeds.size(), 2);
    EXPECT_EQ(script.randomSource.seeds[1] - script.randomSource.seeds[0], 1234U);
}

TEST_F(EnvironmentWeather, AWindOf41BringsTheMessageAndThe1)
{
    openFresh(Language::English);
    setWind("41");
    expectOneBox("You must enter a speed between 1 and 40 knots.", "Out of Range");
    EXPECT_EQ(wind(), QStringLiteral("1"));
    EXPECT_EQ(sea(), QStringLiteral("1"));
    openFresh(Language::German);
    setWind("0");
    expectOneBox("Sie müssen eine Geschwindigkeit zwischen 1 und 40 Knoten eingeben.",
                 "Ausserhalb Ihrer Reichweite");
    EXPECT_EQ(wind(), QStringLiteral("1"));
}

TEST_F(EnvironmentWeather, TypingNothingLeavesTheBoxEmptyAndTheSeaUntouched)
{
    openFresh();
    setWind("25");
    setWind("");
    EXPECT_EQ(wind(), QString());
    EXPECT_EQ(sea(), QStringLiteral("6"));
    EXPECT_TRUE(boxes().isEmpty());
    click(envButton("Command7"));
    EXPECT_EQ(wind(), QStringLiteral("2")) << "an empty box counts as 1";
    setWind("");
    acceptEnvironment();
    EXPECT_EQ(stored("WIND_SPEED"), QStringLiteral("1"));
    openEnvironment();
    EXPECT_TRUE(boxes().isEmpty()) << "and is stored as that";
}

TEST_F(EnvironmentWeather, ADirectionBeyondTheCircleBringsTheMessageAndThe0)
{
    openFresh(Language::English);
    retype(envBox("TxtWindDir"), QStringLiteral("361"));
    expectOneBox("You must enter a heading between 0 and 360 degrees.", "Out of Range");
    EXPECT_EQ(envBox("TxtWindDir")->text(), QStringLiteral("0"));
    openFresh(Language::German);
    pasteOver(envBox("TxtWindDir"), QStringLiteral("-1"));
    expectOneBox("Sie müssen einen Wert zwischen 0 und 360 eingeben.", "Ausserhalb Ihrer Reichweite");
    EXPECT_EQ(envBox("TxtWindDir")->text(), QStringLiteral("0"));
}

TEST_F(EnvironmentWeather, AValidDirectionIsRewrittenAsItsInteger)
{
    openFresh();
    for (const auto& [pasted, shown] :
         {std::pair{"045", "45"}, std::pair{"90.7", "90"}, std::pair{"12x", "12"}}) {
        pasteOver(envBox("TxtWindDir"), QLatin1StringView(pasted));
        EXPECT_EQ(envBox("TxtWindDir")->text(), QLatin1StringView(shown));
    }
    retype(envBox("TxtWindDir"), QString());
    EXPECT_EQ(envBox("TxtWindDir")->text(), QStringLiteral("0"));
    type(envBox("TxtWindDir"), QStringLiteral("270"));
    EXPECT_EQ(envBox("TxtWindDir")->text(), QStringLiteral("270"));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(EnvironmentWeather, WindDirectionAndRadarStepAndWrap)
{
    const StepCase steps[] = {
        {"Command7", "TxtWindSpd", "12", "13"},    {"Command8", "TxtWindSpd", "12", "11"},
        {"Command11", "TxtWindDir", "180", "181"}, {"Command11", "TxtWindDir", "360", "0"},
        {"Command12", "TxtWindDir", "180", "179"}, {"Command12", "TxtWindDir", "0", "360"},
        {"Command6", "TxtRadar", "50 %", "51 %"},  {"Command6", "TxtRadar", "100 %", "0 %"},
        {"Command4", "TxtRadar", "50 %", "49 %"},  {"Command4", "TxtRadar", "0 %", "100 %"},
    };
    openFresh();
    for (const StepCase& step : steps) {
        pasteOver(envBox(step.box), QLatin1StringView(step.from));
        click(envButton(step.button));
        EXPECT_EQ(envBox(step.box)->text(), QLatin1StringView(step.to)) << step.button << step.from;
    }
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(EnvironmentWeather, ByDayVisibilityStepsFrom40To100)
{
    openBy(true, "99");
    click(envButton("Command5"));
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("100 %"));
    click(envButton("Command5"));
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("40 %"));
    click(envButton("Command3"));
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("100 %")) << "40 stepped down";
    click(envButton("Command3"));
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("99 %"));
}

TEST_F(EnvironmentWeather, ByNightVisibilityStepsFrom0To40)
{
    openBy(false, "39");
    click(envButton("Command5"));
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("40 %"));
    click(envButton("Command5"));
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("0 %"));
    click(envButton("Command3"));
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("40 %")) << "0 stepped down";
    click(envButton("Command3"));
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("39 %"));
    acceptEnvironment();
    EXPECT_EQ(stored("VISIBILITY"), QStringLiteral("39"));
}

TEST_F(EnvironmentWeather, AHeldStepperRepeats)
{
    openFresh();
    QTest::mousePress(envButton("Command7"), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return wind().toInt() >= 5; }));
    QTest::mouseRelease(envButton("Command7"), Qt::LeftButton);
    EXPECT_EQ(sea(), QStringLiteral("2"));
}

TEST_F(EnvironmentWeather, PercentsTakeNoNumberBeyond100AndAreStoredWithoutTheSign)
{
    openFresh();
    for (const char* name : {"TxtVis", "TxtRadar"}) {
        retype(envBox(name), QStringLiteral("85"));
        EXPECT_EQ(envBox(name)->text(), QStringLiteral("85"));
        type(envBox(name), QStringLiteral("0"));
        EXPECT_EQ(envBox(name)->text(), QStringLiteral("85")) << "850 is no percentage";
        type(envBox(name), QStringLiteral(" %"));
        EXPECT_EQ(envBox(name)->text(), QStringLiteral("85 %"));
        press(envBox(name), Qt::Key_Home);
        type(envBox(name), QStringLiteral("-"));
        EXPECT_EQ(envBox(name)->text(), QStringLiteral("85 %"));
    }
    acceptEnvironment();
    EXPECT_EQ(stored("VISIBILITY"), QStringLiteral("85"));
    EXPECT_EQ(stored("RADARCONDITIONS"), QStringLiteral("85"));
}

TEST_F(EnvironmentWeather, BadInputEndsInTheMessageOrInATextThatReadsAsANumberInRange)
{
    struct Bound
    {
        const char* name;
        double highest;
        const char* stepper;
    };
    const Bound bounds[] = {{"TxtWindSpd", 40, "Command7"},
                            {"TxtWindDir", 360, "Command11"},
                            {"TxtVis", 100, "Command5"},
                            {"TxtRadar", 100, "Command6"}};
    const QStringList bad{QString(),
                          QStringLiteral("-"),
                          QStringLiteral("-5"),
                          QStringLiteral("abc"),
                          QStringLiteral("   "),
                          QStringLiteral("12,5"),
                          QStringLiteral("1\n2"),
                          QString::fromUtf8("⚓"),
                          QString(400, QLatin1Char('9')),
                          QStringLiteral("1E400")};
    openFresh();
    for (const Bound& bound : bounds) {
        for (const QString& text : bad) {
            pasteOver(envBox(bound.name), text);
            EXPECT_LE(boxes().size(), 1);
            boxes().clear();
            const double number = boundedValue(envBox(bound.name)->text());
            EXPECT_GE(number, 0) << bound.name << text.left(10).toStdString();
            EXPECT_LE(number, bound.highest) << bound.name << text.left(10).toStdString();
        }
        click(envButton(bound.stepper));
    }
    acceptEnvironment();
    EXPECT_EQ(profile().count('='), 50);
    EXPECT_EQ(profile().count('\n'), 51) << "no line break reaches the file";
    openEnvironment();
    EXPECT_TRUE(boxes().isEmpty()) << "what was stored is taken back";
}

} // namespace
} // namespace torvane::testing
