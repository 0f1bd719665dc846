#include "forms/registry.h"

#include "forms/properties.h"

#include <QStringList>

namespace mk {

namespace {

bool sameName(const QString& a, const QString& b)
{
    return QString::compare(a, b, Qt::CaseInsensitive) == 0;
}

[[noreturn]] void fail(const QString& path, const QString& why)
{
    throw FormsError(QStringLiteral("%1: %2").arg(path, why));
}

PathStep parseStep(const QString& text, const QString& path)
{
    PathStep step;
    qsizetype open = text.indexOf(u'(');
    step.name = (open < 0 ? text : text.left(open)).trimmed();
    if (step.name.isEmpty())
        fail(path, QStringLiteral("empty name"));
    if (open < 0)
        return step;
    if (!text.endsWith(u')'))
        fail(path, QStringLiteral("unclosed parenthesis"));
    step.hasArgs = true;
    const QString inner = text.mid(open + 1, text.size() - open - 2);
    for (const QString& arg : inner.split(u',')) {
        bool ok = false;
        int n = arg.trimmed().toInt(&ok);
        if (!ok)
            fail(path, QStringLiteral("\"%1\" is not an index").arg(arg));
        step.args.push_back(n);
    }
    return step;
}

// "Font.Name" and its fellows are the same properties as FontName.
std::vector<PathStep> joinFontSteps(std::vector<PathStep> steps)
{
    if (steps.size() >= 2 && sameName(steps[steps.size() - 2].name, QStringLiteral("Font"))) {
        PathStep last = steps.back();
        steps.pop_back();
        steps.back().name = QStringLiteral("Font") + last.name;
    }
    return steps;
}

QString propertyValue(const QString& path, const std::function<QString()>& get)
{
    try {
        return get();
    } catch (const RuntimeError& e) {
        fail(path, e.Description);
    }
}

}  // namespace

std::vector<PathStep> splitPath(const QString& path)
{
    std::vector<PathStep> steps;
    int depth = 0;
    QString current;
    for (QChar ch : path) {
        if (ch == u'(')
            ++depth;
        else if (ch == u')')
            --depth;
        if (ch == u'.' && depth == 0) {
            steps.push_back(parseStep(current, path));
            current.clear();
        } else {
            current += ch;
        }
    }
    if (depth != 0)
        fail(path, QStringLiteral("unbalanced parentheses"));
    steps.push_back(parseStep(current, path));
    return joinFontSteps(std::move(steps));
}

QString ControlRef::path() const
{
    QString p = form;
    if (!name.isEmpty())
        p += u'.' + name;
    if (index >= 0)
        p += QStringLiteral("(%1)").arg(index);
    return p;
}

void FormRegistry::addEntry(Entry entry)
{
    for (const Entry& e : entries_)
        if (sameName(e.form->Name, entry.form->Name))
            throw FormsError(QStringLiteral("form %1 registered twice").arg(entry.form->Name));
    entries_.push_back(std::move(entry));
}

FormRegistry::Entry& FormRegistry::entry(const QString& form)
{
    for (Entry& e : entries_)
        if (sameName(e.form->Name, form))
            return e;
    throw FormsError(QStringLiteral("unknown form %1").arg(form));
}

const FormRegistry::Member* FormRegistry::member(const Entry& entry, const QString& name) const
{
    for (const Member& m : entry.members)
        if (sameName(m.name, name))
            return &m;
    return nullptr;
}

bool FormRegistry::hasForm(const QString& name) const
{
    for (const Entry& e : entries_)
        if (sameName(e.form->Name, name))
            return true;
    return false;
}

Form& FormRegistry::form(const QString& name)
{
    return *entry(name).form;
}

std::vector<QString> FormRegistry::formNames() const
{
    std::vector<QString> names;
    for (const Entry& e : entries_)
        names.push_back(e.form->Name);
    return names;
}

ControlRef FormRegistry::resolve(Entry& entry, const PathStep& step, const QString& path)
{
    const Member* m = member(entry, step.name);
    if (!m)
        fail(path, QStringLiteral("form %1 has no control %2").arg(entry.form->Name, step.name));
    ControlRef ref;
    ref.form = entry.form->Name;
    ref.name = m->name;
    ref.kind = m->kind;
    if (m->single) {
        if (step.hasArgs)
            fail(path, QStringLiteral("%1 is not a control array").arg(m->name));
        ref.control = m->single;
        return ref;
    }
    if (!step.hasArgs || step.args.size() != 1)
        fail(path, QStringLiteral("%1 is a control array: give one index").arg(m->name));
    ref.index = step.args[0];
    ref.control = m->array->find(ref.index);
    if (!ref.control)
        fail(path, QStringLiteral("%1 has no element %2").arg(m->name).arg(ref.index));
    return ref;
}

ControlRef FormRegistry::control(const QString& path)
{
    std::vector<PathStep> steps = splitPath(path);
    if (steps.size() > 2)
        fail(path, QStringLiteral("a control path is Form.Control or Form.Control(i)"));
    Entry& e = entry(steps[0].name);
    if (steps.size() == 1) {
        ControlRef ref;
        ref.form = e.form->Name;
        return ref;
    }
    return resolve(e, steps[1], path);
}

ControlRef FormRegistry::control(const QString& form, const QString& name, int index)
{
    PathStep step;
    step.name = name;
    if (index >= 0) {
        step.hasArgs = true;
        step.args = {index};
    }
    return resolve(entry(form), step, form + u'.' + name);
}

std::vector<ControlRef> FormRegistry::controls(const QString& form)
{
    Entry& e = entry(form);
    std::vector<ControlRef> out;
    for (const Member& m : e.members) {
        if (m.single) {
            out.push_back({e.form->Name, m.name, -1, m.kind, m.single});
            continue;
        }
        for (int i : m.array->indices())
            out.push_back({e.form->Name, m.name, i, m.kind, m.array->find(i)});
    }
    return out;
}

namespace {

struct Target {
    Form* form = nullptr;            // a form property
    ControlRef control;              // or a control's
    QString property;
    PropertyArgs args;
};

template <class Table>
const auto& lookUp(const Table& table, const Target& t, const QString& path, const QString& owner)
{
    auto it = table.find(t.property.toLower());
    if (it == table.end())
        fail(path, QStringLiteral("%1 has no property %2").arg(owner, t.property));
    if (int(t.args.size()) != it->second.argCount)
        fail(path, QStringLiteral("%1 takes %2 index value(s)").arg(t.property).arg(it->second.argCount));
    return it->second;
}

}  // namespace

QString FormRegistry::read(const QString& path)
{
    std::vector<PathStep> steps = splitPath(path);
    Entry& e = entry(steps[0].name);
    if (steps.size() == 2 && !member(e, steps[1].name)) {
        Target t{e.form, {}, steps[1].name, steps[1].args};
        const FormProperty& p = lookUp(formProperties(), t, path, e.form->Name);
        return p.get(*e.form, t.args);
    }
    if (steps.size() != 3)
        fail(path, QStringLiteral("a property path is Form.Property or Form.Control.Property"));
    Target t{nullptr, resolve(e, steps[1], path), steps[2].name, steps[2].args};
    const Property& p = lookUp(propertiesOf(t.control.kind), t, path, kindName(t.control.kind));
    return propertyValue(path, [&] { return p.get(*t.control.control, t.args); });
}

void FormRegistry::write(const QString& path, const QString& value)
{
    std::vector<PathStep> steps = splitPath(path);
    Entry& e = entry(steps[0].name);
    if (steps.size() == 2 && !member(e, steps[1].name)) {
        Target t{e.form, {}, steps[1].name, steps[1].args};
        const FormProperty& p = lookUp(formProperties(), t, path, e.form->Name);
        if (!p.set)
            fail(path, QStringLiteral("%1 is read-only").arg(t.property));
        p.set(*e.form, t.args, value);
        return;
    }
    if (steps.size() != 3)
        fail(path, QStringLiteral("a property path is Form.Property or Form.Control.Property"));
    Target t{nullptr, resolve(e, steps[1], path), steps[2].name, steps[2].args};
    const Property& p = lookUp(propertiesOf(t.control.kind), t, path, kindName(t.control.kind));
    if (!p.set)
        fail(path, QStringLiteral("%1 is read-only").arg(t.property));
    propertyValue(path, [&] {
        p.set(*t.control.control, t.args, value);
        return QString();
    });
    if (t.control.kind == ControlKind::OptionButton && sameName(t.property, QStringLiteral("Value"))
        && t.control.as<OptionButton>().Value)
        chooseOption(t.control);
}

void FormRegistry::chooseOption(const ControlRef& option)
{
    auto& chosen = option.as<OptionButton>();
    chosen.Value = true;
    for (const ControlRef& other : controls(option.form)) {
        if (other.kind != ControlKind::OptionButton || other.control == option.control)
            continue;
        auto& o = other.as<OptionButton>();
        bool sameArray = option.index >= 0 && other.name == option.name;
        bool sameGroup = !chosen.Group.isEmpty() && sameName(o.Group, chosen.Group);
        if (sameArray || sameGroup)
            o.Value = false;
    }
}

void applyClick(FormRegistry& forms, const ControlRef& ref)
{
    if (ref.is(ControlKind::CheckBox)) {
        auto& box = ref.as<CheckBox>();
        box.Value = box.Value == 0 ? 1 : 0;
    } else if (ref.is(ControlKind::Button)) {
        auto& button = ref.as<Button>();
        if (button.Ribbon)
            button.Value = !button.Value;
    } else if (ref.is(ControlKind::OptionButton)) {
        forms.chooseOption(ref);
    }
}

void FormRegistry::reset(const QString& form)
{
    entry(form).reset();
}

}  // namespace mk
