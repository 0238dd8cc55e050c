#pragma once

#include "platform/bilingual.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>
#include <span>

namespace torvane {

/// An entry of a list: the English word, which is stored, and the German entry. Another German word than the
/// entry may stand for the stored one.
struct ListWord
{
    const char* stored;
    const char* germanEntry;
    const char* germanWord; ///< what loading shows and saving knows

    constexpr ListWord(const char* storedWord, const char* german) : ListWord(storedWord, german, german) {}
    constexpr ListWord(const char* storedWord, const char* entry, const char* word)
        : stored(storedWord), germanEntry(entry), germanWord(word)
    {
    }
};

// Two entries of this list are not the words that stand for what is stored: picked, they reach the profile in
// German. Kept.
inline constexpr std::array<ListWord, 4> crewQualityWords{{
    {"Green", "Unerfahren", "Anfänger"},
    {"Average", "Durchschnittlich"},
    {"Veteran", "Erfahren", "Veteran"},
    {"Elite", "Elite"},
}};
inline constexpr std::array<ListWord, 4> crewFatigueWords{{
    {"Fatigued", "Erschöpft"},
    {"Tired", "Müde"},
    {"Normal", "Normal"},
    {"Fresh", "Frisch"},
}};
inline constexpr std::array<ListWord, 4> nightTrainingWords{{
    {"Poor", "Schlecht"},
    {"Average", "Durchschnittlich"},
    {"Good", "Gut"},
    {"Expert", "Experte"},
}};
inline constexpr std::array<ListWord, 6> radarQualityWords{{
    {"None", "Keine"},
    {"Poor", "Schlecht"},
    {"Average", "Durchschnittlich"},
    {"Good", "Gut"},
    {"Excellent", "Ausgezeichnet"},
    {"Superb", "GroBartig"},
}};
inline constexpr std::array<ListWord, 3> rudderWords{{
    {"Port", "Backbord"},
    {"Center", "Mitte"},
    {"Strb", "Steuerbord"},
}};

/// A list of the dialog with the label that stands at it.
struct ListRow
{
    const char* captionLabel;
    Bilingual caption;
    const char* list;
    Bilingual tip;
    QStringView key;
    std::span<const ListWord> words;
};
inline constexpr std::array<ListRow, 4> crewLists{{
    {"Label65",
     {"Crew Quality", "Besatzungsqualität"},
     "CmbCrewQ",
     {"How well the crew is trained", "Wie gut die Besatzung ausgebildet ist"},
     u"CREWQUALITY",
     crewQualityWords},
    {"Label66",
     {"Crew Fatigue", "Erschöpfung"},
     "CmbCrewFati",
     {"How rested the crew is", "Wie ausgeruht die Besatzung ist"},
     u"CREWFATIGUE",
     crewFatigueWords},
    {"Label38",
     {"Night Training", "Nachtgefecht"},
     "CmbNightTrain",
     {"How well the crew fights at night", "Wie gut die Besatzung bei Nacht kämpft"},
     u"NIGHTTRAINING",
     nightTrainingWords},
    {"Label67",
     {"Radar Quality", "Radarqualität"},
     "Combo1",
     {"How good the ship's radar is", "Wie gut das Radar des Schiffes ist"},
     u"RADARTYPE",
     radarQualityWords},
}};
inline constexpr ListRow rudderList{"Label70",
                                    {"Maneuver Dir", "Manöverrichtung"},
                                    "cmbManeuver",
                                    {"The position of the rudder", "Die Lage des Ruders"},
                                    u"MANUEVERSYSTEMDIRECTION",
                                    rudderWords};

/// The entries of a list, in order.
QStringList entriesOf(const ListRow& list, Language language);
/// What a list shows for a stored word; a word that it doesn't know is shown as it stands.
QString shownWord(const ListRow& list, const QString& stored, Language language);
/// What is stored for what one of the crew's lists shows. The rudder's list is stored as it is shown.
QString storedWord(const ListRow& list, const QString& shown, Language language);

} // namespace torvane
