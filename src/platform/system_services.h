#pragma once

#include "platform/services.h"

#include <random>

namespace torvane {

/// Starts an executable file of the system; a missing or non-executable one gives false.
class SystemProgramLauncher : public ProgramLauncher
{
public:
    bool open(const QString& file, const QString& parameters, const QString& directory) override;
};

class SystemClock : public Clock
{
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

class SystemRandomSource : public RandomSource
{
public:
    void seed(std::uint32_t value) override { m_engine.seed(value); }
    double next() override { return m_distribution(m_engine); }

private:
    std::mt19937 m_engine;
    std::uniform_real_distribution<double> m_distribution{0.0, 1.0};
};

} // namespace torvane
