#pragma once

#include <QProgressBar>

namespace torvane {

/// A bar beside a number, green where all is well and red where it is not.
class ConditionBar : public QProgressBar
{
    Q_OBJECT

public:
    /// What a full bar means.
    enum class Full { Good, Bad };

    explicit ConditionBar(Full full, QWidget* parent = nullptr);

    /// From 0 to 1.
    void setShare(double share);

private:
    Full m_full;
};

} // namespace torvane
