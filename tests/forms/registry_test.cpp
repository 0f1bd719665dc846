// The control registry: properties by path, read and written as text.

#include "card/app_state.h"
#include "forms/registry.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace mk {
namespace {

// A form with one control of each kind the main mask lacks.
struct Listen : Form {
    ListBox Liste;
    ComboBox Auswahl;
    Grid grid1;
    ScrollBar HScroll1;
    CheckBox SSCheck2;
    CheckBox Check1;
    ControlArray<OptionButton> Option;
    OptionButton Einzel, Multi, Andere;

    Listen()
    {
        SSCheck2.BooleanValue = true;
        Option = ControlArray<OptionButton>(0, 2);
        Einzel.Group = Multi.Group = QStringLiteral("Art");
        HScroll1.Max = 100;
        nameControls(*this, "Listen");
    }
    template <class V>
    void eachControl(V&& v)
    {
        v("Liste", Liste);
        v("Auswahl", Auswahl);
        v("grid1", grid1);
        v("HScroll1", HScroll1);
        v("SSCheck2", SSCheck2);
        v("Check1", Check1);
        v("Option", Option);
        v("Einzel", Einzel);
        v("Multi", Multi);
        v("Andere", Andere);
    }
};

class RegistryTest : public ::testing::Test {
protected:
    RegistryTest()
    {
        forms.add(haupt);
        forms.add(listen);
        forms.add(form3);
    }
    Hauptmaske haupt;
    Listen listen;
    Form3 form3;
    FormRegistry forms;
};

TEST_F(RegistryTest, ReadsAndWritesTextCaptionsAndFormProperties)
{
    forms.write("Hauptmaske.feld(4).Text", "Müller");
    EXPECT_EQ(haupt.feld[4].Text, "Müller");
    EXPECT_EQ(forms.read("Hauptmaske.feld(4).Text"), "Müller");
    EXPECT_EQ(forms.read("Hauptmaske.NeueAdresse.Caption"), "&Neu");
    EXPECT_EQ(forms.read("Hauptmaske.beschreibung(23).Caption"), "Bild:");

    forms.write("Hauptmaske.Caption", "C:  -  Karten");
    EXPECT_EQ(haupt.Caption, "C:  -  Karten");
    EXPECT_EQ(forms.read("Hauptmaske.Visible"), "False");
    forms.write("Hauptmaske.Top", "1200");
    EXPECT_EQ(haupt.Top, 1200);
}

TEST_F(RegistryTest, BooleansNumbersColoursAndFonts)
{
    forms.write("Hauptmaske.AdresseLöschen.Enabled", "False");
    EXPECT_FALSE(haupt.AdresseLöschen.Enabled);
    EXPECT_EQ(forms.read("Hauptmaske.AdresseLöschen.Enabled"), "False");
    forms.write("Hauptmaske.AdresseLöschen.Enabled", "true");
    EXPECT_TRUE(haupt.AdresseLöschen.Enabled);

    haupt.InfoTipo.ForeColor = rgb(255, 0, 0);
    EXPECT_EQ(forms.read("Hauptmaske.InfoTipo.ForeColor"), "255");
    forms.write("Hauptmaske.feld(0).BackColor", "16711680");
    EXPECT_EQ(haupt.feld[0].BackColor, rgb(0, 0, 255));

    forms.write("Hauptmaske.feld(2).FontName", "Arial");
    forms.write("Hauptmaske.feld(2).Font.Size", "12.5");
    forms.write("Hauptmaske.feld(2).FontBold", "True");
    EXPECT_EQ(haupt.feld[2].Font.Name, "Arial");
    EXPECT_EQ(forms.read("Hauptmaske.feld(2).Font.Name"), "Arial");
    EXPECT_EQ(forms.read("Hauptmaske.feld(2).FontSize"), "12.5");
    EXPECT_EQ(forms.read("Hauptmaske.feld(2).FontBold"), "True");
    EXPECT_EQ(forms.read("Hauptmaske.feld(2).Index"), "2");
    EXPECT_EQ(forms.read("Hauptmaske.feld(2).Name"), "feld");
}

TEST_F(RegistryTest, NamesAreCaseBlindUmlautsIncluded)
{
    EXPECT_EQ(forms.read("HAUPTMASKE.FELD(4).text"), "");
    EXPECT_EQ(forms.read("hauptmaske.adresseÄNDERN.caption"), "&Bearbeiten");
    EXPECT_EQ(forms.read("hauptmaske.caption"), "Merkkartelle");
    const ControlRef ref = forms.control("hauptmaske.ADRESSEändern");
    EXPECT_EQ(ref.form, "Hauptmaske");
    EXPECT_EQ(ref.name, "AdresseÄndern");
    EXPECT_EQ(ref.control, &haupt.AdresseÄndern);
}

TEST_F(RegistryTest, ListItemsAndItemData)
{
    listen.Liste.AddItem("Berta");
    listen.Liste.AddItem("Anton");
    listen.Liste.setItemData(1, 4711);
    EXPECT_EQ(forms.read("Listen.Liste.ListCount"), "2");
    EXPECT_EQ(forms.read("Listen.Liste.List(0)"), "Berta");
    EXPECT_EQ(forms.read("Listen.Liste.ItemData(1)"), "4711");
    EXPECT_EQ(forms.read("Listen.Liste.List(5)"), "");  // past the end reads empty
    forms.write("Listen.Liste.ItemData(0)", "12");
    EXPECT_EQ(listen.Liste.ItemData(0), 12);
    forms.write("Listen.Liste.ListIndex", "1");
    EXPECT_EQ(forms.read("Listen.Liste.Text"), "Anton");

    forms.write("Listen.Auswahl.Sorted", "True");
    listen.Auswahl.AddItem("Zeta");
    listen.Auswahl.AddItem("alpha");
    listen.Auswahl.AddItem("Mitte");
    EXPECT_EQ(forms.read("Listen.Auswahl.List(0)"), "alpha");
    EXPECT_EQ(forms.read("Listen.Auswahl.List(2)"), "Zeta");
    forms.write("Listen.Auswahl.ListIndex", "1");
    EXPECT_EQ(listen.Auswahl.Text, "Mitte");

    listen.Liste.RemoveItem(0);
    EXPECT_EQ(listen.Liste.ListIndex, 0);  // the selected line moved up with the list
    EXPECT_THROW(forms.read("Listen.Liste.ItemData(3)"), FormsError);
    EXPECT_THROW(forms.write("Listen.Liste.ListIndex", "7"), FormsError);
}

TEST_F(RegistryTest, GridCellsAndScrollBar)
{
    forms.write("Listen.grid1.Cols", "8");
    forms.write("Listen.grid1.Rows", "3");
    forms.write("Listen.grid1.TextMatrix(1,2)", "Hamburg");
    EXPECT_EQ(forms.read("Listen.grid1.TextMatrix(1,2)"), "Hamburg");
    forms.write("Listen.grid1.Rows", "5");  // growing keeps the cells
    EXPECT_EQ(listen.grid1.TextMatrix(1, 2), "Hamburg");
    listen.grid1.Row = 1;
    listen.grid1.Col = 2;
    EXPECT_EQ(forms.read("Listen.grid1.Text"), "Hamburg");
    EXPECT_THROW(forms.read("Listen.grid1.TextMatrix(5,0)"), FormsError);
    EXPECT_THROW(forms.read("Listen.grid1.TextMatrix(1)"), FormsError);

    forms.write("Listen.HScroll1.Value", "40");
    EXPECT_EQ(listen.HScroll1.Value, 40);
    EXPECT_THROW(forms.write("Listen.HScroll1.Value", "101"), FormsError);
}

TEST_F(RegistryTest, CheckBoxesAndOptionGroups)
{
    forms.write("Listen.SSCheck2.Value", "True");
    EXPECT_EQ(forms.read("Listen.SSCheck2.Value"), "True");
    forms.write("Listen.Check1.Value", "1");
    EXPECT_EQ(forms.read("Listen.Check1.Value"), "1");
    EXPECT_THROW(forms.write("Listen.Check1.Value", "3"), FormsError);

    forms.write("Listen.Option(0).Value", "True");
    forms.write("Listen.Option(2).Value", "True");
    EXPECT_FALSE(listen.Option[0].Value);
    EXPECT_TRUE(listen.Option[2].Value);

    forms.write("Listen.Andere.Value", "True");
    forms.write("Listen.Einzel.Value", "True");
    forms.write("Listen.Multi.Value", "True");
    EXPECT_FALSE(listen.Einzel.Value);
    EXPECT_TRUE(listen.Multi.Value);
    EXPECT_TRUE(listen.Andere.Value);  // another group
}

TEST_F(RegistryTest, AClickChangesTheValueAsTheUserWould)
{
    applyClick(forms, forms.control("Listen.Check1"));
    EXPECT_EQ(listen.Check1.Value, 1);
    listen.Check1.Value = 2;
    applyClick(forms, forms.control("Listen.Check1"));
    EXPECT_EQ(listen.Check1.Value, 0);

    applyClick(forms, forms.control("Form3.AZCHECK"));
    EXPECT_TRUE(form3.AZCHECK.Value);
    applyClick(forms, forms.control("Form3.AZCHECK"));
    EXPECT_FALSE(form3.AZCHECK.Value);
    applyClick(forms, forms.control("Hauptmaske.NeueAdresse"));
    EXPECT_FALSE(haupt.NeueAdresse.Value);  // a plain button keeps no state

    applyClick(forms, forms.control("Form3.Option3D1(5)"));
    applyClick(forms, forms.control("Form3.Option3D1(21)"));
    EXPECT_FALSE(form3.Option3D1[5].Value);
    EXPECT_TRUE(form3.Option3D1[21].Value);
}

TEST_F(RegistryTest, SelTextReplacesTheSelection)
{
    forms.write("Hauptmaske.feld(0).Text", "Hans Müller");
    forms.write("Hauptmaske.feld(0).SelStart", "5");
    forms.write("Hauptmaske.feld(0).SelLength", "6");
    EXPECT_EQ(forms.read("Hauptmaske.feld(0).SelText"), "Müller");
    forms.write("Hauptmaske.feld(0).SelText", "Meier");
    EXPECT_EQ(haupt.feld[0].Text, "Hans Meier");
    EXPECT_EQ(haupt.feld[0].SelStart, 10);
}

TEST_F(RegistryTest, FaultsOfThePathOrTheValue)
{
    static_assert(!std::is_base_of_v<RuntimeError, FormsError>);
    EXPECT_THROW(forms.read("Nirgends.feld(0).Text"), FormsError);
    EXPECT_THROW(forms.read("Hauptmaske.nichtda.Text"), FormsError);
    EXPECT_THROW(forms.read("Hauptmaske.feld(0).Farbe"), FormsError);
    EXPECT_THROW(forms.read("Hauptmaske.feld(23).Text"), FormsError);
    EXPECT_THROW(forms.read("Hauptmaske.feld.Text"), FormsError);
    EXPECT_THROW(forms.read("Hauptmaske.NeueAdresse(1).Caption"), FormsError);
    EXPECT_THROW(forms.read("Hauptmaske.feld(0)"), FormsError);
    EXPECT_THROW(forms.read("Hauptmaske.feld(x).Text"), FormsError);
    EXPECT_THROW(forms.read("Hauptmaske.Label1.Text"), FormsError);  // a label has a Caption
    EXPECT_THROW(forms.write("Hauptmaske.feld(0).Enabled", "vielleicht"), FormsError);
    EXPECT_THROW(forms.write("Hauptmaske.feld(0).Left", "12cm"), FormsError);
    EXPECT_THROW(forms.write("Hauptmaske.feld(0).Name", "x"), FormsError);
    EXPECT_THROW(forms.write("Listen.Liste.ListCount", "3"), FormsError);
    EXPECT_THROW(forms.control("Form3.Option3D1(18)"), FormsError);
    EXPECT_THROW(forms.add(haupt), FormsError);  // a form is registered once
}

TEST_F(RegistryTest, DesignValuesThatAreEasyToGetWrong)
{
    EXPECT_EQ(haupt.feld.count(), 23);
    EXPECT_EQ(haupt.feld.ubound(), 22);
    EXPECT_EQ(haupt.beschreibung.count(), 25);
    EXPECT_EQ(haupt.beschreibung[16].Caption, "Notizen");
    EXPECT_EQ(haupt.feld[0].MaxLength, 256);
    EXPECT_EQ(haupt.prog.lbound(), 1);
    EXPECT_EQ(haupt.prog.ubound(), 20);
    EXPECT_EQ(haupt.init[20].Caption, "20");
    EXPECT_EQ(haupt.Typenliste.count(), 7);
    EXPECT_EQ(haupt.Selektiert.Caption, "Keine Selektion");
    EXPECT_EQ(haupt.InfoTipo.Caption, "Alle Einträge");
    EXPECT_EQ(haupt.Label9.Caption, "REPLAY OFF");

    EXPECT_EQ(form3.Option3D1.count(), 23);
    EXPECT_FALSE(form3.Option3D1.exists(18));
    EXPECT_FALSE(form3.Option3D1.exists(19));
    EXPECT_EQ(form3.Option3D1[25].Caption, "Imagem");
    EXPECT_TRUE(form3.AZCHECK.Ribbon);
    EXPECT_THROW(form3.Option3D1[18], RuntimeError);  // code that reaches a missing element
}

}  // namespace
}  // namespace mk
