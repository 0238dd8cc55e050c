#pragma once

#include "platform/profile.h"
#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane::testing {

/// A literal with its zero bytes.
template <std::size_t size>
QByteArray raw(const char (&text)[size])
{
    return {text, static_cast<qsizetype>(size) - 1};
}

/// The value found, or "(none)".
inline QByteArray found(const Profile& profile, QByteArrayView section, QByteArrayView key)
{
    const auto value = profile.value(section, key);
    return value ? value->toByteArray() : QByteArray("(none)");
}

inline QByteArray valueIn(const QByteArray& file, QByteArrayView section, QByteArrayView key)
{
    return found(Profile::parse(file), section, key);
}

/// The file after one write.
inline QByteArray written(const QByteArray& file, QByteArrayView section, QByteArrayView key,
                          QByteArrayView value)
{
    Profile profile = Profile::parse(file);
    profile.setValue(section, key, value);
    return profile.bytes();
}

} // namespace torvane::testing
