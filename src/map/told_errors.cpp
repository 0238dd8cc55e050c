#include "map/told_errors.h"

namespace torvane {

std::vector<RuntimeError> ToldErrors::fresh(const std::vector<RuntimeError>& errors)
{
    QStringList texts;
    std::vector<RuntimeError> fresh;
    for (const RuntimeError& error : errors) {
        if (!texts.contains(error.text()) && !m_texts.contains(error.text())) {
            fresh.push_back(error);
        }
        texts.append(error.text());
    }
    m_texts = texts;
    return fresh;
}

} // namespace torvane
