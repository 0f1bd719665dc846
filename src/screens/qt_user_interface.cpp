#include "screens/qt_user_interface.h"

#include "forms/events.h"
#include "platform/runtime_error.h"
#include "screens/binder.h"
#include "screens/conversions.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCheckBox>
#include <QClipboard>
#include <QColorDialog>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QGuiApplication>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTranslator>
#include <memory>

namespace mk {

bool installGermanTranslations(QCoreApplication& app)
{
    auto* translator = new QTranslator(&app);
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (!translator->load(QLocale(QLocale::German, QLocale::Germany), QStringLiteral("qtbase"), QStringLiteral("_"),
                          folder)) {
        delete translator;
        return false;
    }
    app.installTranslator(translator);
    return true;
}

namespace {

QMessageBox::StandardButton standardButton(int answer)
{
    switch (answer) {
    case vbOK: return QMessageBox::Ok;
    case vbCancel: return QMessageBox::Cancel;
    case vbAbort: return QMessageBox::Abort;
    case vbRetry: return QMessageBox::Retry;
    case vbIgnore: return QMessageBox::Ignore;
    case vbYes: return QMessageBox::Yes;
    case vbNo: return QMessageBox::No;
    default: return QMessageBox::NoButton;
    }
}

QMessageBox::Icon messageIcon(int buttons)
{
    switch (msgBoxIcon(buttons)) {
    case vbCritical: return QMessageBox::Critical;
    case vbQuestion: return QMessageBox::Question;
    case vbExclamation: return QMessageBox::Warning;
    case vbInformation: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

// A box whose buttons give no way out (Yes/No, Abort/Retry/Ignore) ignores Esc and the
// close button of its frame, as the old boxes did.
class VbMessageBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;
    bool escapable = true;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (!escapable && event->key() == Qt::Key_Escape)
            return;
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override
    {
        if (!escapable) {
            event->ignore();
            return;
        }
        QMessageBox::closeEvent(event);
    }
};

QString plainLines(const QString& text)
{
    QString out = text;
    out.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    out.replace(u'\r', u'\n');
    return out;
}

}  // namespace

QMessageBox* makeMessageBox(const QString& prompt, int buttons, const QString& title, QWidget* parent)
{
    auto* box = new VbMessageBox(parent);
    box->setWindowTitle(title);
    box->setTextFormat(Qt::PlainText);
    box->setText(plainLines(prompt));
    box->setIcon(messageIcon(buttons));
    const std::vector<int> answers = msgBoxAnswers(buttons);
    QAbstractButton* escape = nullptr;
    for (int answer : answers) {
        QPushButton* button = box->addButton(standardButton(answer));
        if (answer == vbCancel || answers.size() == 1)
            escape = button;
    }
    box->setDefaultButton(standardButton(msgBoxDefault(buttons)));
    box->setEscapeButton(escape);
    box->escapable = escape != nullptr;
    return box;
}

int messageBoxAnswer(const QMessageBox& box, int buttons)
{
    QAbstractButton* clicked = box.clickedButton();
    if (!clicked)
        return msgBoxDefault(buttons);
    for (int answer : msgBoxAnswers(buttons))
        if (box.standardButton(clicked) == standardButton(answer))
            return answer;
    return msgBoxDefault(buttons);
}

QtUserInterface::~QtUserInterface() = default;

void QtUserInterface::setBinder(Binder* binder)
{
    binder_ = binder;
    if (binder_)
        binder_->afterRefresh = [this] { checkModalLoops(); };
}

QWidget* QtUserInterface::parentWindow() const
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

int QtUserInterface::exec(QDialog& dialog)
{
    if (binder_)
        binder_->refresh();  // the screen shows the state the question is about
    dialogs_.emplace_back(&dialog);
    const int result = dialog.exec();
    dialogs_.pop_back();
    throwIfEnded();
    return result;
}

void QtUserInterface::throwIfEnded() const
{
    if (ended_)
        throw ProgramEnded();
}

int QtUserInterface::MsgBox(const QString& prompt, int buttons, const QString& title)
{
    std::unique_ptr<QMessageBox> box(makeMessageBox(prompt, buttons, title.isEmpty() ? appTitle : title,
                                                    parentWindow()));
    exec(*box);
    return messageBoxAnswer(*box, buttons);
}

QString QtUserInterface::InputBox(const QString& prompt, const QString& title, const QString& defaultText)
{
    QInputDialog dialog(parentWindow());
    dialog.setWindowTitle(title.isEmpty() ? appTitle : title);
    dialog.setLabelText(plainLines(prompt));
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setTextValue(defaultText);
    if (exec(dialog) != QDialog::Accepted)
        return QString();
    return dialog.textValue();
}

FileChoice QtUserInterface::fileDialog(const FileDialog& d, bool open)
{
    QFileDialog dialog(parentWindow(), d.DialogTitle);
    // Our own dialog: the platform's has no room for the read-only box.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(open && (d.Flags & cdlOFNFileMustExist) ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    if (!open && !(d.Flags & cdlOFNOverwritePrompt))
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
    const QStringList filters = qtNameFilters(d.Filter);
    const bool pattern = d.FileName.contains(u'*') || d.FileName.contains(u'?');
    if (!filters.isEmpty())
        dialog.setNameFilters(filters);
    else if (pattern)
        dialog.setNameFilter(d.FileName);
    if (d.FilterIndex >= 1 && d.FilterIndex <= filters.size())
        dialog.selectNameFilter(filters[d.FilterIndex - 1]);
    if (!d.InitDir.isEmpty())
        dialog.setDirectory(d.InitDir);
    if (!d.FileName.isEmpty() && !pattern)
        dialog.selectFile(d.FileName);
    if (!d.DefaultExt.isEmpty())
        dialog.setDefaultSuffix(d.DefaultExt);
    QCheckBox* readOnly = nullptr;
    if (open && !(d.Flags & cdlOFNHideReadOnly)) {
        readOnly = new QCheckBox(QStringLiteral("Schreibgeschützt öffnen"), &dialog);
        readOnly->setObjectName(QStringLiteral("readOnly"));
        readOnly->setChecked(d.Flags & cdlOFNReadOnly);
        if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout()))
            grid->addWidget(readOnly, grid->rowCount(), 0, 1, grid->columnCount());
    }
    FileChoice choice;
    choice.Flags = d.Flags;
    if (exec(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return choice;
    choice.cancelled = false;
    choice.FileName = QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
    if (open)
        choice.Flags = openDialogFlags(d, readOnly && readOnly->isChecked());
    return choice;
}

FileChoice QtUserInterface::ShowOpen(const FileDialog& dialog)
{
    return fileDialog(dialog, true);
}

FileChoice QtUserInterface::ShowSave(const FileDialog& dialog)
{
    return fileDialog(dialog, false);
}

ColorChoice QtUserInterface::ShowColor(long initial)
{
    QColorDialog dialog(toQColor(initial).isValid() ? toQColor(initial) : QColor(Qt::white), parentWindow());
    ColorChoice choice;
    choice.Color = initial;
    if (exec(dialog) != QDialog::Accepted)
        return choice;
    choice.cancelled = false;
    choice.Color = toVbColour(dialog.selectedColor());
    return choice;
}

FontChoice QtUserInterface::ShowFont(const FontChoice& initial)
{
    FontSpec start;
    if (!initial.Name.isEmpty())
        start.Name = initial.Name;
    if (initial.Size > 0)
        start.Size = initial.Size;
    start.Bold = initial.Bold;
    start.Italic = initial.Italic;
    QFontDialog dialog(toQFont(start, QApplication::font()), parentWindow());
    FontChoice choice = initial;
    choice.cancelled = true;
    if (exec(dialog) != QDialog::Accepted)
        return choice;
    const FontSpec chosen = toFontSpec(dialog.selectedFont());
    return FontChoice{false, chosen.Name, chosen.Size, chosen.Bold, chosen.Italic};
}

PrinterChoice QtUserInterface::ShowPrinter(const PrinterDialog& d)
{
    QPrinter printer;
    printer.setCopyCount(std::max(1, d.Copies));
    QPrintDialog dialog(&printer, parentWindow());
    if (!d.DialogTitle.isEmpty())
        dialog.setWindowTitle(d.DialogTitle);
    PrinterChoice choice;
    choice.Flags = d.Flags;
    choice.Copies = d.Copies;
    if (exec(dialog) != QDialog::Accepted)
        return choice;
    choice.cancelled = false;
    choice.Copies = printer.copyCount();
    choice.PrinterName = printer.printerName();
    choice.Flags = (d.Flags & ~cdlPDSelection)
                   | (dialog.printRange() == QAbstractPrintDialog::Selection ? cdlPDSelection : 0);
    return choice;
}

void QtUserInterface::showForm(const QString& form, bool modal, const std::function<bool()>& stillShown)
{
    if (!binder_)
        return;
    binder_->setModal(form, modal);
    binder_->refresh();
    throwIfEnded();
    if (!modal || !binder_->window(form))
        return;
    // The handler that showed the form waits here, while the program goes on around it.
    QEventLoop loop;
    loops_.push_back({&loop, stillShown});
    if (stillShown())
        loop.exec(QEventLoop::DialogExec);
    loops_.pop_back();
    binder_->setModal(form, false);
    throwIfEnded();
}

void QtUserInterface::hideForm(const QString&)
{
    if (binder_)
        binder_->refresh();
}

void QtUserInterface::checkModalLoops()
{
    for (const ModalLoop& modal : loops_)
        if (!modal.stillShown())
            modal.loop->quit();
}

void QtUserInterface::DoEvents()
{
    // A long walk calls this once per card: the screen follows often enough for the eye,
    // not at every card. Handlers run meanwhile refresh for themselves.
    if (binder_ && (!sinceRefresh_.isValid() || sinceRefresh_.elapsed() >= kRefreshEveryMs)) {
        binder_->refresh();
        sinceRefresh_.start();
    }
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    throwIfEnded();
}

void QtUserInterface::Beep()
{
    QApplication::beep();
}

bool QtUserInterface::playSound(const QString& file, int)
{
    if (!QFileInfo(file).isFile())
        return false;
    for (const char* player : {"paplay", "aplay"}) {
        const QString program = QStandardPaths::findExecutable(QString::fromLatin1(player));
        if (!program.isEmpty())
            return QProcess::startDetached(program, {file});
    }
    return false;
}

double QtUserInterface::Shell(const QString& commandLine, int)
{
    QStringList args = QProcess::splitCommand(commandLine);
    qint64 pid = 0;
    if (args.isEmpty())
        throw RuntimeError(err::FileNotFound, QStringLiteral("File not found"));
    const QString program = args.takeFirst();
    if (!QProcess::startDetached(program, args, QString(), &pid))
        throw RuntimeError(err::FileNotFound, QStringLiteral("File not found"));
    return double(pid);
}

QString QtUserInterface::clipboardText()
{
    return QGuiApplication::clipboard()->text();
}

void QtUserInterface::setClipboardText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

void QtUserInterface::programEnded()
{
    ended_ = true;
    for (const ModalLoop& modal : loops_)
        modal.loop->quit();
    for (const QPointer<QDialog>& dialog : dialogs_)
        if (dialog)
            dialog->done(QDialog::Rejected);
    if (onEnded)
        onEnded();
}

}  // namespace mk
