#pragma once

#include <QByteArray>
#include <QFile>

#include <benchmark/benchmark.h>

#include <unistd.h>

/// The number that a figure is taken with, such as the ships of its scenario.
inline int argumentOf(const benchmark::State& state)
{
    return static_cast<int>(state.range(0));
}

/// What this program keeps in memory, in bytes. 0 if the system doesn't say.
inline double residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    const QByteArray numbers = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return numbers.split(' ').value(1).toDouble() * static_cast<double>(::sysconf(_SC_PAGESIZE));
}
