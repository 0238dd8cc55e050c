#include "platform/profile.h"
#include "platform/runtime_error.h"
#include "require.h"

#include <optional>

// The input is section, key, value and file, with a record separator (0x1E) between them.

namespace {

using torvane::Profile;
using torvane::RuntimeError;

QByteArray upTo(QByteArrayView& rest, char separator)
{
    const qsizetype at = rest.indexOf(separator);
    const QByteArrayView part = at < 0 ? QByteArrayView() : rest.first(at);
    rest = rest.sliced(at + 1);
    return part.toByteArray();
}

/// Every value that a reader finds, as a file.
QByteArray values(const Profile& profile)
{
    Profile plain;
    profile.writeInto(plain);
    return plain.bytes();
}

std::optional<QByteArray> valueIn(const Profile& profile, const QByteArray& section, const QByteArray& key)
{
    const auto value = profile.value(section, key);
    return value ? std::optional<QByteArray>(value->toByteArray()) : std::nullopt;
}

/// What a profile writes reads back as what it holds.
void requireSameAgain(const Profile& profile)
{
    const QByteArray bytes = profile.bytes();
    const Profile again = Profile::parse(bytes);
    require(again.bytes() == bytes);
    require(values(again) == values(profile));
    require(again.isEmpty() == profile.isEmpty());
}

bool isAccepted(Profile& profile, const QByteArray& section, const QByteArray& key, const QByteArray& value)
{
    try {
        profile.setValue(section, key, value);
        return true;
    } catch (const RuntimeError& error) {
        require(error.number() == RuntimeError::InvalidProcedureCall);
        return false;
    }
}

void requireWriteHolds(Profile profile, const QByteArray& section, const QByteArray& key,
                       const QByteArray& value)
{
    const QByteArray before = profile.bytes();
    if (!isAccepted(profile, section, key, value)) {
        require(profile.bytes() == before);
        return;
    }
    requireSameAgain(profile);
    const auto written = valueIn(profile, section, key);
    require(written.has_value());
    require(valueIn(Profile::parse(profile.bytes()), section, key) == written);
    require(!profile.setValue(section, key, value));

    // The value reads as it does from a file of its own, whatever else stands in this one.
    Profile alone;
    alone.setValue(section, key, value);
    require(valueIn(alone, section, key) == written);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    QByteArrayView rest(data, static_cast<qsizetype>(size));
    const QByteArray section = upTo(rest, '\x1E');
    const QByteArray key = upTo(rest, '\x1E');
    const QByteArray value = upTo(rest, '\x1E');
    const Profile profile = Profile::parse(rest.toByteArray());
    requireSameAgain(profile);
    require(valueIn(Profile::parse(profile.bytes()), section, key) == valueIn(profile, section, key));
    requireWriteHolds(profile, section, key, value);
    return 0;
}
