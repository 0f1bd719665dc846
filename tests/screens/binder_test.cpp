// The binder: input reaches the state before the handler, the handler's state reaches the
// widgets, keys go through the form first, hints reach the status line, modal forms wait.

#include "screens_fixture.h"

#include "card/edit_clipboard.h"
#include "card/field_checks.h"
#include "card/focus.h"
#include "screens/conversions.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <vector>

namespace mk::test {
namespace {

class BinderTest : public ScreensTest {
protected:
    BinderTest() { show(QStringLiteral("Hauptmaske")); }

    void moveOver(QWidget* w, QPoint at = QPoint(3, 3))
    {
        // Each movement lands somewhere new: the same spot twice is no movement.
        static int step = 0;
        at += QPoint(step % 2, 0);
        ++step;
        QMouseEvent move(QEvent::MouseMove, at, w->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(w, &move);
    }
    // Types text key by key; letters outside ASCII as their own keys.
    static void typeText(QWidget* w, const QString& text)
    {
        for (QChar ch : text) {
            if (ch.unicode() < 128)
                QTest::keyClick(w, char(ch.unicode()));
            else
                QTest::sendKeyEvent(QTest::Click, w, Qt::Key(ch.toUpper().unicode()), QString(ch), Qt::NoModifier);
        }
    }
    QString statusLine() { return widget<QLabel>(QStringLiteral("Hauptmaske.Panel3D3"))->text(); }
};

TEST_F(BinderTest, TypingUpdatesTheTextThenFiresChangeOncePerEdit)
{
    std::vector<QString> seen;
    app.handlers.on("Hauptmaske", "feld", "Change", [&](Merkkartelle& a, EventArgs& args) {
        seen.push_back(QStringLiteral("%1:%2").arg(args.Index).arg(a.Hauptmaske.feld[args.Index].Text));
    });
    auto* box = widget<QLineEdit>(QStringLiteral("Hauptmaske.feld(4)"));
    typeText(box, QStringLiteral("Mül"));
    EXPECT_EQ(app.Hauptmaske.feld[4].Text, "Mül");
    EXPECT_EQ(app.Hauptmaske.feld[4].SelStart, 3);
    EXPECT_EQ(seen, (std::vector<QString>{"4:M", "4:Mü", "4:Mül"}));

    // A paste is one edit, whatever its length.
    seen.clear();
    QApplication::clipboard()->setText(QStringLiteral("ler-Lüdenscheidt"));
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(app.Hauptmaske.feld[4].Text, "Müller-Lüdenscheidt");
    EXPECT_EQ(seen, (std::vector<QString>{"4:Müller-Lüdenscheidt"}));

    // Code that sets the text fires no Change through the widget.
    seen.clear();
    binder.run([&] { app.Hauptmaske.feld[4].Text = QStringLiteral("Meier"); });
    EXPECT_EQ(box->text(), "Meier");
    EXPECT_TRUE(seen.empty());
}

TEST_F(BinderTest, AHandlerThatCutsTheTextAndSetsTheCaretIsShownAsItLeftIt)
{
    app.handlers.on("Hauptmaske", "feld", "Change", [](Merkkartelle& a, EventArgs& args) {
        TextBox& slot = a.Hauptmaske.feld[args.Index];
        if (slot.Text.size() > 5) {
            slot.Text = slot.Text.left(5);
            slot.SelStart = 5;
        }
    });
    auto* box = widget<QLineEdit>(QStringLiteral("Hauptmaske.feld(9)"));
    QTest::keyClicks(box, QStringLiteral("1234567"));
    EXPECT_EQ(box->text(), "12345");
    EXPECT_EQ(box->cursorPosition(), 5);
    EXPECT_EQ(app.Hauptmaske.feld[9].Text, "12345");
}

TEST_F(BinderTest, NotesKeepTheirLineBreaksAsCrLfInTheState)
{
    int changes = 0;
    app.handlers.on("Hauptmaske", "Bemerkung", "Change", [&](Merkkartelle&, EventArgs&) { ++changes; });
    binder.run([&] { app.Hauptmaske.Bemerkung.Text = QStringLiteral("erste\r\nzweite"); });
    auto* notes = widget<QTextEdit>(QStringLiteral("Hauptmaske.Bemerkung"));
    EXPECT_EQ(notes->toPlainText(), "erste\nzweite");
    EXPECT_EQ(changes, 0);
    notes->moveCursor(QTextCursor::End);
    QTest::keyClicks(notes, QStringLiteral("!"));
    EXPECT_EQ(app.Hauptmaske.Bemerkung.Text, "erste\r\nzweite!");
    EXPECT_EQ(app.Hauptmaske.Bemerkung.SelStart, 14);
    EXPECT_EQ(changes, 1);
}

TEST_F(BinderTest, TheFormSeesEveryKeyFirstAndMaySwallowOrChangeIt)
{
    std::vector<QString> order;
    app.handlers.onForm("Hauptmaske", "KeyDown", [&](Merkkartelle&, EventArgs& args) {
        order.push_back(QStringLiteral("form %1").arg(args.KeyCode));
        if (args.KeyCode == vbKeyF2)
            args.KeyCode = 0;
    });
    app.handlers.on("Hauptmaske", "feld", "KeyDown", [&](Merkkartelle&, EventArgs& args) {
        order.push_back(QStringLiteral("feld(%1) %2").arg(args.Index).arg(args.KeyCode));
    });
    app.handlers.onForm("Hauptmaske", "KeyPress", [&](Merkkartelle&, EventArgs& args) {
        if (args.KeyAscii == 'x')
            args.KeyAscii = 0;  // swallowed
        if (args.KeyAscii == 'a')
            args.KeyAscii = 'A';  // another character instead
    });
    int changes = 0;
    app.handlers.on("Hauptmaske", "feld", "Change", [&](Merkkartelle&, EventArgs&) { ++changes; });

    auto* box = widget<QLineEdit>(QStringLiteral("Hauptmaske.feld(5)"));
    QTest::keyClick(box, Qt::Key_F2);
    QTest::keyClick(box, Qt::Key_PageDown);
    EXPECT_EQ(order, (std::vector<QString>{"form 113", "form 34", "feld(5) 34"}));

    QTest::keyClicks(box, QStringLiteral("axb"));
    EXPECT_EQ(box->text(), "Ab");
    EXPECT_EQ(app.Hauptmaske.feld[5].Text, "Ab");
    EXPECT_EQ(changes, 2);
}

TEST_F(BinderTest, AHandlersChangesReachTheWidgets)
{
    app.handlers.on("Hauptmaske", "NeueAdresse", "Click", [](Merkkartelle& a, EventArgs&) {
        Hauptmaske& m = a.Hauptmaske;
        m.NeueAdresse.Caption = QStringLiteral("Speichern");
        m.NeueAdresseAbbruch.Visible = true;
        m.AdresseLöschen.Enabled = false;
        m.Label8.Caption = QStringLiteral("Neuer Eintrag 13 ");
        m.feld[4].BackColor = rgb(255, 255, 128);
        m.beschreibung[4].ForeColor = colour::Red;
        m.Typenliste[3].Value = 1;
        m.menuapagar.Enabled = false;
    });
    auto* neu = widget<QPushButton>(QStringLiteral("Hauptmaske.NeueAdresse"));
    QTest::mouseClick(neu, Qt::LeftButton);
    EXPECT_EQ(neu->text(), "Speichern");
    EXPECT_TRUE(widget<QWidget>(QStringLiteral("Hauptmaske.NeueAdresseAbbruch"))->isVisible());
    EXPECT_FALSE(widget<QWidget>(QStringLiteral("Hauptmaske.AdresseLöschen"))->isEnabled());
    EXPECT_EQ(widget<QLabel>(QStringLiteral("Hauptmaske.Label8"))->text(), "Neuer Eintrag 13 ");
    EXPECT_EQ(widget<QWidget>(QStringLiteral("Hauptmaske.feld(4)"))->palette().color(QPalette::Base),
              QColor(255, 255, 128));
    EXPECT_EQ(widget<QWidget>(QStringLiteral("Hauptmaske.beschreibung(4)"))->palette().color(QPalette::WindowText),
              QColor(Qt::red));
    EXPECT_TRUE(widget<QCheckBox>(QStringLiteral("Hauptmaske.Typenliste(3)"))->isChecked());
    EXPECT_FALSE(binder.window("Hauptmaske")->findChild<QAction*>("menuapagar")->isEnabled());
}

TEST_F(BinderTest, ACheckBoxClickChangesItsValueBeforeItsClickRuns)
{
    std::vector<QString> seen;
    app.handlers.on("Hauptmaske", "Typenliste", "Click", [&](Merkkartelle& a, EventArgs& args) {
        seen.push_back(QStringLiteral("%1=%2").arg(args.Index).arg(a.Hauptmaske.Typenliste[args.Index].Value));
    });
    auto* box = widget<QCheckBox>(QStringLiteral("Hauptmaske.Typenliste(2)"));
    QTest::mouseClick(box, Qt::LeftButton, {}, box->rect().center());
    QTest::mouseClick(box, Qt::LeftButton, {}, box->rect().center());
    EXPECT_EQ(seen, (std::vector<QString>{"2=1", "2=0"}));
    EXPECT_FALSE(box->isChecked());
}

TEST_F(BinderTest, OptionsOfAnArrayExcludeEachOtherAndTheRibbonKeepsItsState)
{
    show(QStringLiteral("Form3"));
    std::vector<int> clicked;
    app.handlers.on("Form3", "Option3D1", "Click", [&](Merkkartelle&, EventArgs& args) { clicked.push_back(args.Index); });
    auto* five = widget<QRadioButton>(QStringLiteral("Form3.Option3D1(5)"));
    auto* eleven = widget<QRadioButton>(QStringLiteral("Form3.Option3D1(11)"));
    QTest::mouseClick(five, Qt::LeftButton, {}, QPoint(6, five->height() / 2));
    QTest::mouseClick(eleven, Qt::LeftButton, {}, QPoint(6, eleven->height() / 2));
    EXPECT_EQ(clicked, (std::vector<int>{5, 11}));
    EXPECT_FALSE(app.Form3.Option3D1[5].Value);
    EXPECT_TRUE(app.Form3.Option3D1[11].Value);
    EXPECT_FALSE(five->isChecked());
    EXPECT_TRUE(eleven->isChecked());
    // Clicking the chosen one again leaves it chosen.
    QTest::mouseClick(eleven, Qt::LeftButton, {}, QPoint(6, eleven->height() / 2));
    EXPECT_TRUE(eleven->isChecked());

    auto* direction = widget<QPushButton>(QStringLiteral("Form3.AZCHECK"));
    QTest::mouseClick(direction, Qt::LeftButton);
    EXPECT_TRUE(app.Form3.AZCHECK.Value);
    EXPECT_TRUE(direction->isChecked());
}

TEST_F(BinderTest, HintsGoToTheStatusLineAndTheFormClearsIt)
{
    moveOver(widget<QWidget>(QStringLiteral("Hauptmaske.AdresseLöschen")));
    EXPECT_EQ(app.Hauptmaske.Panel3D3.Caption, "Aktuellen Eintrag löschen");
    EXPECT_EQ(statusLine(), "Aktuellen Eintrag löschen");

    // A control without a hint leaves the line as it is; the form's ground clears it.
    moveOver(widget<QWidget>(QStringLiteral("Hauptmaske.feld(3)")));
    EXPECT_EQ(statusLine(), "Aktuellen Eintrag löschen");
    moveOver(widget<QWidget>(QStringLiteral("Hauptmaske.SSPanel2")));
    EXPECT_EQ(app.Hauptmaske.Panel3D3.Caption, "");
    EXPECT_EQ(statusLine(), "");

    // A label inside a panel gives its own hint, not the panel's.
    moveOver(widget<QWidget>(QStringLiteral("Hauptmaske.Label8")));
    EXPECT_EQ(statusLine(), "Bearbeitungsstatus");

    // A MouseMove handler runs after the hint and may write its own.
    app.handlers.on("Hauptmaske", "feld", "MouseMove", [](Merkkartelle& a, EventArgs& args) {
        a.Hauptmaske.Panel3D3.Caption = QStringLiteral("Feld: ") + a.Hauptmaske.beschreibung[args.Index].Caption;
    });
    moveOver(widget<QWidget>(QStringLiteral("Hauptmaske.feld(2)")));
    EXPECT_EQ(statusLine(), "Feld: Firma:");

    EXPECT_EQ(widget<QWidget>(QStringLiteral("Hauptmaske.Command3D24"))->toolTip(), "Datenbanksortierung");
}

TEST_F(BinderTest, AModalFormHoldsItsHandlerUntilItHides)
{
    std::vector<QString> steps;
    app.handlers.on("Hauptmaske", "Command3D24", "Click", [&](Merkkartelle& a, EventArgs&) {
        steps.push_back("before");
        showForm(a, "Form3", true);
        steps.push_back("after");
    });
    app.handlers.on("Form3", "Command3D1", "Click", [&](Merkkartelle& a, EventArgs&) {
        steps.push_back("close");
        hideForm(a, "Form3");
    });
    bool sawModal = false;
    QTimer::singleShot(0, [&] {
        QWidget* form3 = binder.window("Form3");
        sawModal = form3->isVisible() && form3->windowModality() == Qt::ApplicationModal;
        steps.push_back(QStringLiteral("inside, %1 step(s) before").arg(steps.size()));
        QTest::mouseClick(widget<QPushButton>(QStringLiteral("Form3.Command3D1")), Qt::LeftButton);
    });
    QTest::mouseClick(widget<QPushButton>(QStringLiteral("Hauptmaske.Command3D24")), Qt::LeftButton);
    EXPECT_TRUE(sawModal);
    EXPECT_EQ(steps, (std::vector<QString>{"before", "inside, 1 step(s) before", "close", "after"}));
    EXPECT_FALSE(binder.window("Form3")->isVisible());
}

TEST_F(BinderTest, EndInsideAModalFormUnwindsEveryHandler)
{
    bool after = false;
    app.handlers.on("Hauptmaske", "Command3D24", "Click", [&](Merkkartelle& a, EventArgs&) {
        showForm(a, "Form3", true);
        after = true;
    });
    app.handlers.on("Form3", "Command3D1", "Click", [](Merkkartelle& a, EventArgs&) { End(a); });
    QTimer::singleShot(0, [&] { QTest::mouseClick(widget<QPushButton>(QStringLiteral("Form3.Command3D1")), Qt::LeftButton); });
    QTest::mouseClick(widget<QPushButton>(QStringLiteral("Hauptmaske.Command3D24")), Qt::LeftButton);
    EXPECT_TRUE(app.ended);
    EXPECT_FALSE(after);
}

TEST_F(BinderTest, ClosingAWindowByItsFrameUnloadsTheFormUnlessItRefuses)
{
    show(QStringLiteral("Form3"));
    int asked = 0;
    app.handlers.onForm("Form3", "QueryUnload", [&](Merkkartelle&, EventArgs& args) {
        ++asked;
        args.Cancel = asked == 1 && args.UnloadMode == 0;
    });
    app.Form3.Option3D1[7].Value = true;
    binder.window("Form3")->close();
    EXPECT_TRUE(binder.window("Form3")->isVisible());
    binder.window("Form3")->close();
    EXPECT_EQ(asked, 2);
    EXPECT_FALSE(binder.window("Form3")->isVisible());
    EXPECT_FALSE(app.Form3.Option3D1[7].Value);  // the design values are back
}

TEST_F(BinderTest, ThePanelButtonsChooseWhatShowsBesideTheNotes)
{
    auto* stack = binder.window("Hauptmaske")->findChild<QStackedWidget*>("notesStack");
    ASSERT_NE(stack, nullptr);
    EXPECT_EQ(stack->currentWidget(), binder.widget("Hauptmaske.Bemerkung"));
    binder.run([&] { app.Hauptmaske.Bankverbindung.Visible = true; });
    EXPECT_EQ(stack->currentWidget(), binder.widget("Hauptmaske.Bankverbindung"));
    binder.run([&] {
        app.Hauptmaske.Bankverbindung.Visible = false;
        app.Hauptmaske.Conexted.Visible = true;
    });
    EXPECT_EQ(stack->currentWidget(), binder.widget("Hauptmaske.Conexted"));
    binder.run([&] { app.Hauptmaske.Conexted.Visible = false; });
    EXPECT_EQ(stack->currentWidget(), binder.widget("Hauptmaske.Bemerkung"));
}

TEST_F(BinderTest, PicturesOfButtonsAndTheProgressBarFollowTheState)
{
    auto* cutOrSelect = widget<QPushButton>(QStringLiteral("Hauptmaske.Command3D23"));
    const QImage browse = cutOrSelect->icon().pixmap(20).toImage();
    EXPECT_FALSE(browse.isNull());
    binder.run([&] { app.Hauptmaske.Command3D23.Picture = app.Hauptmaske.bildrecortar.Picture; });
    EXPECT_NE(cutOrSelect->icon().pixmap(20).toImage(), browse);

    show(QStringLiteral("AboutBox"));
    binder.run([&] { app.AboutBox.Label5.Width = 3000; });
    EXPECT_EQ(widget<QWidget>(QStringLiteral("AboutBox.Label5"))->width(), 200);
}

TEST_F(BinderTest, FormTimersTickOnQtTimersWhileTheyRun)
{
    binder.setTimersRunning(true);
    int ticks = 0;
    app.handlers.on("Message", "Timer1", "Timer", [&](Merkkartelle& a, EventArgs&) {
        ++ticks;
        unloadForm(a, "Message");
    });
    app.Message.Timer1.Interval = 20;
    app.Message.Label1.Caption = QStringLiteral("Sortierung der Datenbank:    FIRMA   A - Z");
    binder.run([&] { showForm(app, "Message", true); });
    EXPECT_EQ(ticks, 1);
    EXPECT_FALSE(binder.window("Message")->isVisible());
}

TEST_F(BinderTest, ChoosingALineSetsListIndexBeforeItsClickRuns)
{
    ListBox& list = app.Cidadefrm.List1;
    for (const char* city : {"Berlin", "Bonn", "Köln"})
        list.AddItem(QString::fromUtf8(city));
    show(QStringLiteral("Cidadefrm"));
    std::vector<QString> seen;
    app.handlers.on("Cidadefrm", "List1", "Click", [&](Merkkartelle& a, EventArgs&) {
        seen.push_back(QStringLiteral("%1:%2").arg(a.Cidadefrm.List1.ListIndex).arg(a.Cidadefrm.List1.Text()));
    });
    app.handlers.on("Cidadefrm", "List1", "DblClick", [&](Merkkartelle&, EventArgs&) { seen.push_back("double"); });
    auto* widgetList = widget<QListWidget>(QStringLiteral("Cidadefrm.List1"));
    ASSERT_EQ(widgetList->count(), 3);
    const QPoint bonn = widgetList->visualItemRect(widgetList->item(1)).center();
    QTest::mouseClick(widgetList->viewport(), Qt::LeftButton, {}, bonn);
    QTest::mouseDClick(widgetList->viewport(), Qt::LeftButton, {}, bonn);
    EXPECT_EQ(seen, (std::vector<QString>{"1:Bonn", "double"}));

    // A handler that empties the list and chooses no line is shown as it left it.
    binder.run([&] { list.Clear(); });
    EXPECT_EQ(widgetList->count(), 0);
}

TEST_F(BinderTest, AKeyOnANoticeWithoutControlsReachesTheForm)
{
    app.handlers.onForm("Message", "KeyDown", [](Merkkartelle& a, EventArgs&) { unloadForm(a, "Message"); });
    app.Message.Label1.Caption = QStringLiteral("Aktuelle Einstellungen wurden gespeichert");
    QTimer::singleShot(0, [&] { QTest::keyClick(binder.window("Message"), Qt::Key_Space); });
    binder.run([&] { showForm(app, "Message", true); });
    EXPECT_FALSE(app.Message.Loaded);
    EXPECT_FALSE(binder.window("Message")->isVisible());
}

TEST_F(BinderTest, TheWindowsGeometryAndTheFormsGoBothWays)
{
    show(QStringLiteral("Form3"));
    QWidget* window = binder.window("Form3");
    EXPECT_EQ(app.Form3.Width, window->width() * 15);
    EXPECT_EQ(app.Form3.Height, window->height() * 15);
    binder.run([&] { app.Form3.Width = 6000; });
    EXPECT_EQ(window->width(), 400);

    std::vector<int> widths;
    app.handlers.onForm("Form3", "Resize", [&](Merkkartelle& a, EventArgs&) { widths.push_back(a.Form3.Width); });
    window->resize(450, window->height());
    EXPECT_EQ(app.Form3.Width, 450 * 15);
    EXPECT_EQ(widths, std::vector<int>{450 * 15});
}

TEST(Conversions, ColoursKeysAndFilters)
{
    EXPECT_EQ(toQColor(rgb(1, 2, 3)), QColor(1, 2, 3));
    EXPECT_EQ(toVbColour(QColor(0, 0, 255)), 0xFF0000L);
    EXPECT_FALSE(toQColor(0x8000000FL).isValid());  // a system colour: the style's own

    EXPECT_EQ(vbKeyCode(Qt::Key_F1, {}), vbKeyF1);
    EXPECT_EQ(vbKeyCode(Qt::Key_F12, {}), vbKeyF12);
    EXPECT_EQ(vbKeyCode(Qt::Key_PageUp, {}), vbKeyPageUp);
    EXPECT_EQ(vbKeyCode(Qt::Key_Escape, {}), vbKeyEscape);
    EXPECT_EQ(vbKeyCode(Qt::Key_A, Qt::ShiftModifier), 65);
    EXPECT_EQ(vbKeyCode(Qt::Key_5, Qt::KeypadModifier), 101);
    EXPECT_EQ(vbShift(Qt::ShiftModifier | Qt::AltModifier), vbShiftMask | vbAltMask);

    EXPECT_EQ(qtNameFilters(QStringLiteral("Text (*.x)|*.x|")), QStringList{"Text (*.x)"});
    EXPECT_EQ(qtNameFilters(QStringLiteral("Datenbank (*.mdb)|*.mdb|Alle Dateien (*.*)|*.*|")),
              (QStringList{"Datenbank (*.mdb)", "Alle Dateien (*)"}));
    EXPECT_EQ(qtNameFilters(QStringLiteral("Bilder|*.bmp;*.jpg")), QStringList{"Bilder (*.bmp *.jpg)"});
    EXPECT_TRUE(qtNameFilters(QString()).isEmpty());
}

TEST_F(BinderTest, TheDualButtonsCutAndPasteOnTheSlotThatHadTheFocus)
{
    registerFieldCheckHandlers(app.handlers);
    registerEditClipboardHandlers(app.handlers);
    binder.run([&] {
        app.Hauptmaske.AdresseÄndern.Caption = QStringLiteral("OK");
        app.Hauptmaske.feld[4].Text = QStringLiteral("Mustermann");
        app.Hauptmaske.feld[5].Text = QStringLiteral("Erika");
    });
    QWidget* window = binder.window("Hauptmaske");
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));

    // The buttons take no focus, so the slot keeps its selection until the click runs.
    auto* nachname = widget<QLineEdit>(QStringLiteral("Hauptmaske.feld(4)"));
    nachname->setFocus(Qt::MouseFocusReason);
    nachname->setSelection(6, 4);
    QTest::mouseClick(widget<QAbstractButton>(QStringLiteral("Hauptmaske.Command3D23")), Qt::LeftButton);
    EXPECT_EQ(QApplication::clipboard()->text(), "mann");
    EXPECT_EQ(nachname->text(), "Muster");
    EXPECT_EQ(app.Hauptmaske.feld[4].Text, "Muster");

    auto* vorname = widget<QLineEdit>(QStringLiteral("Hauptmaske.feld(5)"));
    vorname->setFocus(Qt::MouseFocusReason);
    vorname->setCursorPosition(0);
    QTest::mouseClick(widget<QAbstractButton>(QStringLiteral("Hauptmaske.Command3D25")), Qt::LeftButton);
    EXPECT_EQ(vorname->text(), "mannErika");
    EXPECT_EQ(app.Hauptmaske.feld[5].Text, "mannErika");
}

TEST_F(BinderTest, AHandlerThatMovesTheFocusPutsItIntoThatWidgetWithoutASecondGotFocus)
{
    std::vector<int> gotFocus;
    app.handlers.on("Hauptmaske", "feld", "GotFocus", [&](Merkkartelle&, EventArgs& args) { gotFocus.push_back(args.Index); });
    app.handlers.on("Hauptmaske", "NeueAdresse", "Click",
                    [](Merkkartelle& a, EventArgs&) { SetFocus(a, QStringLiteral("Hauptmaske.feld(7)")); });
    QWidget* window = binder.window("Hauptmaske");
    window->activateWindow();
    QApplication::setActiveWindow(window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    auto* vorher = widget<QLineEdit>(QStringLiteral("Hauptmaske.feld(2)"));
    vorher->setFocus(Qt::MouseFocusReason);
    ASSERT_EQ(QApplication::focusWidget(), vorher);
    ASSERT_EQ(app.Fokus, QStringLiteral("Hauptmaske.feld(2)"));

    ASSERT_TRUE(binder.fire(QStringLiteral("Hauptmaske.NeueAdresse"), QStringLiteral("Click")));
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), widget<QLineEdit>(QStringLiteral("Hauptmaske.feld(7)")));
    EXPECT_TRUE(app.FokusAnfrage.isEmpty());
    EXPECT_EQ(app.Fokus, QStringLiteral("Hauptmaske.feld(7)"));
    // One GotFocus for the user's click into feld(2), one for the move: the widget's own
    // focus event during the move is not reported a second time.
    EXPECT_EQ(gotFocus, (std::vector<int>{2, 7}));
}

}  // namespace
}  // namespace mk::test
