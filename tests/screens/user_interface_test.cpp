// The Qt user-interface services: the message box of the old flags, the input box, the open
// dialog with its read-only box, DoEvents.

#include "screens_fixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QFontDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

namespace mk::test {
namespace {

// Runs inspect on the dialog of type D as soon as it is shown.
template <class D>
void whenShown(std::function<void(D*)> inspect)
{
    QTimer::singleShot(0, [inspect] {
        auto* dialog = qobject_cast<D*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        inspect(dialog);
    });
}

TEST(QtMessageBox, ShowsTheOldFlagsAndAnswersWithTheOldNumbers)
{
    QtUserInterface ui;
    bool inspected = false;
    whenShown<QMessageBox>([&](QMessageBox* box) {
        EXPECT_EQ(box->text(), "Neuen Eintrag abbrechen ?\n            ");
        EXPECT_EQ(box->windowTitle(), "Neuen Eintrag abbrechen");
        EXPECT_EQ(box->icon(), QMessageBox::Critical);
        ASSERT_EQ(box->buttons().size(), 2);
        EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
        EXPECT_EQ(box->button(QMessageBox::Yes)->text(), "&Ja");
        EXPECT_EQ(box->button(QMessageBox::No)->text(), "&Nein");
        // A yes-or-no question has no way out by Esc.
        QTest::keyClick(box, Qt::Key_Escape);
        EXPECT_TRUE(box->isVisible());
        inspected = true;
        box->button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(ui.MsgBox(QStringLiteral("Neuen Eintrag abbrechen ?\r\n            "),
                        vbYesNo + vbCritical + vbDefaultButton2, QStringLiteral("Neuen Eintrag abbrechen")),
              vbYes);
    EXPECT_TRUE(inspected);

    whenShown<QMessageBox>([](QMessageBox* box) {
        EXPECT_EQ(box->windowTitle(), "Merkkartelle");  // no title: the program's
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        EXPECT_EQ(box->button(QMessageBox::Cancel)->text(), "Abbrechen");
        QTest::keyClick(box, Qt::Key_Escape);
    });
    EXPECT_EQ(ui.MsgBox(QStringLiteral("Weiter ?"), vbOKCancel + vbExclamation), vbCancel);

    whenShown<QMessageBox>([](QMessageBox* box) {
        ASSERT_EQ(box->buttons().size(), 3);
        EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::Ignore));
        box->button(QMessageBox::Retry)->click();
    });
    EXPECT_EQ(ui.MsgBox(QStringLiteral("Drucker ?"), vbAbortRetryIgnore + vbDefaultButton3), vbRetry);
}

TEST(QtInputBox, GivesTheTextOrTheEmptyTextWhenCancelled)
{
    QtUserInterface ui;
    whenShown<QInputDialog>([](QInputDialog* dialog) {
        EXPECT_EQ(dialog->labelText(), "Name der Liste:");
        EXPECT_EQ(dialog->textValue(), "Liste1");
        dialog->setTextValue(QStringLiteral("Kunden"));
        dialog->accept();
    });
    EXPECT_EQ(ui.InputBox(QStringLiteral("Name der Liste:"), QString(), QStringLiteral("Liste1")), "Kunden");
    whenShown<QInputDialog>([](QInputDialog* dialog) { dialog->reject(); });
    EXPECT_EQ(ui.InputBox(QStringLiteral("Name der Liste:"), QString(), QStringLiteral("Liste1")), "");
}

TEST(QtFileDialog, TheTickedReadOnlyBoxComesBackAsFlags1025)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("karten.mdb"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();

    QtUserInterface ui;
    FileDialog request;
    request.DialogTitle = QStringLiteral("Datenbank öffnen...");
    request.Filter = QStringLiteral("Datenbank (*.mdb)|*.mdb|");
    request.InitDir = folder.path();
    whenShown<QFileDialog>([&](QFileDialog* dialog) {
        EXPECT_EQ(dialog->windowTitle(), "Datenbank öffnen...");
        EXPECT_EQ(dialog->nameFilters(), QStringList{"Datenbank (*.mdb)"});
        auto* readOnly = dialog->findChild<QCheckBox*>("readOnly");
        ASSERT_NE(readOnly, nullptr);
        EXPECT_EQ(readOnly->text(), "Schreibgeschützt öffnen");
        readOnly->setChecked(true);
        dialog->selectFile(path);
        static_cast<QDialog*>(dialog)->accept();
    });
    FileChoice choice = ui.ShowOpen(request);
    EXPECT_FALSE(choice.cancelled);
    EXPECT_EQ(choice.FileName, QDir::toNativeSeparators(path));
    EXPECT_EQ(choice.Flags, 1025);

    whenShown<QFileDialog>([&](QFileDialog* dialog) {
        dialog->selectFile(path);
        static_cast<QDialog*>(dialog)->accept();
    });
    EXPECT_EQ(ui.ShowOpen(request).Flags, 0);

    whenShown<QFileDialog>([](QFileDialog* dialog) { dialog->reject(); });
    EXPECT_TRUE(ui.ShowOpen(request).cancelled);
}

TEST(QtColourAndFontDialogs, AnswerInTheOldColourLongsAndFontValues)
{
    QtUserInterface ui;
    whenShown<QColorDialog>([](QColorDialog* dialog) {
        EXPECT_EQ(dialog->currentColor(), QColor(0, 0, 128));  // the initial long 0x800000
        dialog->setCurrentColor(QColor(255, 128, 0));
        dialog->accept();
    });
    ColorChoice colour = ui.ShowColor(rgb(0, 0, 128));
    EXPECT_FALSE(colour.cancelled);
    EXPECT_EQ(colour.Color, rgb(255, 128, 0));
    whenShown<QColorDialog>([](QColorDialog* dialog) { dialog->reject(); });
    colour = ui.ShowColor(rgb(1, 2, 3));
    EXPECT_TRUE(colour.cancelled);
    EXPECT_EQ(colour.Color, rgb(1, 2, 3));

    whenShown<QFontDialog>([](QFontDialog* dialog) {
        QFont font(QStringLiteral("Liberation Sans"));
        font.setPointSizeF(14);
        font.setBold(true);
        dialog->setCurrentFont(font);
        dialog->accept();
    });
    const FontChoice font = ui.ShowFont(FontChoice{false, QStringLiteral("Arial"), 10, false, false});
    EXPECT_FALSE(font.cancelled);
    EXPECT_EQ(font.Name, "Liberation Sans");
    EXPECT_EQ(font.Size, 14);
    EXPECT_TRUE(font.Bold);
    EXPECT_FALSE(font.Italic);
}

class QtDoEventsTest : public ScreensTest {};

TEST_F(QtDoEventsTest, DoEventsShowsTheStateAndRunsTheWaitingClicks)
{
    show(QStringLiteral("Hauptmaske"));
    bool stop = false;
    app.handlers.on("Hauptmaske", "Command5", "Click", [&](Merkkartelle&, EventArgs&) { stop = true; });
    app.handlers.on("Hauptmaske", "NachAdresseSuchen", "Click", [&](Merkkartelle& a, EventArgs&) {
        // A long walk: it shows its progress and stops when the other button is pressed.
        for (int card = 1; card <= 1000 && !stop; ++card) {
            a.Hauptmaske.Label8.Caption = QStringLiteral("Karte %1").arg(card);
            if (card == 3)
                QTimer::singleShot(0, [&] { QTest::mouseClick(widget<QPushButton>(QStringLiteral("Hauptmaske.Command5")), Qt::LeftButton); });
            a.ui.DoEvents();
        }
    });
    QTest::mouseClick(widget<QPushButton>(QStringLiteral("Hauptmaske.NachAdresseSuchen")), Qt::LeftButton);
    EXPECT_TRUE(stop);
    EXPECT_EQ(app.Hauptmaske.Label8.Caption, "Karte 3");
    EXPECT_EQ(widget<QLabel>(QStringLiteral("Hauptmaske.Label8"))->text(), "Karte 3");
}

}  // namespace
}  // namespace mk::test
