#pragma once

#include "platform/form.h"

namespace torvane {

class Editor;

/// The overview of the scenario.
class OverviewFrm : public Form
{
    Q_OBJECT

public:
    explicit OverviewFrm(Editor& editor);

    /// 1 while this is the first opening for a new scenario.
    QCheckBox* const ChknewFlag = hiddenControl<QCheckBox>("ChknewFlag");

private:
    void save();

    Editor& m_editor;
};

} // namespace torvane
