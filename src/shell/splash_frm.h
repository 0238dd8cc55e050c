#pragma once

#include "shell/editor_form.h"

#include <QPixmap>
#include <QTimer>

#include <memory>

namespace Ui {
class frmSplash;
}

namespace torvane {

/// The splash screen: lasts 15 ticks of a quarter second, or until a click or a key, and then shows the main
/// window.
class frmSplash : public EditorForm
{
    Q_OBJECT

public:
    explicit frmSplash(Editor& editor);
    ~frmSplash() override;

protected:
    void onLoad() override;
    void applyCaptions(Language language) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void tick();
    void finish();

    std::unique_ptr<Ui::frmSplash> m_ui;
    QTimer m_timer{this};
    bool m_finished = false;
};

} // namespace torvane
