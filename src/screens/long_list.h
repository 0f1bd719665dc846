#pragma once
// The list of a result form, which may hold a million lines: a view over a model that keeps
// a copy of the list's lines, never one widget item per line. The binder hands it the
// list's lines after each handler; unchanged lines cost one pass of pointer comparisons.

#include "forms/controls.h"

#include <QAbstractListModel>
#include <QAbstractTableModel>
#include <QListView>
#include <QTableView>
#include <vector>

namespace mk {

class ListLinesModel : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    // Takes the lines when they differ from those it holds; true when it took them.
    bool sync(const std::vector<ListItem>& lines);

private:
    std::vector<ListItem> lines_;
};

class LongListView : public QListView {
    Q_OBJECT
public:
    explicit LongListView(QWidget* parent = nullptr);
    // The lines and the chosen line of the list box.
    void sync(const ListItems& items);
    int currentRow() const;

Q_SIGNALS:
    void currentRowChanged(int row);

private:
    ListLinesModel* model_;
};

// The grid of the grid search, which may hold a row for every card: a view over the grid
// control itself, read cell by cell as the rows come into sight.
class GridCellsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    void sync(const Grid& grid);

private:
    const Grid* grid_ = nullptr;
    int rows_ = 0;
    int cols_ = 0;
};

class LongGridView : public QTableView {
    Q_OBJECT
public:
    explicit LongGridView(QWidget* parent = nullptr);
    // The cells, the column widths (in pixels) and the current cell of the grid.
    void sync(const Grid& grid, const std::vector<int>& widths);

Q_SIGNALS:
    void cellChosen(int row, int col);

private:
    GridCellsModel* model_;
};

}  // namespace mk
