#include "map/zoom_level_frm.h"

#include "map/map_geometry.h"
#include "platform/bilingual.h"
#include "shell/main_frm.h"
#include "ui_zoom_level_frm.h"

namespace torvane {

namespace {

constexpr Bilingual title = inBoth("Zoom");
constexpr Bilingual optionTip{
    "Shows the map at this level and closes the window; a higher level shows more sea",
    "Zeigt die Karte in dieser Ebene und schließt das Fenster; eine höhere zeigt mehr See"};
constexpr Bilingual request{"Please select a zoom level.", "Bitte wählen Sie eine Zoom-Ebene."};

} // namespace

ZoomLevelFrm::ZoomLevelFrm(Editor& editor)
    : LevelFrm(editor, QStringLiteral("ZoomLevelFrm"), &MainFrm::chkUnloadZoom),
      m_ui(std::make_unique<Ui::ZoomLevelFrm>())
{
    m_ui->setupUi(this);
    useOptions();
}

ZoomLevelFrm::~ZoomLevelFrm() = default;

void ZoomLevelFrm::applyCaptions(Language language)
{
    setWindowTitle(title.in(language));
    m_ui->Label1->setText(request.in(language));
    for (const ZoomLevel& level : zoomLevels) {
        findChild<OptionButton*>(QLatin1StringView(level.option))
            ->setText(Bilingual{level.english, level.german}.in(language));
    }
    describeOptions(optionTip.in(language));
}

std::int16_t ZoomLevelFrm::zoomIndex() const
{
    return zoomIndexOf(optionOn()).value();
}

void ZoomLevelFrm::openAt(std::int16_t zoomIndex)
{
    open(zoomOption(zoomIndex));
}

} // namespace torvane
