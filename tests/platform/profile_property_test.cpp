#include "platform/code_page.h"
#include "platform/profile.h"
#include "platform/profile_store.h"
#include "support/printers.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

// Random reads and writes, compared with a plain model that shares no code with the profile.

namespace {

using torvane::Profile;
using torvane::ProfileStore;

std::string lowered(const std::string& name)
{
    const std::string upper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const std::string lower = "abcdefghijklmnopqrstuvwxyz";
    std::string result;
    for (const char c : name) {
        const auto at = upper.find(c);
        result += at == std::string::npos ? c : lower[at];
    }
    return result;
}

std::string stripped(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t");
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// Sections with their pairs, in the order of the file, with values as written.
class Model
{
public:
    void write(const std::string& section, const std::string& key, const std::string& value)
    {
        Pairs& pairs = pairsOf(stripped(section));
        for (auto& pair : pairs) {
            if (lowered(pair.first) == lowered(stripped(key))) {
                pair.second = singleLine(value);
                return;
            }
        }
        pairs.emplace_back(stripped(key), singleLine(value));
    }

    std::optional<std::string> read(const std::string& section, const std::string& key) const
    {
        for (const auto& [name, pairs] : m_sections) {
            if (lowered(name) != lowered(stripped(section))) {
                continue;
            }
            for (const auto& pair : pairs) {
                if (lowered(pair.first) == lowered(stripped(key))) {
                    return unquoted(pair.second);
                }
            }
        }
        return std::nullopt;
    }

    std::string file() const
    {
        std::string text;
        for (const auto& [name, pairs] : m_sections) {
            if (!name.empty()) {
                text += "[" + name + "]\r\n";
            }
            for (const auto& pair : pairs) {
                text += pair.first + "=" + pair.second + "\r\n";
            }
        }
        return text;
    }

private:
    using Pairs = std::vector<std::pair<std::string, std::string>>;

    static std::string singleLine(const std::string& value)
    {
        std::string line;
        for (std::size_t i = 0; i < value.size(); ++i) {
            const bool pair = value[i] == '\r' && i + 1 < value.size() && value[i + 1] == '\n';
            line += value[i] == '\r' || value[i] == '\n' ? ' ' : value[i];
            i += pair ? 1 : 0;
        }
        return stripped(line);
    }

    static std::string unquoted(const std::string& value)
    {
        const bool quoted = value.size() > 1 && value.front() == value.back() &&
                            (value.front() == '"' || value.front() == '\'');
        return quoted ? value.substr(1, value.size() - 2) : value;
    }

    Pairs& pairsOf(const std::string& section)
    {
        for (auto& entry : m_sections) {
            if (lowered(entry.first) == lowered(section)) {
                return entry.second;
            }
        }
        m_sections.emplace_back(section, Pairs());
        return m_sections.back().second;
    }

    std::vector<std::pair<std::string, Pairs>> m_sections{{"", {}}};
};

class Names
{
public:
    explicit Names(unsigned seed) : m_random(seed) {}

    int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(m_random); }

    std::string section()
    {
        return dressed(pick({"", "A", "VERSION", "DIVISION", "S P", "\xC4\xD6", "[x", ";c"}));
    }
    std::string key()
    {
        return dressed(pick(
            {"SPEED", "NAME", "k y", "\xE4", "\xC4", "\"q\"", "x]", "#", "long" + std::string(200, 'n')}));
    }

    std::string value()
    {
        std::string text;
        const int length = below(20) == 0 ? 300 + below(200) : below(12);
        for (int i = 0; i < length; ++i) {
            text += pick({"a", "7", " ", "\t", "=", "\"", "'", "[", "]", ";", "\xE9", "\x80", "\n", "\r\n",
                          "\r", "."});
        }
        const int quotes = below(8);
        return quotes == 0 ? "\"" + text + "\"" : quotes == 1 ? "'" + text + "'" : text;
    }

private:
    std::string pick(const std::vector<std::string>& choices)
    {
        return choices[static_cast<std::size_t>(below(static_cast<int>(choices.size())))];
    }

    /// A number that makes it one of several, odd case, blanks round it.
    std::string dressed(std::string name)
    {
        if (!name.empty() && below(2) == 0) {
            name += std::to_string(below(30));
        }
        for (char& c : name) {
            const bool isUpper = c >= 'A' && c <= 'Z';
            c = isUpper && below(3) == 0 ? static_cast<char>(c + 32) : c;
        }
        return pick({"", "", " ", "\t"}) + name + pick({"", "", " ", " \t"});
    }

    std::mt19937 m_random;
};

QByteArray bytesOf(const std::string& text)
{
    return QByteArray::fromStdString(text);
}
QString textOf(const std::string& text)
{
    return torvane::fromCodePage(bytesOf(text));
}

struct Probe
{
    std::string section;
    std::string key;
};

void expectAlike(const Profile& profile, const Model& model, const Probe& probe)
{
    const auto expected = model.read(probe.section, probe.key);
    const auto value = profile.value(bytesOf(probe.section), bytesOf(probe.key));
    ASSERT_EQ(value.has_value(), expected.has_value()) << probe.section << '/' << probe.key;
    if (expected) {
        ASSERT_EQ(value->toByteArray(), bytesOf(*expected)) << probe.section << '/' << probe.key;
    }
}

void expectAlike(ProfileStore& store, const QString& file, const Model& model, const Probe& probe)
{
    const QString missing = QStringLiteral("(default)");
    const auto expected = model.read(probe.section, probe.key);
    const QString wanted = !expected || expected->empty() ? missing : textOf(expected->substr(0, 369));
    ASSERT_EQ(store.read(file, textOf(probe.section), textOf(probe.key), missing), wanted)
        << probe.section << '/' << probe.key;
}

class ProfileProperty : public testing::TestWithParam<unsigned>
{
};

} // namespace

TEST_P(ProfileProperty, AProfileHoldsWhatThePlainModelHolds)
{
    Names names(GetParam());
    Profile profile;
    Model model;
    std::vector<Probe> probes;
    for (int step = 0; step < 3000; ++step) {
        const Probe probe{names.section(), names.key()};
        const std::string value = names.value();
        model.write(probe.section, probe.key, value);
        profile.setValue(bytesOf(probe.section), bytesOf(probe.key), bytesOf(value));
        probes.push_back(probe);
        expectAlike(profile, model, probe);
        expectAlike(profile, model, {names.section(), names.key()});
        if (names.below(100) == 0) {
            profile = Profile::parse(profile.bytes());
        }
        ASSERT_FALSE(testing::Test::HasFatalFailure());
    }
    ASSERT_EQ(profile.bytes(), bytesOf(model.file()));
    const Profile again = Profile::parse(profile.bytes());
    for (const Probe& probe : probes) {
        expectAlike(profile, model, probe);
        expectAlike(again, model, probe);
    }
}

TEST_P(ProfileProperty, AStoreHoldsWhatThePlainModelHoldsInMemoryAndOnDisk)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("p.bmm"));
    Names names(GetParam() + 1000);
    ProfileStore store;
    Model model;
    std::vector<Probe> probes;
    for (int event = 0; event < 60; ++event) {
        {
            const ProfileStore::Batch batch(store);
            for (int step = names.below(60); step >= 0; --step) {
                const Probe probe{names.section(), names.key()};
                const std::string value = names.value();
                model.write(probe.section, probe.key, value);
                store.write(file, textOf(probe.section), textOf(probe.key), textOf(value));
                probes.push_back(probe);
                expectAlike(store, file, model, probe);
                expectAlike(store, file, model, {names.section(), names.key()});
            }
        }
        QFile device(file);
        ASSERT_TRUE(device.open(QIODevice::ReadOnly));
        ASSERT_EQ(device.readAll(), bytesOf(model.file()));
        ASSERT_FALSE(testing::Test::HasFatalFailure());
    }
    ProfileStore fresh;
    const ProfileStore::Batch batch(fresh);
    for (const Probe& probe : probes) {
        expectAlike(fresh, file, model, probe);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ProfileProperty, testing::Range(1U, 9U));
