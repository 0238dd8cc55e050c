#pragma once

#include "platform/number_text.h"
#include "platform/runtime_error.h"
#include "support/printers.h"

#include <QLocale>

#include <gmock/gmock.h>

#include <clocale>
#include <limits>

namespace torvane::testing {

inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Checks that a call throws an overflow whose text names the value.
template <typename Call>
void expectOverflowNaming(Call call, const char* value)
{
    try {
        call();
        ADD_FAILURE() << "no overflow for " << value;
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::Overflow);
        EXPECT_THAT(error.what(), ::testing::HasSubstr(value));
    }
}

/// Sets the German locale in Qt and, where it is installed, in the C library, and takes it back.
class GermanLocale
{
public:
    GermanLocale()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        std::setlocale(LC_ALL, "de_DE.UTF-8");
    }
    ~GermanLocale()
    {
        QLocale::setDefault(QLocale::c());
        std::setlocale(LC_ALL, "C");
    }
    GermanLocale(const GermanLocale&) = delete;
    GermanLocale& operator=(const GermanLocale&) = delete;
};

} // namespace torvane::testing
