#pragma once

#include "platform/language.h"

#include <QString>

namespace torvane {

// How the scenario section codes what the dialogs show. Each function takes a caption and gives the value to
// store, or the other way. A text that stands in no table stays as it is, unless the function says otherwise.
// None throws.

/// The number value as text. A number beyond the range of a double stays as it stands.
QString storedNumber(const QString& text);

QString storedMonth(const QString& caption, Language language);
QString storedLocation(const QString& caption, Language language);
QString storedAirControl(const QString& caption, Language language);
/// "1" for the word that says rain, else "0".
QString storedRain(const QString& caption, Language language);
/// The number of all the text.
QString storedVisibility(const QString& text, Language language);
/// The number of the first three characters.
QString storedRadar(const QString& text, Language language);
/// The trimmed text; an empty box counts as 1 knot.
QString storedWindSpeed(const QString& text, Language language);
/// The game length caption's first four characters, its first one, and its last two in minutes.
QString storedLength(const QString& caption, Language language);
QString storedLengthHour(const QString& caption, Language language);
QString storedLengthMinute(const QString& caption, Language language);
/// What stands in the brackets at the caption's end, cut out by position.
QString storedNavy(const QString& caption, Language language);
QString storedMission(const QString& caption, Language language);
/// "1" for the mission with transports among the destroyers, else "0".
QString storedTransports(const QString& caption, Language language);
/// From what the hidden label of Force A says: "1" for blue and "0" for red if that is Force B's word.
QString storedBlueForce(const QString& forceLabel, Language language);
QString storedRedForce(const QString& forceLabel, Language language);
/// The caption's last character.
QString storedMovie(const QString& caption, Language language);

QString shownMonth(const QString& stored, Language language);
QString shownLocation(const QString& stored, Language language);
QString shownAirControl(const QString& stored, Language language);
/// "1" is the word that says rain, anything else the other.
QString shownRain(const QString& stored, Language language);
/// The value and " %".
QString shownPercent(const QString& stored, Language language);
/// The caption of an abbreviation or code; empty if there is none.
QString shownNavy(const QString& stored, Language language);
QString shownMission(const QString& stored, Language language);
/// The caption of the movie whose number the value is; "INVALID" is number 0.
QString shownMovie(const QString& stored, Language language);

} // namespace torvane
