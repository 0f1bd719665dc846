#pragma once
// The user-interface services on Qt: message boxes with the buttons, icons and default button
// of the old flags, answering with the old numbers; the input box; the common dialogs (open
// and save with the old filter text and the read-only box, colour, font, printer); forms
// shown modally in a nested event loop until they hide; DoEvents; beep, sounds, Shell.

#include "platform/user_interface.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QString>
#include <functional>
#include <vector>

class QCoreApplication;
class QDialog;
class QEventLoop;
class QMessageBox;
class QWidget;

namespace mk {

class Binder;

// Qt's own dialogs and buttons in German ("Ja", "Nein", "Abbrechen"): qtbase_de.qm from
// Qt's translations folder. False when it could not be loaded.
bool installGermanTranslations(QCoreApplication& app);

// The message box of MsgBox, ready to be shown: text, title, icon, buttons, default button.
// Escape answers only where the box has a Cancel button or a single OK.
QMessageBox* makeMessageBox(const QString& prompt, int buttons, const QString& title, QWidget* parent);
// The old answer number of the button that closed the box; the default answer when none did.
int messageBoxAnswer(const QMessageBox& box, int buttons);

class QtUserInterface : public UserInterface {
public:
    QtUserInterface() = default;
    ~QtUserInterface() override;

    // The binder that shows the forms; set once the system object and its binder exist.
    void setBinder(Binder* binder);
    // Called at the end of the program, after every loop of ours was told to stop.
    std::function<void()> onEnded;
    // The title of a box that is given none.
    QString appTitle = QStringLiteral("Merkkartelle");

    int MsgBox(const QString& prompt, int buttons = vbOKOnly, const QString& title = QString()) override;
    QString InputBox(const QString& prompt, const QString& title = QString(),
                     const QString& defaultText = QString()) override;
    FileChoice ShowOpen(const FileDialog& dialog) override;
    FileChoice ShowSave(const FileDialog& dialog) override;
    ColorChoice ShowColor(long initial) override;
    FontChoice ShowFont(const FontChoice& initial) override;
    PrinterChoice ShowPrinter(const PrinterDialog& dialog) override;
    void showForm(const QString& form, bool modal, const std::function<bool()>& stillShown) override;
    void hideForm(const QString& form) override;
    void DoEvents() override;
    void Beep() override;
    bool playSound(const QString& file, int flags) override;
    double Shell(const QString& commandLine, int windowStyle) override;
    void programEnded() override;
    QString clipboardText() override;
    void setClipboardText(const QString& text) override;

private:
    struct ModalLoop {
        QEventLoop* loop;
        std::function<bool()> stillShown;
    };
    int exec(QDialog& dialog);
    void throwIfEnded() const;
    void checkModalLoops();
    QWidget* parentWindow() const;
    FileChoice fileDialog(const FileDialog& dialog, bool open);

    Binder* binder_ = nullptr;
    std::vector<ModalLoop> loops_;
    std::vector<QPointer<QDialog>> dialogs_;
    bool ended_ = false;
    static constexpr int kRefreshEveryMs = 40;
    QElapsedTimer sinceRefresh_;
};

}  // namespace mk
