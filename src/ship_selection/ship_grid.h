#pragma once

#include "ship_selection/ship_browser.h"

#include <QAbstractTableModel>
#include <QTableView>

#include <functional>

namespace torvane {

class ShipSelection;

/// The rows of the ship grid for a view. Nothing is copied: a cell is read where the lists hold it.
class ShipGridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// `browser` and `selection` outlive the model.
    ShipGridModel(const ShipBrowser& browser, const ShipSelection& selection, QObject* parent);

    void setLanguage(Language language);
    /// Runs what fills the grid anew.
    void refill(const std::function<void()>& fill);
    /// Shows marks and picks as they are now.
    void showMarks();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    bool isTaken(int row) const;

    const ShipBrowser& m_browser;
    const ShipSelection& m_selection;
    Language m_language = Language::English;
};

/// The grid of ships under its fixed header. Typed letters lead to a name.
class ShipGrid : public QTableView
{
    Q_OBJECT

public:
    explicit ShipGrid(QWidget* parent = nullptr);

    /// Gives the columns their widths: those of their table, and no less than header and cells need. `lists`
    /// are the ships that the grid can show.
    void sizeColumns(const ShipLists& lists, Language language);
    /// Both scroll bars, or the upright one alone.
    void showBothScrollBars(bool both);
    /// Puts the current row at the top: what follows every fill.
    void goToFirstRow();
    /// Shows a row at the top, with the second column as the leftmost that scrolls.
    void goToRow(int row);
    /// The column of the current cell; the second before there was one.
    ShipColumn currentColumn() const { return m_currentColumn; }

    QSize sizeHint() const override;
    void keyboardSearch(const QString& search) override;

Q_SIGNALS:
    /// Enter was pressed on a row.
    void enterPressed(int row);
    /// The pointer went down on a grid without a row.
    void emptyGridPressed();

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    ShipColumn m_currentColumn = ShipColumn::Type;
};

} // namespace torvane
