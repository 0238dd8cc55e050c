#include "platform/toolkit_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace torvane {

ToolkitTexts::ToolkitTexts(Language language)
{
    if (language == Language::German &&
        m_translator.load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_translator);
    }
}

ToolkitTexts::~ToolkitTexts()
{
    QCoreApplication::removeTranslator(&m_translator);
}

} // namespace torvane
