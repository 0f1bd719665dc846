#include "screens/long_list.h"

#include <QApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QPalette>

namespace mk {

namespace {

// The same line when both share one text and one number: a copy shares its text's data,
// and any change of the text gives it data of its own.
// A tab goes to the next stop of 24 characters, past the longest cut value (20 and the cut
// mark); the lists show in a fixed-width font, so the columns of their lines stand under
// each other.
QString expandTabs(const QString& text)
{
    if (!text.contains(QLatin1Char('\t')))
        return text;
    QString out;
    out.reserve(text.size() + 16);
    for (const QChar c : text) {
        if (c != QLatin1Char('\t')) {
            out += c;
            continue;
        }
        do
            out += QLatin1Char(' ');
        while (out.size() % 24 != 0);
    }
    return out;
}

bool sameLine(const ListItem& a, const ListItem& b)
{
    return a.ItemData == b.ItemData && a.Text.size() == b.Text.size()
        && (a.Text.constData() == b.Text.constData() || a.Text == b.Text);
}

}  // namespace

int ListLinesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(lines_.size());
}

QVariant ListLinesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= int(lines_.size()))
        return {};
    if (role == Qt::DisplayRole)
        return expandTabs(lines_[std::size_t(index.row())].Text);
    return {};
}

bool ListLinesModel::sync(const std::vector<ListItem>& lines)
{
    bool same = lines.size() == lines_.size();
    for (std::size_t i = 0; same && i < lines.size(); ++i)
        same = sameLine(lines[i], lines_[i]);
    if (same)
        return false;
    beginResetModel();
    lines_ = lines;
    endResetModel();
    return true;
}

LongListView::LongListView(QWidget* parent) : QListView(parent), model_(new ListLinesModel(this))
{
    setModel(model_);
    setUniformItemSizes(true);  // a million lines lay out at once
    setTextElideMode(Qt::ElideNone);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current, const QModelIndex&) { Q_EMIT currentRowChanged(current.isValid() ? current.row() : -1); });
}

void LongListView::sync(const ListItems& items)
{
    const QSignalBlocker quiet(this);
    if (model_->sync(items.Items))
        selectionModel()->clear();
    if (currentRow() != items.ListIndex) {
        if (items.ListIndex < 0) {
            selectionModel()->clear();
        } else {
            const QModelIndex row = model_->index(items.ListIndex);
            selectionModel()->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect);
            scrollTo(row);
        }
    }
}

int GridCellsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridCellsModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : cols_; }

QVariant GridCellsModel::data(const QModelIndex& index, int role) const
{
    if (!grid_ || !index.isValid() || index.row() >= rows_ || index.column() >= cols_)
        return {};
    if (role == Qt::DisplayRole)
        return grid_->TextMatrix(index.row(), index.column());
    const bool fixed = index.row() < grid_->FixedRows || index.column() < grid_->FixedCols;
    if (role == Qt::BackgroundRole && fixed)
        return QApplication::palette().button();
    return {};
}

void GridCellsModel::sync(const Grid& grid)
{
    grid_ = &grid;
    if (grid.rows() != rows_ || grid.cols() != cols_) {
        beginResetModel();
        rows_ = grid.rows();
        cols_ = grid.cols();
        endResetModel();
    } else if (rows_ > 0 && cols_ > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, cols_ - 1));  // only the rows in sight are read
    }
}

LongGridView::LongGridView(QWidget* parent) : QTableView(parent), model_(new GridCellsModel(this))
{
    setModel(model_);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& i) { Q_EMIT cellChosen(i.row(), i.column()); });
}

void LongGridView::sync(const Grid& grid, const std::vector<int>& widths)
{
    const QSignalBlocker quiet(this);
    model_->sync(grid);
    for (int c = 0; c < int(widths.size()); ++c)
        if (columnWidth(c) != widths[std::size_t(c)])
            setColumnWidth(c, widths[std::size_t(c)]);
    const QModelIndex current = model_->index(grid.Row, grid.Col);
    if (current.isValid() && currentIndex() != current)
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::ClearAndSelect);
}

int LongListView::currentRow() const
{
    const QModelIndex current = selectionModel()->currentIndex();
    return current.isValid() ? current.row() : -1;
}

}  // namespace mk
