#pragma once

#include "shell/editor_form.h"
#include "ship_selection/ship_texts.h"

#include <QTableView>

#include <functional>
#include <memory>

namespace Ui {
class ShipDBaseFrm;
}

namespace torvane {

class ShipGridModel;

/// The ship browser, from which the ships of a division are picked. Opened by the division dialog, which it
/// enables again. The catalogue is read once, and the order of a sort lasts to the end of the run.
class ShipDBaseFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit ShipDBaseFrm(Editor& editor);
    ~ShipDBaseFrm() override;

protected:
    void onLoad() override;
    void onActivate() override;
    void onCloseBox() override;
    void applyCaptions(Language language) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectBrowser();
    void connectSelection();
    void loadShips();
    void openDivision();

    void refill(const std::function<void()>& fill);
    void selectForceNavy();
    void filterBy(const char* navy);
    void sortBy(ShipColumn column);
    void markSelectedShips();
    void toggleSortMode();
    void search();
    void printCell(int row, int column);

    void pick(int row);
    void remove();
    void clearAll();
    void cancel();
    void keep();
    void leave();
    void tell(SelectionMessage message);
    void showSelection();
    void showCount(QLabel* label, ShipText text, int count, int limit);

    std::unique_ptr<Ui::ShipDBaseFrm> m_ui;
    QTableView* const m_grid2 = hiddenControl<QTableView>("Grid2"); ///< unused
    ShipBrowser m_browser;
    ShipSelection m_selection;
    ShipGridModel* const m_model;
    int m_sortMode = 0;        ///< 1 while the sort options are on, as far as this activation knows
    bool m_readAtLoad = false; ///< the load has tried the catalogue: the opening behind it doesn't try again
};

} // namespace torvane
