#include "ship_state/damage.h"

#include "platform/number_text.h"
#include "platform/runtime_error.h"

#include <algorithm>
#include <cmath>

namespace torvane {

namespace {

constexpr qsizetype steppedCharacters = 3;

constexpr QLatin1StringView percentSign{" %"};

/// One step between 0 and the highest value, round at either end.
double steppedRound(double value, double highest, Step step)
{
    if (step == Step::Up) {
        return value < highest ? value + 1 : 0;
    }
    return value > 0 ? value - 1 : highest;
}

} // namespace

QLatin1StringView damageFlag(int boxValue)
{
    return boxValue == 1 ? destroyedFlag : wholeFlag;
}

bool isDestroyed(QStringView stored)
{
    return numberValue(stored) == -1;
}

QString percentShown(const QString& stored, double maximum)
{
    const double percent = maximum == 0 ? 0 : finiteOf(stored, numberValue(stored) / maximum * fullPercent);
    return textOf(percent) + percentSign;
}

QString amountOf(const QString& percentCaption, double maximum)
{
    return textOf(finiteOf(percentCaption, numberValue(percentCaption) / fullPercent * maximum));
}

QString steppedPercent(const QString& caption, Step step)
{
    const double percent = roundEven(numberValue(QStringView(caption).left(steppedCharacters).trimmed()));
    return textOf(steppedRound(percent, fullPercent, step)) + percentSign;
}

QString steppedFireLevel(const QString& caption, Step step)
{
    return textOf(steppedRound(numberValue(caption), highestFireLevel, step));
}

double shareShown(const QString& caption, double full)
{
    try {
        return std::clamp(numberValue(caption) / full, 0.0, 1.0);
    } catch (const RuntimeError&) {
        return caption.trimmed().startsWith(u'-') ? 0 : 1;
    }
}

double finiteOf(const QString& text, double value)
{
    if (!std::isfinite(value)) {
        throw overflow(text);
    }
    return value;
}

} // namespace torvane
