#pragma once
// The system object: the program's working memory, as the forms and module variables were.
// It holds the database session, the module variables, every form, the handler table, and
// the user-interface services and the clock it runs with. Handlers are plain functions over
// it: void NeueAdresse_Click(Merkkartelle&), void feld_Change(Merkkartelle&, int index).
//
// The form life cycle lives here too, since Load/Activate/Unload run handlers:
// loadForm, showForm, hideForm, unloadForm, raiseEvent, End and advanceClock.

#include "forms/about_box.h"
#include "forms/config.h"
#include "forms/call_log.h"
#include "forms/dialer.h"
#include "forms/form10.h"
#include "forms/aform.h"
#include "forms/cidadefrm.h"
#include "forms/etiquet.h"
#include "forms/form5.h"
#include "forms/form4.h"
#include "forms/form6.h"
#include "forms/frm_export.h"
#include "forms/gitter.h"
#include "forms/mala.h"
#include "forms/malaglobalview.h"
#include "forms/malasp.h"
#include "forms/replay.h"
#include "forms/schnellsuchen.h"
#include "forms/senha.h"
#include "forms/search.h"
#include "forms/selektierung.h"
#include "forms/suchergebnis.h"
#include "forms/typenliste_benutzerdefiniert.h"
#include "forms/events.h"
#include "forms/form2.h"
#include "forms/form3.h"
#include "forms/hauptmaske.h"
#include "forms/message.h"
#include "forms/registry.h"
#include "forms/timers.h"
#include "platform/clock.h"
#include "platform/printer.h"
#include "platform/serial_port.h"
#include "platform/store.h"
#include "platform/user_interface.h"

#include <QByteArray>
#include <QString>
#include <array>

namespace mk {

struct Merkkartelle {
    Merkkartelle(UserInterface& ui, Clock& clock);
    Merkkartelle(const Merkkartelle&) = delete;
    Merkkartelle& operator=(const Merkkartelle&) = delete;

    UserInterface& ui;
    Clock& clock;
    // The serial ports behind the dialer's Comm1: this machine's devices, unless a test or
    // the driver puts its own in.
    DeviceSerialPorts deviceSerialPorts;
    SerialPorts* serialPorts = &deviceSerialPorts;

    // --- the database session -------------------------------------------------------------
    DatabasePtr Kartendatenbank;
    RecordsetPtr Kartensatz;
    DatabasePtr Zweitdatenbank;
    RecordsetPtr Zweitsatz;
    DatabasePtr Anrufdatenbank;
    RecordsetPtr Anrufsatz;
    DatabasePtr Gesamtdatenbank;
    RecordsetPtr Gesamtsatz;

    // The four values of MERKKARTELLE.INI.
    QString Arbeitsverzeichnis;
    QString Datenbankdatei = QStringLiteral("merkkartelle.mdb");
    QString Tabellenname = QStringLiteral("Adressenstamm");
    QString NurLesen = QStringLiteral("0");

    // --- order, selection, editing ----------------------------------------------------------
    QString Sortierfeld;
    QString SortierfeldAlt;
    QString Typfilter;
    QString Typmaske;
    QString Selektionsfilter;
    QString Typzeichen;            // the Typ text of the card last shown
    int NeuerEintrag = 0;          // -1 while a new card is open
    QByteArray Lesezeichen;        // bookmark taken when an edit starts
    QString GesuchteNummer;        // the running number to find again after a save
    // The typing slot of the mask that last got the focus ("Hauptmaske.feld(4)"); the cut,
    // copy and paste buttons act on it, since clicking them takes the focus away from it.
    QString Fokusfeld;
    // The control that has the focus as far as the system knows (set when its GotFocus is
    // raised, cleared by its LostFocus), and the focus a handler asked for, which the screens
    // carry out and clear after the handler; both "Form.Control(i)". See card/focus.h.
    QString Fokus;
    QString FokusAnfrage;

    // --- the search state shared by the quick and the full search ---------------------------
    QString Suchtext;
    int Suchfeld = 0;
    QString Suchkriterium;
    QString LetzterSuchtext;
    QByteArray Suchbookmark;
    int SuchErgebnis = 0;
    QString GewaehlteNummer;

    // --- tables of the modules ---------------------------------------------------------------
    std::array<QString, 201> Einstellungsliste;  // record n of the settings file, 0 to 200
    std::array<QString, 51> DruckFelder;         // the print copy of one card, 0 to 50
    std::array<QString, 101> Kartenpuffer;       // the card copied by menucopy, 0 to 100
    std::array<QString, 8> Typenbenennung;       // the seven type names, 1 to 7
    std::array<QString, 101> Feldbenennung;      // values read from a .den file, 0 to 24 used
    QString DezimalZeichen = QStringLiteral(",");
    int Passwortmodus = 0;                       // 0 login at start, 1 change of the password
    bool PasswortAngenommen = false;             // the word typed into senha was the stored one

    // --- the forms ------------------------------------------------------------------------------
    mk::Hauptmaske Hauptmaske;
    mk::Message Message;
    mk::AboutBox AboutBox;
    mk::Form3 Form3;
    mk::Form2 Form2;
    mk::config config;
    mk::etiquet etiquet;
    mk::Form5 Form5;
    mk::Form6 Form6;
    mk::form4 form4;
    mk::malaview malaview;
    mk::senha senha;
    mk::mala mala;
    mk::malasp malasp;
    mk::Schnellsuchen Schnellsuchen;
    mk::Suchergebnis Suchergebnis;
    mk::Procurar Procurar;
    mk::replay replay;
    mk::search search;
    mk::Gitter Gitter;
    mk::Selektierung Selektierung;
    mk::Cidadefrm Cidadefrm;
    mk::frmExport frmExport;
    mk::Aform Aform;
    mk::malaglobalview malaglobalview;
    mk::DIALER DIALER;
    mk::Form10 Form10;
    mk::Form1 Form1;
    mk::malatelephone malatelephone;
    mk::Formtel Formtel;
    mk::TypenlisteBenutzerdefiniert TypenlisteBenutzerdefiniert;

    // The Printer and the drawing surfaces of the forms.
    PrintDevices printing;
    // BogenHoehe and its copy: the sheet height in centimetres of the last label run.
    double BogenHoehe = 0;
    double BogenHoeheKopie = 0;
    QString GeburtstagFilter;  // the criterion of the birthday list

    FormRegistry forms;
    HandlerTable handlers;
    TimerSchedule timers;
    QString activeForm;  // the form that had the last Activate
    bool ended = false;  // End has run
};

// Fills the handler table with every subsystem's handlers (one registration line each).
void registerAllHandlers(HandlerTable& table);

// Runs the handler of an event, if one is registered; path is "Form" for the form's own
// events, "Form.Control" or "Form.Control(i)" (the index goes to args.Index). Raises
// FormsError for a path that names nothing. True when a handler ran.
bool raiseEvent(Merkkartelle& app, const QString& path, const QString& event, EventArgs& args);
bool raiseEvent(Merkkartelle& app, const QString& path, const QString& event);

// The form life cycle, by form name or by the form struct itself.
// Load: once, before the first show; fires Load.
void loadForm(Merkkartelle& app, const QString& form);
// Show: loads when needed, makes visible, fires Activate, and for a modal show stays in the
// user interface's loop until the form is hidden or unloaded.
void showForm(Merkkartelle& app, const QString& form, bool modal = false);
void hideForm(Merkkartelle& app, const QString& form);
// Unload: QueryUnload and Unload may cancel (args.Cancel); otherwise the form is hidden and
// replaced by a fresh struct, with its design values. True when it was unloaded.
bool unloadForm(Merkkartelle& app, const QString& form, int unloadMode = 1);
inline void loadForm(Merkkartelle& app, const Form& form) { loadForm(app, form.Name); }
inline void showForm(Merkkartelle& app, const Form& form, bool modal = false) { showForm(app, form.Name, modal); }
inline void hideForm(Merkkartelle& app, const Form& form) { hideForm(app, form.Name); }
inline bool unloadForm(Merkkartelle& app, const Form& form, int unloadMode = 1)
{
    return unloadForm(app, form.Name, unloadMode);
}

// End: the program stops at once; every running handler and modal loop unwinds.
[[noreturn]] void End(Merkkartelle& app);

// The driver's wait: moves the clock on and fires every form timer that falls due, in time
// order, through the handler table.
void advanceClock(Merkkartelle& app, qint64 ms);

}  // namespace mk
