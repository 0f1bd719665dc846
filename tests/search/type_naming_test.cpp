// The naming of the types on the main mask, and the form that chooses several types for the
// serial-letter list.

#include "search/type_marks.h"
#include "search/type_naming.h"

#include "support/scripted_system.h"

#include <gtest/gtest.h>

namespace mk {
namespace {

class TypeNaming : public ::testing::Test {
protected:
    void SetUp() override
    {
        for (int k = 1; k <= 7; ++k) {
            app.Einstellungsliste[std::size_t(20 + k)] = QStringLiteral("Alt %1").arg(k);
            app.Typenbenennung[std::size_t(k)] = QStringLiteral("Alt %1").arg(k);
            app.Hauptmaske.Typenliste[k - 1].Caption = QStringLiteral("Alt %1").arg(k);
        }
        app.Einstellungsliste[190] = QStringLiteral("7");
    }
    TextBox& box(int k)
    {
        TextBox* boxes[] = {&m.Text2, &m.Text3, &m.Text4, &m.Text5, &m.Text6, &m.Text7, &m.Text8};
        return *boxes[k - 1];
    }
    void typeNames()
    {
        for (int k = 1; k <= 7; ++k)
            box(k).Text = QStringLiteral("Neu %1").arg(k);
    }

    test::ScriptedSystem system;
    Merkkartelle& app = system.app;
    Hauptmaske& m = app.Hauptmaske;
};

TEST_F(TypeNaming, TheMenuOpensTheBoxesFilledFromTheSettings)
{
    ASSERT_FALSE(m.Text2.Visible);
    raiseEvent(app, QStringLiteral("Hauptmaske.menutipo"), QStringLiteral("Click"));
    for (int k = 1; k <= 7; ++k) {
        EXPECT_TRUE(box(k).Visible);
        EXPECT_EQ(box(k).Text, QStringLiteral("Alt %1").arg(k));
    }
    EXPECT_TRUE(m.Command6.Visible);
    EXPECT_TRUE(m.Command2.Visible);
}

TEST_F(TypeNaming, OkNamesTheBoxesKeepsTheNamesAndRefillsTheListOfMala)
{
    TypenBenennen(app);
    typeNames();
    raiseEvent(app, QStringLiteral("Hauptmaske.Command6"), QStringLiteral("Click"));

    for (int k = 1; k <= 7; ++k) {
        EXPECT_EQ(m.Typenliste[k - 1].Caption, QStringLiteral("Neu %1").arg(k));
        EXPECT_EQ(app.Typenbenennung[std::size_t(k)], QStringLiteral("Neu %1").arg(k));
        EXPECT_EQ(app.Einstellungsliste[std::size_t(20 + k)], QStringLiteral("Neu %1").arg(k));
        EXPECT_FALSE(box(k).Visible);
    }
    EXPECT_FALSE(m.Command6.Visible);
    EXPECT_FALSE(m.Command2.Visible);

    const ComboBox& combo = app.mala.ComboTypenliste;
    ASSERT_EQ(combo.ListCount(), 9);
    EXPECT_EQ(combo.List(0), QStringLiteral("Neu 1"));
    EXPECT_EQ(combo.List(6), QStringLiteral("Neu 7"));
    EXPECT_EQ(combo.List(7), QStringLiteral("Alle Einträge"));
    EXPECT_EQ(combo.List(8), QStringLiteral("Persönliche Definition"));
    EXPECT_EQ(combo.ListIndex, 7);
}

TEST_F(TypeNaming, TheNewNameReachesTheFilterDisplay)
{
    TypenBenennen(app);
    typeNames();
    Command6_Click(app);
    app.Typmaske = Typmaske(5);
    TypenfilterAnzeigen(app);
    EXPECT_EQ(m.InfoTipo.Caption, QStringLiteral("Neu 5"));
}

TEST_F(TypeNaming, ConfirmingByTheMenuLeavesTheNamesArrayAndTheListOfMala)
{
    app.mala.ComboTypenliste.AddItem(QStringLiteral("bisher"));
    TypenBenennen(app);
    typeNames();
    TypenBenennen(app);  // F12 again confirms

    EXPECT_EQ(m.Typenliste[2].Caption, QStringLiteral("Neu 3"));
    EXPECT_EQ(app.Einstellungsliste[23], QStringLiteral("Neu 3"));
    EXPECT_EQ(app.Typenbenennung[3], QStringLiteral("Alt 3"));
    EXPECT_EQ(app.mala.ComboTypenliste.ListCount(), 1);
    EXPECT_FALSE(m.Text2.Visible);
    EXPECT_FALSE(m.Command6.Visible);
}

TEST_F(TypeNaming, CancelRestoresTheBoxesFromTheSettings)
{
    TypenBenennen(app);
    typeNames();
    raiseEvent(app, QStringLiteral("Hauptmaske.Command2"), QStringLiteral("Click"));
    EXPECT_EQ(box(4).Text, QStringLiteral("Alt 4"));
    EXPECT_EQ(m.Typenliste[3].Caption, QStringLiteral("Alt 4"));
    EXPECT_FALSE(box(4).Visible);
    EXPECT_FALSE(m.Command2.Visible);
}

// ---- TypenlisteBenutzerdefiniert ------------------------------------------------------------

class SeveralTypes : public TypeNaming {
protected:
    TypenlisteBenutzerdefiniert& form() { return app.TypenlisteBenutzerdefiniert; }
    void open() { showForm(app, form()); }
    void ok() { raiseEvent(app, QStringLiteral("TypenlisteBenutzerdefiniert.ok"), QStringLiteral("Click")); }
};

TEST_F(SeveralTypes, OpensWithTheTypeNamesBesideTheListForm)
{
    app.mala.Top = 2000;
    app.mala.Left = 3000;
    open();
    EXPECT_EQ(form().Caption, QStringLiteral("Persönliche Definition"));
    EXPECT_EQ(form().Typenliste[0].Caption, QStringLiteral("Alt 1"));
    EXPECT_EQ(form().Typenliste[6].Caption, QStringLiteral("Alt 7"));
    EXPECT_EQ(form().Top, 2150);
    EXPECT_EQ(form().Left, 2700);
}

TEST_F(SeveralTypes, SingleListingJoinsOneConditionPerCheckedBox)
{
    app.Selektionsfilter = QStringLiteral("alt");
    open();
    form().Typenliste[0].Value = 1;
    form().Typenliste[3].Value = 1;
    ok();
    EXPECT_EQ(app.Selektionsfilter, QStringLiteral("[Typ] like '1??????\' OR [Typ] like '???1???\'"));
    EXPECT_FALSE(form().Visible);
    EXPECT_FALSE(form().Loaded);
}

TEST_F(SeveralTypes, MultiListingAsksForAllCheckedMarksInOneMask)
{
    open();
    app.forms.chooseOption(app.forms.control(QStringLiteral("TypenlisteBenutzerdefiniert.BenutzerTypenlisteOption2")));
    form().Typenliste[1].Value = 1;
    form().Typenliste[6].Value = 1;
    ok();
    EXPECT_EQ(app.Selektionsfilter, QStringLiteral("[Typ] like '?1????1'"));
}

TEST_F(SeveralTypes, NothingCheckedGivesNoFilterOrTheAllMarksCondition)
{
    app.Selektionsfilter = QStringLiteral("alt");
    open();
    ok();
    EXPECT_TRUE(app.Selektionsfilter.isEmpty());

    open();
    EXPECT_EQ(form().Typenliste[0].Value, 0);  // a fresh form each time
    app.forms.chooseOption(app.forms.control(QStringLiteral("TypenlisteBenutzerdefiniert.BenutzerTypenlisteOption2")));
    ok();
    EXPECT_EQ(app.Selektionsfilter, QStringLiteral("[Typ] like '???????\'"));
}

TEST_F(SeveralTypes, EscClosesAndF1ShowsTheKey)
{
    open();
    EventArgs f1;
    f1.KeyCode = vbKeyF1;
    raiseEvent(app, QStringLiteral("TypenlisteBenutzerdefiniert"), QStringLiteral("KeyDown"), f1);
    ASSERT_EQ(system.ui.messageBoxes().size(), 1u);
    EXPECT_EQ(system.ui.messageBoxes()[0].prompt, QStringLiteral(" \r\nTastaturbelegung\r\n \r\nESC = Schliessen "));
    EXPECT_TRUE(form().Visible);

    EventArgs esc;
    esc.KeyCode = vbKeyEscape;
    raiseEvent(app, QStringLiteral("TypenlisteBenutzerdefiniert"), QStringLiteral("KeyDown"), esc);
    EXPECT_FALSE(form().Visible);
}

TEST_F(SeveralTypes, TheListChoosesItsFilterTextByTheComboIndex)
{
    ComboBox& combo = app.mala.ComboTypenliste;
    for (int i = 0; i < 9; ++i)
        combo.AddItem(QStringLiteral("x"));
    combo.ListIndex = 2;
    EXPECT_EQ(TypwahlFilter(app), QStringLiteral("[Typ] like '??1????\'"));
    combo.ListIndex = 7;
    EXPECT_EQ(TypwahlFilter(app), QStringLiteral("[Typ] like '???????\'"));
}

}  // namespace
}  // namespace mk
