#pragma once

#include "platform/language.h"

#include <QTranslator>

namespace torvane {

/// Gives the widget library's own texts (file box, context menus of fields) the program's language, whatever
/// the desktop's, for as long as it lives. Needs a QApplication. Without the library's translation they stay
/// English.
class ToolkitTexts
{
public:
    explicit ToolkitTexts(Language language);
    ~ToolkitTexts();
    ToolkitTexts(const ToolkitTexts&) = delete;
    ToolkitTexts& operator=(const ToolkitTexts&) = delete;

private:
    QTranslator m_translator;
};

} // namespace torvane
