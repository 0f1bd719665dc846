#include "forms/properties.h"

#include "forms/registry.h"

#include <algorithm>

namespace mk {

QString boolText(bool value)
{
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

bool boolFromText(const QString& text)
{
    QString t = text.trimmed();
    if (t.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
        return true;
    if (t.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
        return false;
    bool ok = false;
    long n = t.toLong(&ok);
    if (!ok)
        throw FormsError(QStringLiteral("not a boolean: \"%1\"").arg(text));
    return n != 0;
}

long longFromText(const QString& text)
{
    bool ok = false;
    long n = text.trimmed().toLong(&ok);
    if (!ok)
        throw FormsError(QStringLiteral("not a whole number: \"%1\"").arg(text));
    return n;
}

int intFromText(const QString& text)
{
    bool ok = false;
    int n = text.trimmed().toInt(&ok);
    if (!ok)
        throw FormsError(QStringLiteral("not a whole number: \"%1\"").arg(text));
    return n;
}

double doubleFromText(const QString& text)
{
    bool ok = false;
    double n = text.trimmed().toDouble(&ok);
    if (!ok)
        throw FormsError(QStringLiteral("not a number: \"%1\"").arg(text));
    return n;
}

namespace {

QString num(long n)
{
    return QString::number(n);
}

// Fills one property table for the owner type T (a control kind or the form).
template <class Owner, class T>
class Builder {
public:
    using Table = std::map<QString, PropertyOf<Owner>>;
    using Get = std::function<QString(T&, const PropertyArgs&)>;
    using Set = std::function<void(T&, const PropertyArgs&, const QString&)>;

    explicit Builder(Table& table) : table_(table) {}

    Builder& prop(const char* name, int argCount, Get get, Set set = {})
    {
        PropertyOf<Owner> p;
        p.argCount = argCount;
        p.get = [get](Owner& o, const PropertyArgs& a) { return get(static_cast<T&>(o), a); };
        if (set)
            p.set = [set](Owner& o, const PropertyArgs& a, const QString& v) {
                set(static_cast<T&>(o), a, v);
            };
        table_[QString::fromUtf8(name).toLower()] = std::move(p);
        return *this;
    }
    Builder& simple(const char* name, std::function<QString(T&)> get,
                    std::function<void(T&, const QString&)> set = {})
    {
        Set s;
        if (set)
            s = [set](T& t, const PropertyArgs&, const QString& v) { set(t, v); };
        return prop(name, 0, [get](T& t, const PropertyArgs&) { return get(t); }, s);
    }
    template <class C>
    Builder& text(const char* name, QString C::*m)
    {
        return simple(name, [m](T& t) { return t.*m; }, [m](T& t, const QString& v) { t.*m = v; });
    }
    template <class C>
    Builder& flag(const char* name, bool C::*m)
    {
        return simple(name, [m](T& t) { return boolText(t.*m); },
                      [m](T& t, const QString& v) { t.*m = boolFromText(v); });
    }
    template <class C>
    Builder& integer(const char* name, int C::*m)
    {
        return simple(name, [m](T& t) { return num(t.*m); },
                      [m](T& t, const QString& v) { t.*m = intFromText(v); });
    }
    template <class C>
    Builder& longint(const char* name, long C::*m)
    {
        return simple(name, [m](T& t) { return num(t.*m); },
                      [m](T& t, const QString& v) { t.*m = longFromText(v); });
    }
    // Name, colours, font, position and the other properties every control and form has.
    template <class Base>
    Builder& common()
    {
        simple("Name", [](T& t) { return static_cast<Base&>(t).Name; });
        flag("Enabled", &Base::Enabled).flag("Visible", &Base::Visible);
        longint("BackColor", &Base::BackColor).longint("ForeColor", &Base::ForeColor);
        integer("Left", &Base::Left).integer("Top", &Base::Top);
        integer("Width", &Base::Width).integer("Height", &Base::Height);
        text("Tag", &Base::Tag);
        simple("FontName", [](T& t) { return t.Font.Name; }, [](T& t, const QString& v) { t.Font.Name = v; });
        simple("FontSize", [](T& t) { return QString::number(t.Font.Size); },
               [](T& t, const QString& v) { t.Font.Size = doubleFromText(v); });
        simple("FontBold", [](T& t) { return boolText(t.Font.Bold); },
               [](T& t, const QString& v) { t.Font.Bold = boolFromText(v); });
        simple("FontItalic", [](T& t) { return boolText(t.Font.Italic); },
               [](T& t, const QString& v) { t.Font.Italic = boolFromText(v); });
        return *this;
    }
    Builder& controlCommon()
    {
        common<Control>();
        simple("Index", [](T& t) { return num(t.Index); });
        text("ToolTipText", &Control::ToolTipText).text("Hint", &Control::Hint);
        integer("TabIndex", &Control::TabIndex);
        return *this;
    }
    Builder& selection()
    {
        simple("SelStart", [](T& t) { return num(t.SelStart); },
               [](T& t, const QString& v) { t.SelStart = std::clamp(intFromText(v), 0, int(t.Text.size())); });
        simple("SelLength", [](T& t) { return num(t.SelLength); },
               [](T& t, const QString& v) { t.SelLength = std::max(intFromText(v), 0); });
        simple("SelText", [](T& t) { return selectedText(t.Text, t); },
               [](T& t, const QString& v) { replaceSelection(t.Text, t, v); });
        return *this;
    }
    Builder& list()
    {
        simple("ListCount", [](T& t) { return num(t.ListCount()); });
        simple("Sorted", [](T& t) { return boolText(t.Sorted); },
               [](T& t, const QString& v) { t.Sorted = boolFromText(v); });
        prop("List", 1, [](T& t, const PropertyArgs& a) { return t.List(a[0]); },
             [](T& t, const PropertyArgs& a, const QString& v) { t.setList(a[0], v); });
        prop("ItemData", 1, [](T& t, const PropertyArgs& a) { return num(t.ItemData(a[0])); },
             [](T& t, const PropertyArgs& a, const QString& v) { t.setItemData(a[0], longFromText(v)); });
        return *this;
    }

private:
    Table& table_;
};

void checkListIndex(const ListItems& items, int index)
{
    if (index < -1 || index >= items.ListCount())
        throw RuntimeError(err::InvalidPropertyValue, QStringLiteral("Invalid property value"));
}

template <class T>
PropertyTable tableFor();

template <>
PropertyTable tableFor<TextBox>()
{
    PropertyTable t;
    Builder<Control, TextBox>(t).controlCommon().selection()
        .text("Text", &TextBox::Text).integer("MaxLength", &TextBox::MaxLength)
        .flag("Locked", &TextBox::Locked).flag("MultiLine", &TextBox::MultiLine)
        .integer("Alignment", &TextBox::Alignment).text("PasswordChar", &TextBox::PasswordChar);
    return t;
}

template <>
PropertyTable tableFor<RichText>()
{
    PropertyTable t;
    Builder<Control, RichText>(t).controlCommon().selection()
        .text("Text", &RichText::Text).integer("MaxLength", &RichText::MaxLength)
        .flag("Locked", &RichText::Locked);
    return t;
}

template <>
PropertyTable tableFor<Label>()
{
    PropertyTable t;
    Builder<Control, Label>(t).controlCommon()
        .text("Caption", &Label::Caption).integer("Alignment", &Label::Alignment)
        .flag("AutoSize", &Label::AutoSize);
    return t;
}

template <>
PropertyTable tableFor<Button>()
{
    PropertyTable t;
    Builder<Control, Button>(t).controlCommon()
        .text("Caption", &Button::Caption).flag("Value", &Button::Value)
        .text("Picture", &Button::Picture);
    return t;
}

template <>
PropertyTable tableFor<CheckBox>()
{
    PropertyTable t;
    Builder<Control, CheckBox>(t).controlCommon()
        .text("Caption", &CheckBox::Caption).integer("Alignment", &CheckBox::Alignment)
        .simple("Value",
                [](CheckBox& c) { return c.BooleanValue ? boolText(c.Value != 0) : num(c.Value); },
                [](CheckBox& c, const QString& v) {
                    if (c.BooleanValue) {
                        c.Value = boolFromText(v) ? 1 : 0;
                        return;
                    }
                    int n = intFromText(v);
                    if (n < 0 || n > 2)
                        throw FormsError(QStringLiteral("a check box takes 0, 1 or 2, not %1").arg(v));
                    c.Value = n;
                });
    return t;
}

template <>
PropertyTable tableFor<OptionButton>()
{
    PropertyTable t;
    Builder<Control, OptionButton>(t).controlCommon()
        .text("Caption", &OptionButton::Caption).flag("Value", &OptionButton::Value)
        .text("Group", &OptionButton::Group);
    return t;
}

template <>
PropertyTable tableFor<ListBox>()
{
    PropertyTable t;
    Builder<Control, ListBox>(t).controlCommon().list()
        .simple("ListIndex", [](ListBox& l) { return num(l.ListIndex); },
                [](ListBox& l, const QString& v) {
                    int i = intFromText(v);
                    checkListIndex(l, i);
                    l.ListIndex = i;
                })
        .simple("Text", [](ListBox& l) { return l.Text(); });
    return t;
}

template <>
PropertyTable tableFor<ComboBox>()
{
    PropertyTable t;
    Builder<Control, ComboBox>(t).controlCommon().list()
        .simple("ListIndex", [](ComboBox& c) { return num(c.ListIndex); },
                [](ComboBox& c, const QString& v) {
                    int i = intFromText(v);
                    checkListIndex(c, i);
                    c.select(i);
                })
        .text("Text", &ComboBox::Text).integer("Style", &ComboBox::Style);
    return t;
}

template <>
PropertyTable tableFor<Panel>()
{
    PropertyTable t;
    Builder<Control, Panel>(t).controlCommon()
        .text("Caption", &Panel::Caption).integer("Alignment", &Panel::Alignment);
    return t;
}

template <>
PropertyTable tableFor<Frame>()
{
    PropertyTable t;
    Builder<Control, Frame>(t).controlCommon().text("Caption", &Frame::Caption);
    return t;
}

template <>
PropertyTable tableFor<Image>()
{
    PropertyTable t;
    Builder<Control, Image>(t).controlCommon()
        .text("Picture", &Image::Picture).flag("Stretch", &Image::Stretch)
        .integer("PictureWidth", &Image::PictureWidth).integer("PictureHeight", &Image::PictureHeight);
    return t;
}

template <>
PropertyTable tableFor<Grid>()
{
    PropertyTable t;
    Builder<Control, Grid>(t).controlCommon()
        .simple("Rows", [](Grid& g) { return num(g.rows()); },
                [](Grid& g, const QString& v) { g.setRows(intFromText(v)); })
        .simple("Cols", [](Grid& g) { return num(g.cols()); },
                [](Grid& g, const QString& v) { g.setCols(intFromText(v)); })
        .integer("Row", &Grid::Row).integer("Col", &Grid::Col)
        .integer("FixedRows", &Grid::FixedRows).integer("FixedCols", &Grid::FixedCols)
        .simple("Text", [](Grid& g) { return g.Text(); }, [](Grid& g, const QString& v) { g.setText(v); })
        .prop("TextMatrix", 2, [](Grid& g, const PropertyArgs& a) { return g.TextMatrix(a[0], a[1]); },
              [](Grid& g, const PropertyArgs& a, const QString& v) { g.setTextMatrix(a[0], a[1], v); })
        .prop("ColWidth", 1, [](Grid& g, const PropertyArgs& a) { return num(g.ColWidth(a[0])); },
              [](Grid& g, const PropertyArgs& a, const QString& v) { g.setColWidth(a[0], intFromText(v)); });
    return t;
}

template <>
PropertyTable tableFor<ScrollBar>()
{
    PropertyTable t;
    Builder<Control, ScrollBar>(t).controlCommon()
        .simple("Value", [](ScrollBar& s) { return num(s.Value); },
                [](ScrollBar& s, const QString& v) { s.setValue(intFromText(v)); })
        .integer("Min", &ScrollBar::Min).integer("Max", &ScrollBar::Max)
        .integer("SmallChange", &ScrollBar::SmallChange).integer("LargeChange", &ScrollBar::LargeChange);
    return t;
}

template <>
PropertyTable tableFor<Timer>()
{
    PropertyTable t;
    Builder<Control, Timer>(t).controlCommon().integer("Interval", &Timer::Interval);
    return t;
}

template <>
PropertyTable tableFor<MenuItem>()
{
    PropertyTable t;
    Builder<Control, MenuItem>(t).controlCommon()
        .text("Caption", &MenuItem::Caption).flag("Checked", &MenuItem::Checked)
        .simple("Parent", [](MenuItem& m) { return m.Parent; });
    return t;
}

}  // namespace

const PropertyTable& propertiesOf(ControlKind kind)
{
    static const std::map<ControlKind, PropertyTable> tables = {
        {ControlKind::TextBox, tableFor<TextBox>()},
        {ControlKind::RichText, tableFor<RichText>()},
        {ControlKind::Label, tableFor<Label>()},
        {ControlKind::Button, tableFor<Button>()},
        {ControlKind::CheckBox, tableFor<CheckBox>()},
        {ControlKind::OptionButton, tableFor<OptionButton>()},
        {ControlKind::ListBox, tableFor<ListBox>()},
        {ControlKind::ComboBox, tableFor<ComboBox>()},
        {ControlKind::Panel, tableFor<Panel>()},
        {ControlKind::Frame, tableFor<Frame>()},
        {ControlKind::Image, tableFor<Image>()},
        {ControlKind::Grid, tableFor<Grid>()},
        {ControlKind::ScrollBar, tableFor<ScrollBar>()},
        {ControlKind::Timer, tableFor<Timer>()},
        {ControlKind::MenuItem, tableFor<MenuItem>()},
    };
    return tables.at(kind);
}

const FormPropertyTable& formProperties()
{
    static const FormPropertyTable table = [] {
        FormPropertyTable t;
        Builder<Form, Form>(t).common<Form>()
            .text("Caption", &Form::Caption).integer("WindowState", &Form::WindowState)
            .flag("KeyPreview", &Form::KeyPreview)
            .simple("Loaded", [](Form& f) { return boolText(f.Loaded); });
        return t;
    }();
    return table;
}

}  // namespace mk
