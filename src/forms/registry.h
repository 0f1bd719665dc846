#pragma once
// The control registry: every property of every form by a path such as
// "Hauptmaske.feld(4).Text", "mala.Schnelleauswahlliste.ItemData(0)",
// "Gitter.grid1.TextMatrix(1,2)" or "Hauptmaske.Caption". Values are read and written as
// text: booleans True/False, numbers in decimal, colours as decimal longs.
//
// Form and control names are matched without regard to case, and so are property names.
// A path that names no form, control, element or property, or a value of the wrong kind,
// raises FormsError: that is a fault of the caller, never a run-time error of the system.

#include "forms/controls.h"

#include <QString>
#include <exception>
#include <functional>
#include <string>
#include <vector>

namespace mk {

class FormsError : public std::exception {
public:
    explicit FormsError(QString message)
        : message_(std::move(message)), utf8_(message_.toStdString()) {}
    const char* what() const noexcept override { return utf8_.c_str(); }
    const QString& message() const { return message_; }

private:
    QString message_;
    std::string utf8_;
};

// One step of a path: a name and the numbers in parentheses behind it, if any.
struct PathStep {
    QString name;
    std::vector<int> args;
    bool hasArgs = false;
};

// Splits "Form.Control(i).Property(a,b)" into its steps. FormsError on a malformed path.
std::vector<PathStep> splitPath(const QString& path);

// A control found by path. For a path that names only a form, control is null.
struct ControlRef {
    QString form;      // the registered spelling of the form's name
    QString name;      // the control's name as declared ("" for the form itself)
    int index = -1;    // element of a control array, -1 for a single control
    ControlKind kind = ControlKind::Label;
    Control* control = nullptr;
    template <class T>
    T& as() const { return static_cast<T&>(*control); }
    bool is(ControlKind k) const { return control && kind == k; }
    QString path() const;  // "Form.Control(i)"
};

class FormRegistry {
public:
    FormRegistry() = default;
    FormRegistry(const FormRegistry&) = delete;
    FormRegistry& operator=(const FormRegistry&) = delete;

    // The one registration line of a form. The struct must outlive the registry; an unload
    // assigns a fresh struct in place, so its members keep their addresses.
    template <class F>
    void add(F& form)
    {
        Entry entry;
        entry.form = &form;
        MemberCollector collect{entry.members};
        form.eachControl(collect);
        entry.reset = [&form] { form = F{}; };
        addEntry(std::move(entry));
    }

    bool hasForm(const QString& name) const;
    Form& form(const QString& name);
    std::vector<QString> formNames() const;

    // The control a path names: "Form.Control" or "Form.Control(i)"; "Form" alone gives a
    // ref with no control.
    ControlRef control(const QString& path);
    ControlRef control(const QString& form, const QString& name, int index = -1);
    // Every control of a form, array elements one by one, in declaration order.
    std::vector<ControlRef> controls(const QString& form);

    QString read(const QString& path);
    void write(const QString& path, const QString& value);

    // Design values back: the form's struct replaced by a fresh one.
    void reset(const QString& form);

    // Sets an option button and clears the others of its group, as a click or a set of
    // Value to True does.
    void chooseOption(const ControlRef& option);

private:
    struct Member {
        QString name;
        ControlKind kind;
        Control* single = nullptr;
        ControlArrayBase* array = nullptr;
    };
    struct Entry {
        Form* form = nullptr;
        std::vector<Member> members;
        std::function<void()> reset;
    };
    struct MemberCollector {
        std::vector<Member>& out;
        template <class T>
        void operator()(const char* name, T& control)
        {
            out.push_back({QString::fromUtf8(name), T::kind, &control, nullptr});
        }
        template <class T>
        void operator()(const char* name, ControlArray<T>& array)
        {
            out.push_back({QString::fromUtf8(name), T::kind, nullptr, &array});
        }
    };

    void addEntry(Entry entry);
    Entry& entry(const QString& form);
    const Member* member(const Entry& entry, const QString& name) const;
    ControlRef resolve(Entry& entry, const PathStep& step, const QString& path);

    std::vector<Entry> entries_;
};

// What a user's click does to a control's state before its Click event: a check box
// toggles, a check ribbon toggles its Value, an option button is chosen in its group.
void applyClick(FormRegistry& forms, const ControlRef& ref);

}  // namespace mk
