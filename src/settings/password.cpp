#include "settings/password.h"

#include "card/app_state.h"
#include "card/focus.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text_files.h"

#include <QFile>

namespace mk {

namespace {

constexpr int kSndAsync = 1;

senha& form(Merkkartelle& app) { return app.senha; }

void verzeichnisSetzen(const QString& verzeichnis)
{
    underIgnoredErrors([&] { ChDrive(verzeichnis.left(2)); });
    underIgnoredErrors([&] { ChDir(verzeichnis); });
}

void Buchstaben(Merkkartelle& app, bool gross)
{
    for (auto& [i, taste] : form(app).tecla)
        taste.Caption = teclaCaption(i, gross);
}

void Eingabefeld(Merkkartelle& app)
{
    TextBox& text = form(app).Text2;
    text.SelStart = int(text.Text.size());
    text.SelLength = 0;
    underIgnoredErrors([&] { SetFocus(app, QStringLiteral("senha.Text2")); });
}

void falschesPasswort(Merkkartelle& app)
{
    app.ui.MsgBox(QStringLiteral("Falsches Passwort - Programm wird beendet !"));
    End(app);
}

void senha_Load(Merkkartelle& app)
{
    Buchstaben(app, form(app).MhState1.checked());
}

// Reading the stored word.
void senha_Activate(Merkkartelle& app)
{
    auto& f = form(app);
    f.Text2.PasswordChar = QStringLiteral("*");
    f.Label3.Caption = app.Arbeitsverzeichnis;
    verzeichnisSetzen(f.Label3.Caption);
    const bool gelesen = underIgnoredErrors([&] {
        TextReader datei(kPasswortDatei);
        f.Label1.Caption = datei.next();
    });
    f.Text2.Text.clear();
    Eingabefeld(app);
    if (!gelesen) {
        app.ui.MsgBox(QStringLiteral("Erstellen Sie ein neues Passwort !"));
        f.Command1.Visible = true;
    }
}

// The test is made at the moment the typed word is as long as the stored one: one try.
void Text2_Change(Merkkartelle& app)
{
    auto& f = form(app);
    if (app.config.SSCheck7.checked())
        app.ui.playSound(joinPath(app.Arbeitsverzeichnis, QStringLiteral("senha.wav")), kSndAsync);
    f.Text2.PasswordChar = QStringLiteral("*");
    if (f.Command1.Visible || f.Text2.Text.size() != f.Label1.Caption.size())
        return;
    if (f.Text2.Text != f.Label1.Caption)
        falschesPasswort(app);
    if (app.Passwortmodus == 0) {
        app.PasswortAngenommen = true;
        hideForm(app, app.senha);
        return;
    }
    for (Control* c : std::initializer_list<Control*>{&f.Command1, &f.Command2, &f.Command3, &f.Label4})
        c->Visible = true;
    f.Text2.Text.clear();
    f.Label6.Caption.clear();
}

void Speichern_Click(Merkkartelle& app)
{
    auto& f = form(app);
    if (f.Text2.Text.isEmpty())
        return;
    verzeichnisSetzen(f.Label3.Caption);
    underIgnoredErrors([&] { PasswortdateiSchreiben(kPasswortDatei, f.Text2.Text); });
    f.Command1.Visible = false;
    f.Command2.Visible = false;
    f.Label1.Visible = false;
    f.Text2.Text.clear();
    unloadForm(app, app.senha);
}

void Loeschen_Click(Merkkartelle& app)
{
    auto& f = form(app);
    verzeichnisSetzen(f.Label3.Caption);
    QString vorhanden;
    underIgnoredErrors([&] { vorhanden = Dir(kPasswortDatei); });
    if (!vorhanden.isEmpty() && app.ui.MsgBox(QStringLiteral("Wollen Sie das Passwort löschen ?"), vbYesNo) == vbYes)
        underIgnoredErrors([&] { Kill(kPasswortDatei); });
    f.Command1.Visible = false;
    f.Command2.Visible = false;
    f.Command3.Visible = false;
    f.Text2.Text.clear();
    unloadForm(app, app.senha);
}

void tecla_Click(Merkkartelle& app, int index)
{
    auto& f = form(app);
    const QString zeichen = f.tecla[index].Caption;
    f.Text2.Text += zeichen;
    f.Label6.Caption += zeichen;
    Eingabefeld(app);
    raiseEvent(app, QStringLiteral("senha.Text2"), QStringLiteral("Change"));
}

void tecla_MouseMove(Merkkartelle& app, int index)
{
    const QString zeichen = form(app).tecla[index].Caption;
    QString name = zeichen;
    if (zeichen == QStringLiteral(","))
        name = QStringLiteral("Komma");
    else if (zeichen == QStringLiteral("."))
        name = QStringLiteral("Punkt");
    else if (zeichen == QStringLiteral(" "))
        name = QStringLiteral("Freistelle");
    form(app).infotec.Caption = name;
}

// The back key.
void Zurueck_Click(Merkkartelle& app)
{
    auto& f = form(app);
    f.Text2.Text.chop(1);
    f.Label6.Caption.chop(1);
    Eingabefeld(app);
}

}  // namespace

void PasswortdateiSchreiben(const QString& path, const QString& word)
{
    // The file is made private before the word goes into it.
    QFile datei(resolvePath(path));
    if (!datei.open(QIODevice::WriteOnly | QIODevice::Append))
        raiseFileError(err::PermissionDenied);
    datei.close();
    datei.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    writePositionalFile(path, {WriteValue(word)});
}

bool PasswortAbfragen(Merkkartelle& app)
{
    QString vorhanden;
    underIgnoredErrors([&] { vorhanden = Dir(joinPath(app.Arbeitsverzeichnis, kPasswortDatei)); });
    if (vorhanden.isEmpty())
        return true;
    app.Passwortmodus = 0;
    app.PasswortAngenommen = false;
    form(app).Text2.Text.clear();
    showForm(app, app.senha, true);
    const bool angenommen = app.PasswortAngenommen;
    unloadForm(app, app.senha);
    return angenommen;
}

void menusenha_Click(Merkkartelle& app)
{
    app.Passwortmodus = 1;
    loadForm(app, app.senha);
    form(app).Text2.Text.clear();
    showForm(app, app.senha, true);
}

void registerPasswordHandlers(HandlerTable& table)
{
    const QString f = QStringLiteral("senha");
    const QString click = QStringLiteral("Click");
    table.on(QStringLiteral("Hauptmaske"), QStringLiteral("menusenha"), click, menusenha_Click);
    table.onForm(f, QStringLiteral("Load"), [](Merkkartelle& app, EventArgs&) { senha_Load(app); });
    table.onForm(f, QStringLiteral("Activate"), [](Merkkartelle& app, EventArgs&) { senha_Activate(app); });
    table.on(f, QStringLiteral("Text2"), QStringLiteral("Change"), Text2_Change);
    table.on(f, QStringLiteral("tecla"), click, tecla_Click);
    table.on(f, QStringLiteral("tecla"), QStringLiteral("MouseMove"), tecla_MouseMove);
    table.on(f, QStringLiteral("SSCommand1"), click, Zurueck_Click);
    table.on(f, QStringLiteral("SSCommand2"), click, +[](Merkkartelle& app) { End(app); });
    table.on(f, QStringLiteral("Command1"), click, Speichern_Click);
    table.on(f, QStringLiteral("Command2"), click, +[](Merkkartelle& app) { unloadForm(app, app.senha); });
    table.on(f, QStringLiteral("Command3"), click, Loeschen_Click);
    table.on(f, QStringLiteral("MhState1"), click, +[](Merkkartelle& app) { Buchstaben(app, form(app).MhState1.checked()); });
    table.on(f, QStringLiteral("MhState1"), QStringLiteral("Change"),
             +[](Merkkartelle& app) { Buchstaben(app, form(app).MhState1.checked()); });
    for (const char* label : {"Label3", "Label5"})
        table.on(f, QString::fromLatin1(label), click, +[](Merkkartelle& app) { Eingabefeld(app); });
}

}  // namespace mk
