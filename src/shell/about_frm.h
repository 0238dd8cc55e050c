#pragma once

#include "platform/form.h"

#include <memory>

namespace Ui {
class AboutFrm;
}

namespace torvane {

class Editor;

/// The about box.
class AboutFrm : public Form
{
    Q_OBJECT

public:
    explicit AboutFrm(Editor& editor);
    ~AboutFrm() override;

protected:
    void onLoad() override;
    void onActivate() override;
    void onCloseBox() override;

private:
    void setEnglishCaptions();
    void setGermanCaptions();
    void close();

    Editor& m_editor;
    std::unique_ptr<Ui::AboutFrm> m_ui;
    QStringList m_lines;
};

} // namespace torvane
