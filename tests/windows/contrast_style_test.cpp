#include "platform/contrast_style.h"

#include "support/input.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTabBar>

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

const QColor disabledInk(63, 242, 63);

QPalette blackDesktop()
{
    QPalette palette(Qt::black, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, disabledInk);
    }
    palette.setColor(QPalette::Base, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    return palette;
}

/// What a control looks like in a style and with colours.
QImage picture(QWidget& control, QStyle& style, const QPalette& palette)
{
    control.setStyle(&style);
    control.setPalette(palette);
    control.resize(120, 40);
    return control.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Curves are drawn smooth: their pixels come near the colour.
bool isNear(const QColor& one, const QColor& other)
{
    constexpr int nearness = 80; // of 255
    return std::abs(one.red() - other.red()) < nearness && std::abs(one.green() - other.green()) < nearness &&
           std::abs(one.blue() - other.blue()) < nearness;
}

/// Whether a pixel of the middle row or the middle column has a colour.
bool crosses(const QImage& picture, const QColor& colour)
{
    for (int x = 0; x < picture.width(); ++x) {
        if (isNear(picture.pixelColor(x, picture.height() / 2), colour)) {
            return true;
        }
    }
    for (int y = 0; y < picture.height(); ++y) {
        if (isNear(picture.pixelColor(picture.width() / 2, y), colour)) {
            return true;
        }
    }
    return false;
}

/// Controls without a text, so that all ink is that of their edges.
struct Sample
{
    const char* name;
    QWidget* (*make)();
};

const Sample samples[] = {
    {"Button", [] { return static_cast<QWidget*>(new QPushButton); }},
    {"TickBox", [] { return static_cast<QWidget*>(new QCheckBox); }},
    {"Option", [] { return static_cast<QWidget*>(new QRadioButton); }},
    {"Field", [] { return static_cast<QWidget*>(new QLineEdit); }},
    {"Choice", [] { return static_cast<QWidget*>(new QComboBox); }},
    {"List", [] { return static_cast<QWidget*>(new QListWidget); }},
    {"Group", [] { return static_cast<QWidget*>(new QGroupBox); }},
    {"Bar", [] { return static_cast<QWidget*>(new QScrollBar(Qt::Horizontal)); }},
};

class Contrast : public ::testing::TestWithParam<Sample>
{
protected:
    const std::unique_ptr<QWidget> control{GetParam().make()};
    ContrastStyle style;
    const std::unique_ptr<QStyle> plain{QStyleFactory::create(QStringLiteral("fusion"))};
};

TEST_P(Contrast, GivesAControlOnABlackDesktopAnEdgeInTheInkOfItsText)
{
    EXPECT_TRUE(crosses(picture(*control, style, blackDesktop()), Qt::white));
}

TEST_P(Contrast, GivesADisabledControlAnEdgeInTheInkOfDisabledText)
{
    control->setEnabled(false);
    const QImage shown = picture(*control, style, blackDesktop());
    EXPECT_TRUE(crosses(shown, disabledInk));
    EXPECT_FALSE(crosses(shown, Qt::white));
}

TEST_P(Contrast, ChangesNothingOnLightAndDarkDesktops)
{
    for (const QPalette& palette : {QPalette(QColor(240, 240, 240)), QPalette(QColor(40, 42, 50))}) {
        EXPECT_EQ(picture(*control, style, palette), picture(*control, *plain, palette));
    }
}

INSTANTIATE_TEST_SUITE_P(Each, Contrast, ::testing::ValuesIn(samples),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(ContrastMark, TheButtonThatEnterPressesHasTheInkOfWhatIsMarked)
{
    ContrastStyle style;
    QPushButton button;
    button.setDefault(true);
    EXPECT_TRUE(crosses(picture(button, style, blackDesktop()), Qt::yellow));
}

} // namespace
} // namespace torvane::testing
