// The dual buttons while a card is open: cut, copy and paste on the slot that last had the
// focus, and the choice of the card's picture; while browsing they leave the slots alone.

#include "card/edit_clipboard.h"
#include "editing_fixture.h"

#include <QImage>

namespace mk::test {
namespace {

class EditClipboard : public EditingTest {
protected:
    void SetUp() override
    {
        EditingTest::SetUp();
        karte({{"Nachname", QStringLiteral("Mustermann")}, {"Vorname", QStringLiteral("Erika")}});
        oeffnen();
    }

    void bearbeiten()
    {
        klick("Hauptmaske.AdresseÄndern");
        ASSERT_TRUE(aenderungOffen(app));
    }

    // Focus as the user gives it, then the selection the user drags.
    TextBox& waehlen(int index, int start, int laenge)
    {
        raiseEvent(app, QStringLiteral("Hauptmaske.feld(%1)").arg(index), QStringLiteral("GotFocus"));
        TextBox& slot = m.feld[index];
        slot.SelStart = start;
        slot.SelLength = laenge;
        return slot;
    }

    // The button takes the focus from the slot, as a click does.
    void verlassen(int index)
    {
        raiseEvent(app, QStringLiteral("Hauptmaske.feld(%1)").arg(index), QStringLiteral("LostFocus"));
    }
};

TEST_F(EditClipboard, CopyTakesTheSelectionAndLeavesTheSlot)
{
    bearbeiten();
    TextBox& slot = waehlen(4, 0, 3);
    verlassen(4);
    klick("Hauptmaske.Command3D24");
    EXPECT_EQ(ui.clipboard, QStringLiteral("Mus"));
    EXPECT_EQ(slot.Text, QStringLiteral("Mustermann"));
    EXPECT_EQ(slot.SelStart, 0);
    EXPECT_EQ(slot.SelLength, 3);
    EXPECT_FALSE(ui.formsShown.size() && ui.formsShown.back().first == QStringLiteral("Form3"));
}

TEST_F(EditClipboard, CutMovesTheSelectionToTheClipboard)
{
    bearbeiten();
    TextBox& slot = waehlen(4, 2, 3);
    verlassen(4);
    klick("Hauptmaske.Command3D23");
    EXPECT_EQ(ui.clipboard, QStringLiteral("ste"));
    EXPECT_EQ(slot.Text, QStringLiteral("Murmann"));
    EXPECT_EQ(slot.SelStart, 2);
    EXPECT_EQ(slot.SelLength, 0);
}

TEST_F(EditClipboard, PasteReplacesTheSelectionOfTheLastFocusedSlot)
{
    bearbeiten();
    waehlen(4, 0, 4);
    klick("Hauptmaske.Command3D24");
    verlassen(4);
    TextBox& vorname = waehlen(5, 1, 2);
    verlassen(5);
    klick("Hauptmaske.Command3D25");
    EXPECT_EQ(vorname.Text, QStringLiteral("EMustka"));
    EXPECT_EQ(vorname.SelStart, 5);
    EXPECT_EQ(vorname.SelLength, 0);
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Mustermann"));
}

TEST_F(EditClipboard, PasteIsCheckedAgainstTheColumnAndMaxLength)
{
    bearbeiten();
    // PLZ holds ten characters: the slot's Change cuts what the paste brought beyond.
    ui.clipboard = QStringLiteral("12345678901");
    waehlen(9, 0, 0);
    klick("Hauptmaske.Command3D25");
    EXPECT_EQ(m.feld[9].Text, QStringLiteral("1234567890"));
    EXPECT_TRUE(app.Message.Label1.Caption.startsWith(QStringLiteral("Das Feld ")));

    // A slot's MaxLength lets in only what fits; the rest of its text stays.
    m.feld[5].MaxLength = 6;
    ui.clipboard = QStringLiteral("XYZ");
    waehlen(5, 0, 0);
    klick("Hauptmaske.Command3D25");
    EXPECT_EQ(m.feld[5].Text, QStringLiteral("XErika"));
}

TEST_F(EditClipboard, NothingWithoutAFocusedSlotOrASelection)
{
    bearbeiten();
    ui.clipboard = QStringLiteral("abc");
    klick("Hauptmaske.Command3D23");
    klick("Hauptmaske.Command3D24");
    EXPECT_EQ(ui.clipboard, QStringLiteral("abc"));
    klick("Hauptmaske.Command3D25");
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Mustermann"));
    EXPECT_EQ(m.feld[5].Text, QStringLiteral("Erika"));

    // A focused slot without a selection keeps the clipboard as it was.
    waehlen(4, 3, 0);
    klick("Hauptmaske.Command3D23");
    klick("Hauptmaske.Command3D24");
    EXPECT_EQ(ui.clipboard, QStringLiteral("abc"));
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Mustermann"));
}

TEST_F(EditClipboard, BrowseStateLeavesSlotsAndClipboardAlone)
{
    ASSERT_FALSE(bearbeitungOffen(app));
    ui.clipboard = QStringLiteral("abc");
    waehlen(4, 0, 3);
    klick("Hauptmaske.Command3D23");
    klick("Hauptmaske.Command3D25");
    ASSERT_TRUE(ui.boxes.empty());
    klick("Hauptmaske.Command3D13");
    EXPECT_TRUE(ui.boxes.empty());  // no picture dialog
    EXPECT_EQ(ui.clipboard, QStringLiteral("abc"));
    EXPECT_EQ(m.feld[4].Text, QStringLiteral("Mustermann"));
    // Copy's button still opens the order while browsing.
    klick("Hauptmaske.Command3D24");
    EXPECT_EQ(ui.clipboard, QStringLiteral("abc"));
    ASSERT_FALSE(ui.formsShown.empty());
    EXPECT_EQ(ui.formsShown.back().first, QStringLiteral("Form3"));
}

TEST_F(EditClipboard, PictureChosenGoesIntoTheSlotAndShows)
{
    const QString bild = dir.filePath(QStringLiteral("foto.png"));
    ASSERT_TRUE(QImage(40, 30, QImage::Format_RGB32).save(bild));
    bearbeiten();

    ui.answerOpenCancel();
    klick("Hauptmaske.Command3D13");
    EXPECT_TRUE(m.feld[16].Text.isEmpty());

    ui.answerOpen(bild);
    klick("Hauptmaske.Command3D13");
    ASSERT_EQ(ui.boxes.size(), 2u);
    EXPECT_EQ(ui.boxes.back().kind, QStringLiteral("open"));
    EXPECT_EQ(ui.boxes.back().prompt, QStringLiteral("Bild aussuchen"));
    EXPECT_EQ(m.feld[16].Text, bild);
    EXPECT_TRUE(m.Image1.Visible);
    EXPECT_EQ(m.Label16.Caption, QStringLiteral("40 x 30"));
}

}  // namespace
}  // namespace mk::test
