#include "ship_selection/ship_grid.h"

#include "ship_selection/selection_rules.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace torvane {

namespace {

constexpr int twipsToTheInch = 1440;
constexpr int cellMargin = 12; // both sides of a text, pixels
constexpr int rowMargin = 6;   // above and below it together
constexpr int shownRows = 20;
/// How far the colour of a picked row leans to that of a selection.
constexpr int pickedTint = 20; // percent

constexpr ShipColumn columnOf(int section)
{
    return static_cast<ShipColumn>(section);
}
constexpr int sectionOf(ShipColumn column)
{
    return static_cast<int>(column);
}

bool isNumber(ShipColumn column)
{
    return column == ShipColumn::HitPts || column == ShipColumn::FloatPts || column == ShipColumn::Torps;
}

QColor between(const QColor& one, const QColor& other, int percentOfOther)
{
    const auto mixed = [percentOfOther](int a, int b) { return a + (b - a) * percentOfOther / 100; };
    return QColor(mixed(one.red(), other.red()), mixed(one.green(), other.green()),
                  mixed(one.blue(), other.blue()));
}

/// Width of the widest text that a column can show. Only the longest are measured.
int widestCell(const ShipLists::List& ships, ShipColumn column, const QFontMetrics& metrics)
{
    constexpr qsizetype closeToLongest = 2;
    qsizetype longest = 0;
    for (const ShipRow& ship : ships) {
        longest = std::max(longest, ship[column].size());
    }
    int width = 0;
    for (const ShipRow& ship : ships) {
        if (ship[column].size() + closeToLongest >= longest) {
            width = std::max(width, metrics.horizontalAdvance(ship[column]));
        }
    }
    return width;
}

} // namespace

ShipGridModel::ShipGridModel(const ShipBrowser& browser, const ShipSelection& selection, QObject* parent)
    : QAbstractTableModel(parent), m_browser(browser), m_selection(selection)
{
}

void ShipGridModel::setLanguage(Language language)
{
    m_language = language;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void ShipGridModel::refill(const std::function<void()>& fill)
{
    // Whatever the filling throws, the view must hear of the end.
    struct Reset
    {
        explicit Reset(ShipGridModel& resetModel) : model(resetModel) { model.beginResetModel(); }
        ~Reset() { model.endResetModel(); }
        ShipGridModel& model;
    };
    const Reset reset(*this);
    fill();
}

void ShipGridModel::showMarks()
{
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

static QVariant alignmentOf(ShipColumn column)
{
    return QVariant::fromValue(isNumber(column) ? Qt::AlignRight | Qt::AlignVCenter
                                                : Qt::AlignLeft | Qt::AlignVCenter);
}

int ShipGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_browser.rowCount();
}

int ShipGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(shipGridColumns.size());
}

bool ShipGridModel::isTaken(int row) const
{
    return m_selection.isTaken(m_browser.ship(row)[ShipColumn::Name]);
}

QVariant ShipGridModel::data(const QModelIndex& index, int role) const
{
    const ShipColumn column = columnOf(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return m_browser.text(index.row(), column);
    case Qt::TextAlignmentRole:
        return alignmentOf(column);
    case Qt::FontRole:
        if (isTaken(index.row())) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        break;
    case Qt::BackgroundRole:
        if (isTaken(index.row())) {
            const QPalette colors;
            return between(colors.color(QPalette::Base), colors.color(QPalette::Highlight), pickedTint);
        }
        break;
    default:
        break;
    }
    return {};
}

QVariant ShipGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal) {
        if (role == Qt::DisplayRole) {
            return shipGridColumns.at(static_cast<std::size_t>(section)).header.in(m_language);
        }
        if (role == Qt::TextAlignmentRole) {
            return alignmentOf(columnOf(section));
        }
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

ShipGrid::ShipGrid(QWidget* parent) : QTableView(parent)
{
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowMargin);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    showBothScrollBars(false);
}

void ShipGrid::sizeColumns(const ShipLists& lists, Language language)
{
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    for (std::size_t i = 0; i < shipGridColumns.size(); ++i) {
        const int section = static_cast<int>(i);
        const ShipGridColumn& column = shipGridColumns[i];
        const int cells = section == sectionOf(ShipColumn::Selected)
                              ? metrics.horizontalAdvance(pickedMark)
                              : widestCell(lists.list(u""), columnOf(section), metrics);
        const int header = metrics.horizontalAdvance(column.header.in(language));
        horizontalHeader()->resizeSection(section, std::max({column.twips * logicalDpiX() / twipsToTheInch,
                                                             cells + cellMargin, header + cellMargin}));
    }
    updateGeometry();
}

void ShipGrid::showBothScrollBars(bool both)
{
    setHorizontalScrollBarPolicy(both ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

void ShipGrid::goToFirstRow()
{
    setCurrentIndex(model()->index(0, sectionOf(m_currentColumn)));
    scrollToTop();
}

void ShipGrid::goToRow(int row)
{
    setCurrentIndex(model()->index(row, sectionOf(ShipColumn::Name)));
    scrollTo(currentIndex(), QAbstractItemView::PositionAtTop);
    // From the left end: a bar that has this value already would leave the columns where a resize put them.
    horizontalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(sectionOf(ShipColumn::Type));
}

QSize ShipGrid::sizeHint() const
{
    const int frame = 2 * frameWidth();
    return {horizontalHeader()->length() + verticalScrollBar()->sizeHint().width() + frame,
            horizontalHeader()->sizeHint().height() + shownRows * verticalHeader()->defaultSectionSize() +
                frame};
}

// Names are what an author types, whatever column the current cell is in.
void ShipGrid::keyboardSearch(const QString& search)
{
    if (currentIndex().isValid() && m_currentColumn != ShipColumn::Name) {
        setCurrentIndex(currentIndex().siblingAtColumn(sectionOf(ShipColumn::Name)));
    }
    QTableView::keyboardSearch(search);
}

void ShipGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (current.isValid()) {
        m_currentColumn = columnOf(current.column());
    }
}

void ShipGrid::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentIndex().isValid()) {
        event->accept();
        // A key that is held down picks once.
        if (!event->isAutoRepeat()) {
            Q_EMIT enterPressed(currentIndex().row());
        }
        return;
    }
    QTableView::keyPressEvent(event);
}

void ShipGrid::mousePressEvent(QMouseEvent* event)
{
    if (!currentIndex().isValid()) {
        Q_EMIT emptyGridPressed();
        return;
    }
    QTableView::mousePressEvent(event);
}

} // namespace torvane
