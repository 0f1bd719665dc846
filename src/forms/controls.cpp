#include "forms/controls.h"

#include <algorithm>

namespace mk {

QString kindName(ControlKind kind)
{
    switch (kind) {
    case ControlKind::TextBox: return QStringLiteral("TextBox");
    case ControlKind::Label: return QStringLiteral("Label");
    case ControlKind::Button: return QStringLiteral("Button");
    case ControlKind::CheckBox: return QStringLiteral("CheckBox");
    case ControlKind::OptionButton: return QStringLiteral("OptionButton");
    case ControlKind::ListBox: return QStringLiteral("ListBox");
    case ControlKind::ComboBox: return QStringLiteral("ComboBox");
    case ControlKind::Panel: return QStringLiteral("Panel");
    case ControlKind::Frame: return QStringLiteral("Frame");
    case ControlKind::Image: return QStringLiteral("Image");
    case ControlKind::RichText: return QStringLiteral("RichText");
    case ControlKind::Grid: return QStringLiteral("Grid");
    case ControlKind::ScrollBar: return QStringLiteral("ScrollBar");
    case ControlKind::Timer: return QStringLiteral("Timer");
    case ControlKind::MenuItem: return QStringLiteral("MenuItem");
    }
    return QString();
}

namespace {

// The selection as it lies inside the text: a start past the end sits at the end.
std::pair<int, int> clampedSelection(const QString& text, const TextSelection& sel)
{
    int start = std::clamp(sel.SelStart, 0, int(text.size()));
    int length = std::clamp(sel.SelLength, 0, int(text.size()) - start);
    return {start, length};
}

[[noreturn]] void badListIndex()
{
    throw RuntimeError(err::InvalidPropertyArrayIndex, QStringLiteral("Invalid property array index"));
}

}  // namespace

QString selectedText(const QString& text, const TextSelection& sel)
{
    auto [start, length] = clampedSelection(text, sel);
    return text.mid(start, length);
}

void replaceSelection(QString& text, TextSelection& sel, const QString& insert)
{
    auto [start, length] = clampedSelection(text, sel);
    text.replace(start, length, insert);
    sel.SelStart = start + int(insert.size());
    sel.SelLength = 0;
}

QString limitToMaxLength(const TextBox& box, const QString& text)
{
    if (box.MaxLength > 0 && text.size() > box.MaxLength)
        return text.left(box.MaxLength);
    return text;
}

QString ListItems::List(int i) const
{
    // Reading past the end gives the empty text, as the runtime's List did.
    if (i < -1)
        badListIndex();
    if (i == -1 || i >= ListCount())
        return QString();
    return Items[std::size_t(i)].Text;
}

void ListItems::setList(int i, const QString& text)
{
    if (i < 0 || i >= ListCount())
        badListIndex();
    Items[std::size_t(i)].Text = text;
}

long ListItems::ItemData(int i) const
{
    if (i < 0 || i >= ListCount())
        badListIndex();
    return Items[std::size_t(i)].ItemData;
}

void ListItems::setItemData(int i, long value)
{
    if (i < 0 || i >= ListCount())
        badListIndex();
    Items[std::size_t(i)].ItemData = value;
}

int ListItems::AddItem(const QString& text, int index)
{
    if (index > ListCount() || index < -1)
        badListIndex();
    if (index == -1 && Sorted) {
        auto at = std::find_if(Items.begin(), Items.end(), [&](const ListItem& item) {
            return QString::compare(item.Text, text, Qt::CaseInsensitive) > 0;
        });
        index = int(at - Items.begin());
    }
    if (index == -1)
        index = ListCount();
    Items.insert(Items.begin() + index, ListItem{text, 0});
    if (ListIndex >= index)
        ++ListIndex;
    return index;
}

void ListItems::RemoveItem(int i)
{
    if (i < 0 || i >= ListCount())
        badListIndex();
    Items.erase(Items.begin() + i);
    if (ListIndex == i)
        ListIndex = -1;
    else if (ListIndex > i)
        --ListIndex;
}

void ListItems::Clear()
{
    Items.clear();
    ListIndex = -1;
}

void ComboBox::select(int index)
{
    if (index < -1 || index >= ListCount())
        badListIndex();
    ListIndex = index;
    if (index >= 0)
        Text = List(index);
}

void Grid::checkCell(int row, int col) const
{
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_)
        throw RuntimeError(err::InvalidPropertyArrayIndex, QStringLiteral("Subscript out of range"));
}

QString Grid::TextMatrix(int row, int col) const
{
    checkCell(row, col);
    return cells_[std::size_t(row * cols_ + col)];
}

void Grid::setTextMatrix(int row, int col, const QString& text)
{
    checkCell(row, col);
    cells_[std::size_t(row * cols_ + col)] = text;
}

void Grid::setRows(int rows)
{
    if (rows < 0)
        throw RuntimeError(err::InvalidPropertyValue, QStringLiteral("Invalid property value"));
    cells_.resize(std::size_t(rows * cols_));
    rows_ = rows;
    Row = std::min(Row, std::max(rows - 1, 0));
}

void Grid::setCols(int cols)
{
    if (cols < 0)
        throw RuntimeError(err::InvalidPropertyValue, QStringLiteral("Invalid property value"));
    std::vector<QString> cells(std::size_t(rows_ * cols));
    for (int r = 0; r < rows_; ++r)
        for (int c = 0; c < std::min(cols, cols_); ++c)
            cells[std::size_t(r * cols + c)] = cells_[std::size_t(r * cols_ + c)];
    cells_ = std::move(cells);
    colWidths_.resize(std::size_t(cols), 600);
    cols_ = cols;
    Col = std::min(Col, std::max(cols - 1, 0));
}

int Grid::ColWidth(int col) const
{
    if (col < 0 || col >= cols_)
        throw RuntimeError(err::InvalidPropertyArrayIndex, QStringLiteral("Subscript out of range"));
    return colWidths_[std::size_t(col)];
}

void Grid::setColWidth(int col, int width)
{
    if (col < 0 || col >= cols_)
        throw RuntimeError(err::InvalidPropertyArrayIndex, QStringLiteral("Subscript out of range"));
    colWidths_[std::size_t(col)] = width;
}

void ScrollBar::setValue(int value)
{
    if (value < std::min(Min, Max) || value > std::max(Min, Max))
        throw RuntimeError(err::InvalidPropertyValue, QStringLiteral("Invalid property value"));
    Value = value;
}

}  // namespace mk
