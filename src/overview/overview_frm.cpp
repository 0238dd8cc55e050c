#include "overview/overview_frm.h"

#include "divisions/create_division_frm.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"

#include <QAction>
#include <QPushButton>
#include <QVBoxLayout>

namespace torvane {

OverviewFrm::OverviewFrm(Editor& editor)
    : Form(editor.forms(), QStringLiteral("OverviewFrm"), Qt::Dialog), m_editor(editor)
{
    setWindowTitle(editor.german() ? QStringLiteral("Torvane - Scenario Editor")
                                   : QStringLiteral("Torvane - Overview of the Scenario"));
    auto* layout = new QVBoxLayout(this);
    auto* ok = new QPushButton(editor.german() ? QStringLiteral("OK") : QStringLiteral("&Save"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    layout->addWidget(ok);
    on(ok, &QPushButton::clicked, [this] { save(); });
}

void OverviewFrm::save()
{
    MainFrm& mainFrm = m_editor.mainFrm();
    mainFrm.setInputEnabled(true);
    hideForm();
    if (valueOf(ChknewFlag) != 1) {
        return;
    }
    setValue(ChknewFlag, 0);
    setValue(m_editor.createDivisionFrm().ChknewBlueFlag, 1);
    setValue(m_editor.createDivisionFrm().ChknewRedFlag, 1);
    for (const char* entry : {"mnuCreateForceA", "mnuCreateForceB"}) {
        mainFrm.menu().setVisible(QLatin1StringView(entry), true);
        mainFrm.menu().setEnabled(QLatin1StringView(entry), true);
    }
}

} // namespace torvane
