#include "overview/scenario_coding.h"

#include "overview/environment_rules.h"
#include "overview/missions.h"
#include "overview/overview_texts.h"
#include "platform/number_text.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace torvane {
namespace {

using namespace Qt::StringLiterals;

QString storedName(std::span<const Bilingual> names, const QString& caption, Language language)
{
    const auto row =
        std::ranges::find_if(names, [&](const Bilingual& name) { return name.in(language) == caption; });
    return row == names.end() ? caption : row->in(Language::English);
}

QString shownName(std::span<const Bilingual> names, const QString& stored, Language language)
{
    const auto row = std::ranges::find_if(
        names, [&](const Bilingual& name) { return name.in(Language::English) == stored; });
    return row == names.end() ? stored : row->in(language);
}

const CodedCaption* byCaption(std::span<const CodedCaption> rows, const QString& caption, Language language)
{
    const auto row = std::ranges::find_if(
        rows, [&](const CodedCaption& candidate) { return candidate.caption.in(language) == caption; });
    return row == rows.end() ? nullptr : &*row;
}

const CodedCaption* byCode(std::span<const CodedCaption> rows, const QString& stored)
{
    const auto row = std::ranges::find_if(
        rows, [&](const CodedCaption& candidate) { return QLatin1StringView(candidate.stored) == stored; });
    return row == rows.end() ? nullptr : &*row;
}

} // namespace

QString storedNumber(const QString& text)
{
    const double value = boundedValue(text);
    return std::isfinite(value) ? textOf(value) : text;
}

QString storedMonth(const QString& caption, Language language)
{
    return storedName(months, caption, language);
}

QString storedLocation(const QString& caption, Language language)
{
    return storedName(locations, caption, language);
}

QString storedAirControl(const QString& caption, Language language)
{
    const CodedCaption* row = byCaption(airControls, caption.trimmed(), language);
    return row == nullptr ? caption.trimmed() : QString::fromLatin1(row->stored);
}

QString storedRain(const QString& caption, Language language)
{
    return caption.trimmed() == rainStates.front().caption.in(language) ? u"1"_s : u"0"_s;
}

QString storedVisibility(const QString& text, Language)
{
    QString number = text;
    if (number.endsWith(u'%')) {
        number.chop(1);
    }
    return storedNumber(number.trimmed());
}

QString storedRadar(const QString& text, Language)
{
    return storedNumber(text.left(3));
}

QString storedWindSpeed(const QString& text, Language)
{
    const QString speed = text.trimmed();
    return speed.isEmpty() ? u"1"_s : speed;
}

QString storedLength(const QString& caption, Language)
{
    return caption.left(4);
}

QString storedLengthHour(const QString& caption, Language)
{
    return caption.left(1);
}

QString storedLengthMinute(const QString& caption, Language)
{
    const QString hundredths = caption.right(2);
    const auto row = std::ranges::find_if(
        quarterHours, [&](const auto& quarter) { return quarter.hundredths == hundredths; });
    return row == quarterHours.end() ? hundredths : QString(row->minutes);
}

QString storedNavy(const QString& caption, Language)
{
    QString text = caption.trimmed();
    text.remove(0, text.indexOf(u'(') + 1);
    text.chop(1);
    return text;
}

QString storedMission(const QString& caption, Language language)
{
    const Mission* mission = missionOfCaption(caption, language);
    return mission == nullptr ? caption.trimmed() : QString::fromLatin1(mission->battleType);
}

QString storedTransports(const QString& caption, Language language)
{
    const Mission* mission = missionOfCaption(caption, language);
    return mission != nullptr && mission->battleType == "4"_L1 ? u"1"_s : u"0"_s;
}

QString storedBlueForce(const QString& forceLabel, Language language)
{
    return forceLabel == forceB.in(language) ? u"1"_s : u"0"_s;
}

QString storedRedForce(const QString& forceLabel, Language language)
{
    return forceLabel == forceB.in(language) ? u"0"_s : u"1"_s;
}

QString storedMovie(const QString& caption, Language)
{
    return caption.trimmed().right(1);
}

QString shownMonth(const QString& stored, Language language)
{
    return shownName(months, stored, language);
}

QString shownLocation(const QString& stored, Language language)
{
    return shownName(locations, stored, language);
}

QString shownAirControl(const QString& stored, Language language)
{
    const CodedCaption* row = byCode(airControls, stored);
    return row == nullptr ? stored : row->caption.in(language);
}

QString shownRain(const QString& stored, Language language)
{
    const CodedCaption& row = stored == "1"_L1 ? rainStates.front() : rainStates.back();
    return row.caption.in(language);
}

QString shownPercent(const QString& stored, Language)
{
    return stored + u" %"_s;
}

QString shownNavy(const QString& stored, Language language)
{
    const CodedCaption* row = byCode(navies, stored);
    return row == nullptr ? QString() : row->caption.in(language);
}

QString shownMission(const QString& stored, Language language)
{
    const Mission* mission = missionOfBattleType(stored);
    return mission == nullptr ? QString() : mission->caption.in(language);
}

QString shownMovie(const QString& stored, Language language)
{
    const double number = boundedValue(stored);
    for (std::size_t index = 0; index < movies.size(); ++index) {
        if (number == static_cast<double>(index)) {
            return movies.at(index).loaded.in(language);
        }
    }
    return stored;
}

} // namespace torvane
