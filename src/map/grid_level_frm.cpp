#include "map/grid_level_frm.h"

#include "map/map_geometry.h"
#include "platform/bilingual.h"
#include "shell/main_frm.h"
#include "ui_grid_level_frm.h"

namespace torvane {

namespace {

constexpr Bilingual title{"Grid Size", "Rastergröße"};
constexpr Bilingual request{"Select a size for the grid.", "Rastergröße wählen"};
constexpr Bilingual optionTip{"Draws the grid so and closes the window",
                              "Zeichnet das Raster so und schließt das Fenster"};
constexpr Bilingual small{"Small", "Klein"};
constexpr Bilingual medium{"Medium", "Mittel"};
constexpr Bilingual large{"Large", "Groß"};
constexpr Bilingual off{"Grid Off", "Raster aus"};

} // namespace

GridLevelFrm::GridLevelFrm(Editor& editor)
    : LevelFrm(editor, QStringLiteral("GridLevelFrm"), &MainFrm::chkUnloadGrid),
      m_ui(std::make_unique<Ui::GridLevelFrm>())
{
    m_ui->setupUi(this);
    useOptions();
}

GridLevelFrm::~GridLevelFrm() = default;

void GridLevelFrm::applyCaptions(Language language)
{
    setWindowTitle(title.in(language));
    m_ui->Label1->setText(request.in(language));
    m_ui->optLevel3->setText(small.in(language));
    m_ui->optLevel2->setText(medium.in(language));
    m_ui->optLevel1->setText(large.in(language));
    m_ui->optOff->setText(off.in(language));
    describeOptions(optionTip.in(language));
}

std::int16_t GridLevelFrm::gridIndex() const
{
    return gridIndexOf(optionOn()).value();
}

void GridLevelFrm::openAt(std::int16_t gridIndex)
{
    open(gridOption(gridIndex));
}

} // namespace torvane
