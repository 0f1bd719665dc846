#pragma once
// The controls of the forms as plain state, with the properties the old forms runtime gave
// them. Positions and sizes are twips; colours are longs of the form 0x00BBGGRR.
//
// A control is a plain struct: the common properties live in Control, each kind adds its
// own. The screens copy these values into widgets; handlers read and write them directly.

#include "platform/runtime_error.h"

#include <QString>
#include <map>
#include <vector>

namespace mk {

constexpr long rgb(int red, int green, int blue)
{
    return long(red & 0xFF) | (long(green & 0xFF) << 8) | (long(blue & 0xFF) << 16);
}

namespace colour {
constexpr long Black = rgb(0, 0, 0);
constexpr long White = rgb(255, 255, 255);
constexpr long Grey = rgb(192, 192, 192);  // the face colour of buttons and panels
constexpr long Red = rgb(255, 0, 0);
constexpr long Blue = rgb(0, 0, 255);
constexpr long DarkBlue = rgb(0, 0, 128);
}  // namespace colour

enum class ControlKind {
    TextBox, Label, Button, CheckBox, OptionButton, ListBox, ComboBox, Panel, Frame, Image,
    RichText, Grid, ScrollBar, Timer, MenuItem
};

QString kindName(ControlKind kind);

struct FontSpec {
    QString Name = QStringLiteral("MS Sans Serif");
    double Size = 8.25;
    bool Bold = false;
    bool Italic = false;
};

// Alignment values of text controls.
constexpr int vbLeftJustify = 0;
constexpr int vbRightJustify = 1;
constexpr int vbCenter = 2;

struct Control {
    QString Name;
    int Index = -1;  // position in a control array; -1 for a single control
    bool Enabled = true;
    bool Visible = true;
    long BackColor = colour::Grey;
    long ForeColor = colour::Black;
    FontSpec Font;
    int Left = 0;
    int Top = 0;
    int Width = 1215;
    int Height = 375;
    QString ToolTipText;
    QString Hint;  // the text the status line shows while the mouse is over the control
    QString Tag;
    int TabIndex = 0;
};

// Selection inside a text: SelText reads the selected part and replaces it when written.
struct TextSelection {
    int SelStart = 0;
    int SelLength = 0;
};
QString selectedText(const QString& text, const TextSelection& sel);
// Replaces the selection by insert; the caret goes behind the inserted text.
void replaceSelection(QString& text, TextSelection& sel, const QString& insert);

struct TextBox : Control, TextSelection {
    static constexpr ControlKind kind = ControlKind::TextBox;
    TextBox() { BackColor = colour::White; Height = 285; }
    QString Text;
    int MaxLength = 0;  // 0: no limit; it limits what the user types, not what code sets
    bool Locked = false;
    bool MultiLine = false;
    int Alignment = vbLeftJustify;
    QString PasswordChar;  // shown in place of each character when not empty
};

// What the user can put into a text box: typed or pasted text stops at MaxLength.
QString limitToMaxLength(const TextBox& box, const QString& text);

struct RichText : Control, TextSelection {
    static constexpr ControlKind kind = ControlKind::RichText;
    RichText() { BackColor = colour::White; Width = 4000; Height = 2000; }
    QString Text;
    int MaxLength = 0;
    bool Locked = false;
};

struct Label : Control {
    static constexpr ControlKind kind = ControlKind::Label;
    Label() { Height = 255; }
    QString Caption;
    int Alignment = vbLeftJustify;
    bool AutoSize = false;
};

// Command buttons and the 3D buttons. A check ribbon (Ribbon) keeps its Value pressed or
// released at each click; on a plain button Value is only the "pressed in code" flag.
struct Button : Control {
    static constexpr ControlKind kind = ControlKind::Button;
    QString Caption;
    bool Value = false;
    bool Ribbon = false;
    QString Picture;  // name of the picture the button shows (a bundled icon)
};

// Check boxes. The plain kind has Value 0 (clear), 1 (ticked), 2 (grey); the 3D kind
// (BooleanValue) reads True or False.
struct CheckBox : Control {
    static constexpr ControlKind kind = ControlKind::CheckBox;
    QString Caption;
    int Value = 0;
    bool BooleanValue = false;
    int Alignment = vbLeftJustify;
    bool checked() const { return Value != 0; }
};

// Option buttons exclude each other within their group: the buttons of one control array,
// or those that share a Group name on a form.
struct OptionButton : Control {
    static constexpr ControlKind kind = ControlKind::OptionButton;
    QString Caption;
    bool Value = false;
    QString Group;
};

struct ListItem {
    QString Text;
    long ItemData = 0;
};

// The list part shared by list and combo boxes. Index faults raise run-time error 381
// ("Invalid property array index") as the runtime did.
struct ListItems {
    std::vector<ListItem> Items;
    int ListIndex = -1;
    bool Sorted = false;

    int ListCount() const { return int(Items.size()); }
    QString List(int i) const;
    void setList(int i, const QString& text);
    long ItemData(int i) const;
    void setItemData(int i, long value);
    // AddItem: at index, or at the end (in order when Sorted); returns the new item's index
    // (the old NewIndex).
    int AddItem(const QString& text, int index = -1);
    void RemoveItem(int i);
    void Clear();
};

struct ListBox : Control, ListItems {
    static constexpr ControlKind kind = ControlKind::ListBox;
    ListBox() { BackColor = colour::White; Height = 1500; }
    // Text reads the selected line.
    QString Text() const { return ListIndex >= 0 ? List(ListIndex) : QString(); }
};

struct ComboBox : Control, ListItems {
    static constexpr ControlKind kind = ControlKind::ComboBox;
    ComboBox() { BackColor = colour::White; Height = 315; }
    QString Text;  // the edit part; choosing a line copies it here
    int Style = 0;  // 0 drop-down with edit, 2 drop-down list
    void select(int index);
};

struct Panel : Control {
    static constexpr ControlKind kind = ControlKind::Panel;
    QString Caption;
    int Alignment = vbCenter;
};

struct Frame : Control {
    static constexpr ControlKind kind = ControlKind::Frame;
    QString Caption;
};

// Image and picture boxes. Picture is the file shown ("" for none); PictureWidth and
// PictureHeight are the picture's own size in pixels.
struct Image : Control {
    static constexpr ControlKind kind = ControlKind::Image;
    QString Picture;
    int PictureWidth = 0;
    int PictureHeight = 0;
    bool Stretch = false;
};

struct Grid : Control {
    static constexpr ControlKind kind = ControlKind::Grid;
    Grid() { BackColor = colour::White; Width = 6000; Height = 3000; }
    int rows() const { return rows_; }
    int cols() const { return cols_; }
    void setRows(int rows);  // keeps the cells that remain
    void setCols(int cols);
    int Row = 0;
    int Col = 0;
    int FixedRows = 1;
    int FixedCols = 1;
    QString TextMatrix(int row, int col) const;
    void setTextMatrix(int row, int col, const QString& text);
    // Text: the cell at Row, Col.
    QString Text() const { return TextMatrix(Row, Col); }
    void setText(const QString& text) { setTextMatrix(Row, Col, text); }
    int ColWidth(int col) const;
    void setColWidth(int col, int width);

private:
    void checkCell(int row, int col) const;
    int rows_ = 2;
    int cols_ = 2;
    std::vector<QString> cells_ = std::vector<QString>(4);
    std::vector<int> colWidths_ = std::vector<int>(2, 600);
};

struct ScrollBar : Control {
    static constexpr ControlKind kind = ControlKind::ScrollBar;
    int Value = 0;
    int Min = 0;
    int Max = 32767;
    int SmallChange = 1;
    int LargeChange = 1;
    // Value outside Min..Max is run-time error 380, as the runtime raised it.
    void setValue(int value);
};

// A timer ticks every Interval milliseconds while Enabled and Interval > 0 and its form is
// loaded (the forms' timer schedule drives it).
struct Timer : Control {
    static constexpr ControlKind kind = ControlKind::Timer;
    Timer() { Visible = false; }
    int Interval = 0;
};

struct MenuItem : Control {
    static constexpr ControlKind kind = ControlKind::MenuItem;
    QString Caption;  // "-" for a separator
    bool Checked = false;
    QString Parent;   // the menu it drops from; empty for a menu of the menu bar
};

namespace err {
constexpr int InvalidPropertyValue = 380;
constexpr int InvalidPropertyArrayIndex = 381;
constexpr int ControlArrayElementMissing = 340;
}  // namespace err

// Common base of the control arrays, so that the registry can reach an element by index
// without knowing its type.
class ControlArrayBase {
public:
    virtual ~ControlArrayBase() = default;
    virtual Control* find(int index) = 0;
    virtual std::vector<int> indices() const = 0;
};

// A control array: elements by index, with gaps where the form has none (Form3's sort
// options lack 18 and 19). An element that does not exist is run-time error 340.
template <class T>
class ControlArray : public ControlArrayBase {
public:
    ControlArray() = default;
    // Elements first..last, each made by design(element, index) after its Index is set.
    template <class Design>
    ControlArray(int first, int last, Design design)
    {
        for (int i = first; i <= last; ++i)
            add(i, design);
    }
    ControlArray(int first, int last) : ControlArray(first, last, [](T&, int) {}) {}
    ControlArray(const ControlArray&) = default;
    ControlArray& operator=(const ControlArray&) = default;

    template <class Design>
    T& add(int index, Design design)
    {
        T& element = items_[index];
        element.Index = index;
        design(element, index);
        return element;
    }
    T& add(int index) { return add(index, [](T&, int) {}); }
    // Load of a new element at run time: a copy of the lowest element, hidden.
    T& load(int index)
    {
        T copy = items_.empty() ? T{} : items_.begin()->second;
        copy.Index = index;
        copy.Visible = false;
        return items_[index] = copy;
    }
    void unload(int index) { items_.erase(index); }

    T& operator[](int index) { return at(index); }
    const T& operator[](int index) const { return const_cast<ControlArray*>(this)->at(index); }
    T& operator()(int index) { return at(index); }
    bool exists(int index) const { return items_.count(index) != 0; }
    int count() const { return int(items_.size()); }
    int lbound() const { return items_.empty() ? 0 : items_.begin()->first; }
    int ubound() const { return items_.empty() ? -1 : items_.rbegin()->first; }

    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

    Control* find(int index) override
    {
        auto it = items_.find(index);
        return it == items_.end() ? nullptr : &it->second;
    }
    std::vector<int> indices() const override
    {
        std::vector<int> out;
        for (const auto& entry : items_)
            out.push_back(entry.first);
        return out;
    }

private:
    T& at(int index)
    {
        auto it = items_.find(index);
        if (it == items_.end())
            throw RuntimeError(err::ControlArrayElementMissing,
                               QStringLiteral("Control array element '%1' doesn't exist").arg(index));
        return it->second;
    }
    std::map<int, T> items_;
};

// The form's own properties. Each form struct adds its controls and lists them in
// eachControl, which is what the registry and the screens walk.
struct Form {
    QString Name;
    QString Caption;
    bool Visible = false;
    bool Enabled = true;
    bool Loaded = false;  // set by the load step, cleared with the fresh struct of an unload
    int Left = 0;
    int Top = 0;
    int Width = 6000;
    int Height = 4500;
    int WindowState = 0;  // 0 normal, 1 minimised, 2 maximised
    long BackColor = colour::Grey;
    long ForeColor = colour::Black;
    FontSpec Font;
    QString Tag;
    bool KeyPreview = false;
};

constexpr int vbNormal = 0;
constexpr int vbMinimized = 1;
constexpr int vbMaximized = 2;

// Gives each control of a form its Name (and each array element its Index, already set):
// the names are written once, in the form's eachControl.
struct ControlNamer {
    template <class T>
    void operator()(const char* name, T& control) { control.Name = QString::fromUtf8(name); }
    template <class T>
    void operator()(const char* name, ControlArray<T>& array)
    {
        for (auto& [index, control] : array)
            control.Name = QString::fromUtf8(name);
    }
};

template <class F>
void nameControls(F& form, const char* formName)
{
    form.Name = QString::fromUtf8(formName);
    form.eachControl(ControlNamer{});
}

}  // namespace mk
