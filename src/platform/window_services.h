#pragma once

#include "platform/language.h"
#include "platform/services.h"

class QWidget;

namespace torvane {

/// Message boxes of the window system, with the buttons' words in the program's language.
class WindowMessageBoxes : public MessageBoxes
{
public:
    explicit WindowMessageBoxes(Language language) : m_language(language) {}
    MessageBox::Answer show(const MessageBox& box) override;

private:
    Language m_language;
};

class WindowInputBoxes : public InputBoxes
{
public:
    explicit WindowInputBoxes(Language language) : m_language(language) {}
    std::optional<QString> ask(const QString& title, const QString& prompt,
                               const QString& defaultText) override;

private:
    Language m_language;
};

class WindowFileBoxes : public FileBoxes
{
public:
    std::optional<QString> open(const FileRequest& request) override;
    std::optional<QString> save(const FileRequest& request) override;
};

} // namespace torvane
