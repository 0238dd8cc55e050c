#include "map/view_tools.h"
#include "platform/picture_button.h"
#include "shell/main_frm.h"
#include "support/editor_fixture.h"

namespace torvane::testing {
namespace {

/// The tools above the map on a screen of twice the density.
class DenseTools : public EditorFixture
{
protected:
    /// Whether some pixel of the screen differs from its neighbour within one pixel of the layout.
    static bool isSharp(const QImage& picture)
    {
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x + 1 < picture.width(); x += 2) {
                if (picture.pixel(x, y) != picture.pixel(x + 1, y)) {
                    return true;
                }
            }
        }
        return false;
    }
};

TEST_F(DenseTools, HavePicturesOfItsPixels)
{
    startPastSplash();
    for (const ViewTool& each : viewTools) {
        auto* tool = control<PictureButton>(editor().mainFrm(), QLatin1StringView(each.name));
        const QImage picture = tool->grab().toImage();
        EXPECT_EQ(picture.size(), tool->size() * 2) << each.name;
        EXPECT_TRUE(isSharp(picture)) << each.name;
    }
    EXPECT_EQ(control<PictureButton>(editor().mainFrm(), QStringLiteral("cmdZoomLevel"))->grab().width(), 82);
}

TEST_F(DenseTools, HaveTagsThatFitTheirTexts)
{
    for (const Language language : {Language::German, Language::English}) {
        startPastSplash(language);
        for (const ViewTool& each : viewTools) {
            const auto* tag = control<QLabel>(editor().mainFrm(), QLatin1StringView(each.tag));
            EXPECT_GE(tag->width(), tag->fontMetrics().horizontalAdvance(tag->text())) << each.tag;
            EXPECT_GE(tag->height(), tag->fontMetrics().height()) << each.tag;
            EXPECT_TRUE(tag->parentWidget()->rect().contains(tag->geometry())) << each.tag;
        }
    }
}

} // namespace
} // namespace torvane::testing
