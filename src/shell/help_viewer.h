#pragma once

#include "platform/language.h"
#include "platform/services.h"

#include <memory>

namespace torvane {

class HelpFrm;

/// Shows the help file in a window of its own, in the program's language. A file that is missing, can't be
/// read or is damaged gives a box that names it.
class WindowHelpViewer : public HelpViewer
{
public:
    WindowHelpViewer(Language language, MessageBoxes& boxes);
    ~WindowHelpViewer() override;

    void showContents(const QString& file) override;
    void showChapter(const QString& file, const QString& chapter) override;

    /// The window; none before the first showing.
    HelpFrm* window() const { return m_window.get(); }

private:
    Language m_language;
    MessageBoxes& m_boxes;
    std::unique_ptr<HelpFrm> m_window;
};

} // namespace torvane
