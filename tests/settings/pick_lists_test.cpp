// The pick lists of the mask fields on Cidadefrm: opened by the right button while a card is
// edited, read from and written to the field's list file, rebuilt from the cards, and a
// chosen text cut to the column's size.

#include "settings/pick_lists.h"

#include "search/card_session.h"

#include <QFile>

namespace mk {
namespace {

class PickList : public test::CardSession {
protected:
    void SetUp() override
    {
        CardSession::SetUp();
        card({{"Nachname", "Adler"}, {"Stadt", "Köln"}, {"PLZ", "50667"}});
        card({{"Nachname", "Braun"}, {"Stadt", "Berlin"}});
        card({{"Nachname", "Clausen"}, {"Stadt", QVariant()}});
        card({{"Nachname", "Dorn"}, {"Stadt", "Köln"}});
        card({{"Nachname", "Ebert"}, {"Stadt", "Aachen"}});
        reopen();
    }
    QString path(const char* name) const { return dir.filePath(QString::fromUtf8(name)); }
    QByteArray bytes(const char* name) const
    {
        QFile f(path(name));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
    }
    void write(const char* name, const QByteArray& content)
    {
        QFile f(path(name));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(content);
    }
    void edit() { app.Hauptmaske.AdresseÄndern.Caption = QStringLiteral("OK"); }
    void mouseDown(int slot, int button = vbRightButton)
    {
        EventArgs args;
        args.Button = button;
        raiseEvent(app, QStringLiteral("Hauptmaske.feld(%1)").arg(slot), QStringLiteral("MouseDown"), args);
    }
    void click(const char* control, const char* event = "Click")
    {
        raiseEvent(app, QStringLiteral("Cidadefrm.") + QString::fromUtf8(control), QString::fromUtf8(event));
    }
    void choose(int index)
    {
        form.List1.ListIndex = index;
        click("List1");
    }
    QStringList items() const
    {
        QStringList out;
        for (int i = 0; i < form.List1.ListCount(); ++i)
            out << form.List1.List(i);
        return out;
    }

    Cidadefrm& form = app.Cidadefrm;
};

TEST_F(PickList, OnlyTheRightButtonWhileEditingOpensTheList)
{
    mouseDown(10);
    EXPECT_FALSE(form.Visible);
    edit();
    mouseDown(10, vbLeftButton);
    EXPECT_FALSE(form.Visible);
    EXPECT_TRUE(system.ui.formsShown.empty());

    mouseDown(10);
    EXPECT_TRUE(form.Visible);
    ASSERT_EQ(system.ui.formsShown.size(), 1u);
    EXPECT_TRUE(system.ui.formsShown[0].second);  // modal
}

TEST_F(PickList, TheListTakesItsPlaceFromTheSettingsAndLeavesItThereWhenItCloses)
{
    app.Einstellungsliste[160] = QStringLiteral("1500");
    app.Einstellungsliste[161] = QStringLiteral("2500");
    edit();
    mouseDown(10);
    EXPECT_EQ(form.Top, 1500);
    EXPECT_EQ(form.Left, 2500);

    form.Top = 3000;
    click("Command2");
    EXPECT_EQ(app.Einstellungsliste[160], QStringLiteral("3000"));
    EXPECT_EQ(app.Einstellungsliste[161], QStringLiteral("2500"));
}

TEST_F(PickList, TheListFileIsNamedByTheLabelAndEmptyTextsAreSkipped)
{
    write("Stadt.txt", "\"Köln\"\r\n\"\"\r\n\"Berlin, Mitte\"\r\n");
    app.Hauptmaske.NeueAdresse.Caption = QStringLiteral("Speichern");
    mouseDown(10);
    EXPECT_EQ(form.Label2.Caption, path("Stadt.txt"));
    EXPECT_EQ(form.Label3.Caption, QStringLiteral("Stadt"));
    EXPECT_EQ(form.Caption, QStringLiteral("Hinzufügen Stadt:"));
    EXPECT_EQ(items(), QStringList({"Köln", "Berlin, Mitte"}));
    EXPECT_FALSE(form.Command3.Enabled);
    EXPECT_FALSE(form.Command5.Enabled);
}

TEST_F(PickList, ARenamedLabelUsesAListOfItsOwn)
{
    write("Stadt.txt", "\"Köln\"\r\n");
    app.Hauptmaske.beschreibung[10].Caption = QStringLiteral("Ort:");
    edit();
    mouseDown(10);
    EXPECT_EQ(form.Label2.Caption, path("Ort.txt"));
    EXPECT_TRUE(items().isEmpty());
    EXPECT_EQ(bytes("Stadt.txt"), QByteArray("\"Köln\"\r\n"));
}

TEST_F(PickList, AddingWritesTheWholeListAndTheFirstOkCreatesTheFile)
{
    edit();
    mouseDown(10);
    ASSERT_TRUE(items().isEmpty());
    ASSERT_EQ(bytes("Stadt.txt"), QByteArray("<missing>"));

    click("Command1");
    EXPECT_EQ(form.Command1.Caption, QStringLiteral("OK"));
    EXPECT_TRUE(form.Text1.Visible);
    form.Text1.Text = QStringLiteral("Hamburg");
    click("Command1");
    form.Text1.Text = QStringLiteral("ignored");  // the next "Hinzufügen" empties the box
    click("Command1");
    form.Text1.Text = QStringLiteral("Bremen");
    click("Command1");

    EXPECT_EQ(items(), QStringList({"Hamburg", "Bremen"}));
    EXPECT_EQ(bytes("Stadt.txt"), QByteArray("\"Hamburg\"\r\n\"Bremen\"\r\n"));
    EXPECT_EQ(form.Command1.Caption, QStringLiteral("Hinzufügen"));
    EXPECT_FALSE(form.Text1.Visible);
}

TEST_F(PickList, DeletingRemovesTheSelectedTextAndTheNextOkSavesWithoutIt)
{
    write("Stadt.txt", "\"Köln\"\r\n\"Berlin\"\r\n\"Aachen\"\r\n");
    edit();
    mouseDown(10);
    choose(1);
    EXPECT_TRUE(form.Command3.Enabled);
    EXPECT_TRUE(form.Command5.Enabled);
    EXPECT_EQ(form.List3.ListIndex, 1);
    click("Command3");

    EXPECT_EQ(items(), QStringList({"Köln", "Aachen"}));
    EXPECT_EQ(form.List3.ListCount(), 2);
    EXPECT_FALSE(form.Command3.Enabled);
    click("Command1");
    click("Command1");
    EXPECT_EQ(bytes("Stadt.txt"), QByteArray("\"Köln\"\r\n\"Aachen\"\r\n"));
}

TEST_F(PickList, RebuildingAddsEachNewTextOfTheColumnOnceAndKeepsTheEdit)
{
    write("Stadt.txt", "\"Berlin\"\r\n");
    app.Kartensatz->MoveLast();
    app.Kartensatz->MovePrevious();
    app.Kartensatz->Edit();
    edit();
    mouseDown(10);
    click("Command4");

    EXPECT_EQ(items(), QStringList({"Berlin", "Köln", "Aachen"}));
    EXPECT_EQ(app.Kartensatz->editMode(), EditMode::Edit);
    EXPECT_EQ(app.Kartensatz->Fields(QStringLiteral("Nachname")).text(), QStringLiteral("Dorn"));
}

TEST_F(PickList, AChosenTextIsCutToTheColumnSize)
{
    write("PLZ.txt", "\"12345678901234\"\r\n\"50667\"\r\n");
    app.Hauptmaske.feld[9].Text = QStringLiteral("alt");
    edit();
    mouseDown(9);
    choose(0);
    click("List1", "DblClick");
    EXPECT_EQ(app.Hauptmaske.feld[9].Text, QStringLiteral("1234567890"));
    EXPECT_FALSE(form.Visible);

    mouseDown(9);
    choose(1);
    click("Command5");
    EXPECT_EQ(app.Hauptmaske.feld[9].Text, QStringLiteral("50667"));
}

TEST_F(PickList, CancelLeavesTheField)
{
    write("Stadt.txt", "\"Köln\"\r\n");
    app.Hauptmaske.feld[10].Text = QStringLiteral("Bonn");
    edit();
    mouseDown(10);
    choose(0);
    click("Command2");
    EXPECT_FALSE(form.Visible);
    EXPECT_EQ(app.Hauptmaske.feld[10].Text, QStringLiteral("Bonn"));
}

TEST(PickListNames, FieldsAndColumnsFollowTheCatalogue)
{
    EXPECT_EQ(FeldSpalte(0), QStringLiteral("Schluessel"));
    EXPECT_EQ(FeldSpalte(16), QStringLiteral("Telex"));
    EXPECT_EQ(FeldSpalte(22), QStringLiteral("Postfach"));
    EXPECT_EQ(FeldSpalte(23), QString());
}

}  // namespace
}  // namespace mk
