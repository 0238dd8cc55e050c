#include "ship_state/ship_data_texts.h"

#include "platform/number_text.h"

namespace torvane {

using namespace Qt::StringLiterals;

constexpr std::array<CaptionRow, 11> shipDataCaptions{{
    {"ShipDataFrm"_L1, {"Torvane - Individual Ship Data", "Torvane - Individuelle Schiffsdaten"}},
    {"cmdSave"_L1, {"&Save", "&Speichern"}},
    {"CmdCancel"_L1, {"&Cancel", "&Abbrechen"}},
    {"Label32"_L1, {"Short Name", "Kurzname"}},
    {"Label33"_L1, {"Ship Class", "Klasse"}},
    {"Label34"_L1, {"Ship Navy", "Marine"}},
    {"Label3"_L1, {"Repair Time (mins):", "Zeit zu reparieren(min.)"}},
    {"Command1"_L1, inBoth("OK")},
    {"Frame2"_L1, {"Turret Destroyed", "Geschützturm zerstört"}},
    {"Frame10"_L1, {"Searchlights Destroyed", "Scheinwerfer zerstört"}},
    {"Frame11"_L1, {"Fire Directors Destroyed", "Feuerleitstelle zerstört"}},
}};

constexpr std::array<ShipDataTab, 5> shipDataTabs{{
    {{"General Ship Data", "allgemeine Informationen"},
     "fraGeneral"_L1,
     {"General Ship Information", "allgemeine Informationen über Schiffe"}},
    {{"Ship Systems", "Schiffssysteme"}, "fraSystems"_L1, {"Ship Systems", "Schiffssysteme"}},
    {{"Main Guns", "Hauptgeschütze"}, "fraMainGun"_L1, {"Main Guns System", "Hauptgeschütze"}},
    {{"Secondary Guns", "Sekundärgeschütze"},
     "fraSecondary"_L1,
     {"Secondary Guns System", "Sekundärgeschütze"}},
    {{"Torpedos", "Torpedosatz"}, "fraTorps"_L1, {"Torpedo System", "Torpedosatz"}},
}};

namespace {

constexpr std::array<TextRow<ShipDataText>, 19> texts{{
    {ShipDataText::More, {"%1: more", "%1: mehr"}},
    {ShipDataText::Less, {"%1: less", "%1: weniger"}},
    {ShipDataText::PercentMore,
     {"1 % more; above 100 comes 0. Hold to go on", "1 % mehr; über 100 folgt 0. Halten für weitere"}},
    {ShipDataText::PercentLess,
     {"1 % less; below 0 comes 100. Hold to go on", "1 % weniger; unter 0 folgt 100. Halten für weitere"}},
    {ShipDataText::FireMore,
     {"One level more; above 10 comes 0. Hold to go on",
      "Eine Stufe mehr; über 10 folgt 0. Halten für weitere"}},
    {ShipDataText::FireLess,
     {"One level less; below 0 comes 10. Hold to go on",
      "Eine Stufe weniger; unter 0 folgt 10. Halten für weitere"}},
    {ShipDataText::GunLost,
     {"One gun less; below 0 come all guns of the class. Hold to go on",
      "Ein Geschütz weniger; unter 0 folgen alle der Klasse. Halten für weitere"}},
    {ShipDataText::MinuteMore,
     {"1 minute more, up to 210. Hold to go on", "1 Minute mehr, bis 210. Halten für weitere"}},
    {ShipDataText::MinuteLess,
     {"1 minute less, down to 0. Hold to go on", "1 Minute weniger, bis 0. Halten für weitere"}},
    {ShipDataText::CloseRepair, {"Closes the repair time", "Schließt die Reparaturzeit"}},
    {ShipDataText::OpenRepair,
     {"Sets how long the repair takes, or that it is lost",
      "Legt fest, wie lange die Reparatur dauert oder ob alles zerstört ist"}},
    {ShipDataText::Intact, {"intact", "unbeschädigt"}},
    {ShipDataText::Destroyed, {"destroyed", "zerstört"}},
    {ShipDataText::Minutes, {"%1 min", "%1 Min."}},
    {ShipDataText::ChooseSystem,
     {"Choose a system to set its repair time.",
      "Wählen Sie ein System, um die Reparaturzeit einzustellen."}},
    {ShipDataText::DestroyedTip, {"Ticked: destroyed", "Angekreuzt: zerstört"}},
    {ShipDataText::PageTip,
     {"The pages; Ctrl+Page Up and Ctrl+Page Down turn them",
      "Die Seiten; Strg+Bild auf und Strg+Bild ab blättern"}},
    {ShipDataText::SaveTip, {"Stores the condition of the ship", "Sichert den Zustand des Schiffes"}},
    {ShipDataText::CancelTip,
     {"Closes the window; the ship stays as it was", "Schließt das Fenster; das Schiff bleibt, wie es war"}},
}};

} // namespace

QString shipDataText(ShipDataText text, Language language)
{
    return textIn(texts, text, language);
}

QString repairSummary(const RepairState& state, Language language)
{
    if (state.destroyed) {
        return shipDataText(ShipDataText::Destroyed, language);
    }
    const QString time = state.time.trimmed();
    return numberValue(time) == 0 ? shipDataText(ShipDataText::Intact, language)
                                  : shipDataText(ShipDataText::Minutes, language).arg(time);
}

} // namespace torvane
