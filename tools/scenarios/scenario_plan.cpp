#include "scenarios/scenario_plan.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace torvane {

namespace {

/// An object of a plan. What is asked for must be there and of the right kind, and what is there must have
/// been asked for: a misspelt key is a fault, not a default.
class PlanReader
{
public:
    PlanReader(QString where, const QJsonValue& value) : m_where(std::move(where)), m_object(value.toObject())
    {
        if (!value.isObject()) {
            fail(QStringLiteral("is no object"));
        }
    }

    bool has(const char* key) const { return m_object.contains(QLatin1StringView(key)); }
    QString text(const char* key) { return take(key, QJsonValue::String).toString(); }
    bool flag(const char* key) { return take(key, QJsonValue::Bool).toBool(); }
    QJsonArray list(const char* key) { return take(key, QJsonValue::Array).toArray(); }
    PlanReader object(const char* key) { return {whereIs(key), take(key, QJsonValue::Object)}; }
    int number(const char* key)
    {
        const double value = take(key, QJsonValue::Double).toDouble();
        if (value != static_cast<int>(value)) {
            fail(QLatin1StringView(key) + QStringLiteral(" is no whole number"));
        }
        return static_cast<int>(value);
    }
    ClockTime clock(const char* key)
    {
        const QStringList parts = text(key).split(u':');
        bool isHour = false;
        bool isMinute = false;
        const ClockTime time{parts.value(0).toInt(&isHour), parts.value(1).toInt(&isMinute)};
        if (parts.size() != 2 || !isHour || !isMinute) {
            fail(QLatin1StringView(key) + QStringLiteral(" is no time such as 05:52"));
        }
        return time;
    }
    QString whereIs(const char* key) const { return m_where + QStringLiteral(", ") + QLatin1StringView(key); }

    void expectAllRead() const
    {
        for (const QString& key : m_object.keys()) {
            if (!m_read.contains(key)) {
                fail(QStringLiteral("nothing reads ") + key);
            }
        }
    }
    [[noreturn]] void fail(const QString& fault) const
    {
        throw std::runtime_error((m_where + QStringLiteral(": ") + fault).toStdString());
    }

private:
    QJsonValue take(const char* key, QJsonValue::Type type)
    {
        const QString name = QLatin1StringView(key);
        m_read.insert(name);
        const QJsonValue value = m_object.value(name);
        if (value.type() != type) {
            fail(name + QStringLiteral(" is missing or of another kind"));
        }
        return value;
    }

    QString m_where;
    QJsonObject m_object;
    QSet<QString> m_read;
};

PlannedText readText(PlanReader reader)
{
    PlannedText text{reader.text("english"), reader.text("german")};
    reader.expectAllRead();
    return text;
}

ForcePlan readForce(PlanReader reader)
{
    ForcePlan force{reader.text("navy"), reader.number("disengage")};
    reader.expectAllRead();
    return force;
}

Yards readPlace(PlanReader reader)
{
    const Yards place{reader.number("east"), reader.number("south")};
    reader.expectAllRead();
    return place;
}

EnvironmentPlan readEnvironment(PlanReader reader)
{
    EnvironmentPlan plan;
    plan.month = reader.text("month");
    plan.year = reader.number("year");
    plan.start = reader.clock("start");
    plan.sunrise = reader.clock("sunrise");
    plan.sunset = reader.clock("sunset");
    plan.length = reader.clock("length");
    plan.wind = reader.number("wind");
    plan.windDirection = reader.number("from");
    plan.visibility = reader.number("visibility");
    plan.radar = reader.number("radar");
    plan.rain = reader.flag("rain");
    plan.location = reader.text("location");
    reader.expectAllRead();
    return plan;
}

DivisionPlan readDivision(PlanReader reader, int usualLevel)
{
    DivisionPlan plan;
    const QString force = reader.text("force");
    if (force != QLatin1StringView("A") && force != QLatin1StringView("B")) {
        reader.fail(QStringLiteral("force is neither A nor B"));
    }
    plan.side = force == QLatin1StringView("A") ? Side::Blue : Side::Red;
    const QJsonArray ships = reader.list("ships");
    for (const auto& ship : ships) {
        plan.ships.append(ship.toString());
    }
    plan.flagship = reader.has("flagship") ? reader.number("flagship") : 0;
    plan.formation = reader.text("formation");
    plan.heading = reader.number("heading");
    plan.spacing = reader.number("spacing");
    plan.speed = reader.number("speed");
    plan.encumbered = reader.has("encumbered") && reader.flag("encumbered");
    plan.anchor = readPlace(reader.object("at"));
    plan.level = reader.has("level") ? reader.number("level") : usualLevel;
    reader.expectAllRead();
    return plan;
}

QJsonObject parsed(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("can't read " + path.toStdString());
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError) {
        throw std::runtime_error(path.toStdString() + ": " + error.errorString().toStdString() + " at byte " +
                                 std::to_string(error.offset));
    }
    return document.object();
}

} // namespace

ScenarioPlan readScenarioPlan(const QString& path)
{
    PlanReader reader(QFileInfo(path).fileName(), parsed(path));
    ScenarioPlan plan;
    plan.name = QFileInfo(path).completeBaseName();
    plan.title = readText(reader.object("title"));
    plan.description = readText(reader.object("description"));
    plan.mission = reader.text("mission");
    plan.movie = reader.number("movie");
    plan.forceA = readForce(reader.object("forceA"));
    plan.forceB = readForce(reader.object("forceB"));
    plan.environment = readEnvironment(reader.object("environment"));
    plan.level = reader.number("level");
    const QJsonArray divisions = reader.list("divisions");
    for (const auto& division : divisions) {
        const QString where = reader.whereIs("divisions") + u' ' + QString::number(plan.divisions.size());
        plan.divisions.push_back(readDivision(PlanReader(where, division), plan.level));
    }
    if (reader.has("target")) {
        plan.target = readPlace(reader.object("target"));
    }
    reader.expectAllRead();
    return plan;
}

std::vector<ScenarioPlan> readScenarioPlans(const QString& folder)
{
    const QDir plans(folder);
    std::vector<ScenarioPlan> all;
    for (const QString& name : plans.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name)) {
        all.push_back(readScenarioPlan(plans.filePath(name)));
    }
    if (all.empty()) {
        throw std::runtime_error("no plan in " + folder.toStdString());
    }
    return all;
}

} // namespace torvane
