#pragma once

#include "shell/editor_form.h"

#include <memory>

namespace Ui {
class AboutFrm;
}

namespace torvane {

/// The about box.
class AboutFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit AboutFrm(Editor& editor);
    ~AboutFrm() override;

protected:
    void onLoad() override;
    void onActivate() override;
    void onCloseBox() override;
    void applyCaptions(Language language) override;

private:
    void close();

    std::unique_ptr<Ui::AboutFrm> m_ui;
    QStringList m_lines;
};

} // namespace torvane
