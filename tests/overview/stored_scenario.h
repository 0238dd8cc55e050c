#pragma once

#include "overview/scenario_data.h"

#include <algorithm>

namespace torvane {

/// The value of a key among stored ones; a text that no rule produces if the key is missing.
inline QString valueOf(const std::vector<KeyValue>& stored, const char* key)
{
    const auto found = std::ranges::find(stored, QString::fromLatin1(key), &KeyValue::first);
    return found == stored.end() ? QStringLiteral("<missing>") : found->second;
}

/// What the overview makes of a whole stored section.
inline ScenarioValues loadedScenario(const std::vector<KeyValue>& stored, Language language)
{
    ScenarioValues values;
    for (const LoadedKey& key : overviewKeys()) {
        applyOverviewKey(key.name, valueOf(stored, key.name.toLatin1().constData()), values, language);
    }
    return values;
}

} // namespace torvane
