// The export file byte for byte: both layouts, the Null marker, the one-column case, the
// cursor's order and selection; and a file that cannot be written leaves the earlier one.

#include "maintenance_home.h"

#include "maintenance/export.h"

namespace mk::test {
namespace {

class ExportTest : public MaintenanceHome {
protected:
    void SetUp() override
    {
        MaintenanceHome::SetUp();
        addCard({{"Nachname", "Zeller"}, {"Vorname", "Anna"}, {"Firma", "Zeta"}});
        addCard({{"Nachname", "Adler"}, {"Firma", "Alpha"}});
        addCard({{"Nachname", "Müller"}, {"Vorname", "Hans"}});
        start();
    }

    QByteArray exported(const QStringList& columns, bool horizontal)
    {
        const QString path = homeFile(QStringLiteral("export.txt"));
        ExportSchreiben(app(), path, columns, horizontal);
        return readBytes(path);
    }

    void openForm() { raiseEvent(app(), "Hauptmaske.Command3D25", "Click"); }
    void select(const QString& list, int index)
    {
        ListBox& box = list == "Datenfelder" ? app().frmExport.Datenfelder : app().frmExport.DatenfelderExport;
        box.ListIndex = index;
        raiseEvent(app(), "frmExport." + list, "Click");
    }
    void order(const QString& sort, const QString& filter = QString())
    {
        RecordsetPtr rs = app().Kartensatz;
        rs->Sort = sort;
        rs->Filter = filter;
        app().Kartensatz = rs->createDynaset();
    }
};

TEST_F(ExportTest, BothLayoutsCarryTheHeaderTheTwoBareReturnsAndTheNullMarker)
{
    order("Nachname");
    EXPECT_EQ(exported({"Nachname", "Vorname"}, true),
              QByteArray(" Nachname  Vorname \r\r"
                         " Adler  * \r\n"
                         " Müller  Hans \r\n"
                         " Zeller  Anna \r\n"));
    EXPECT_EQ(exported({"Nachname", "Vorname"}, false),
              QByteArray(" Nachname \r\n Vorname \r\r"
                         " Adler \r\n * \r\n"
                         " Müller \r\n Hans \r\n"
                         " Zeller \r\n Anna \r\n"));
    // One column: no separators at all.
    EXPECT_EQ(exported({"Firma"}, false), QByteArray(" Firma \r\r Alpha \r\n * \r\n Zeta \r\n"));
}

TEST_F(ExportTest, OnlyTheCardsOfTheCursorInItsOrderAndTheCursorStaysOnItsCard)
{
    order("Nachname DESC", "Firma IS NOT NULL");
    app().Kartensatz->MoveLast();
    const QString before = app().Kartensatz->Fields("Nachname").text();
    EXPECT_EQ(exported({"Nachname"}, true), QByteArray(" Nachname \r\r Zeller \r\n Adler \r\n"));
    EXPECT_EQ(app().Kartensatz->Fields("Nachname").text(), before);
    // The progress shows the third column of the last card written.
    EXPECT_EQ(app().frmExport.Infozeile.Caption, "Alpha");
}

TEST_F(ExportTest, AFileThatCannotBeWrittenIsToldInTheStatusLineWithoutABox)
{
    const QString path = homeFile(QStringLiteral("export.txt"));
    writeBytes(path, "earlier");
    whileShown("frmExport", [&] {
        raiseEvent(app(), "frmExport.Command1", "Click");
        ui().answerSave(homeFile("fehlt/export.txt"));
        raiseEvent(app(), "frmExport.Export", "Click");
        EXPECT_TRUE(app().frmExport.Infozeile.Caption.startsWith("Fehler: "));
        EXPECT_FALSE(exists(homeFile("fehlt/export.txt")));
    });
    openForm();
    EXPECT_EQ(readBytes(path), "earlier");
    EXPECT_TRUE(ui().messageBoxes().empty());
}

TEST_F(ExportTest, TheFormOffersTheColumnsAndExportsOnlyWithAChoice)
{
    whileShown("frmExport", [&] {
        frmExport& f = app().frmExport;
        ASSERT_EQ(f.Datenfelder.ListCount(), 55);  // the fields 0 to 54
        EXPECT_EQ(f.Datenfelder.List(0), "Schluessel");
        EXPECT_EQ(f.Datenfelder.ListIndex, 0);
        EXPECT_FALSE(f.Export.Enabled);

        select("Datenfelder", 4);
        raiseEvent(app(), "frmExport.Übernehmen", "Click");
        raiseEvent(app(), "frmExport.Datenfelder", "DblClick");  // Nachname a second time
        EXPECT_EQ(f.DatenfelderExport.ListCount(), 2);
        EXPECT_TRUE(f.Export.Enabled);

        select("DatenfelderExport", 0);
        raiseEvent(app(), "frmExport.Rückgängig", "Click");
        select("DatenfelderExport", 0);
        raiseEvent(app(), "frmExport.DatenfelderExport", "DblClick");
        EXPECT_FALSE(f.Export.Enabled);

        raiseEvent(app(), "frmExport.Command1", "Click");
        EXPECT_EQ(f.DatenfelderExport.ListCount(), 55);
        raiseEvent(app(), "frmExport.Command2", "Click");
        EXPECT_FALSE(f.Export.Enabled);
        raiseEvent(app(), "frmExport.Export", "Click");  // nothing asked, no file
        EXPECT_TRUE(ui().boxes.empty());

        f.Check3D1.Value = 1;
        raiseEvent(app(), "frmExport.Command3D1", "Click");
    });
    openForm();
    EXPECT_EQ(app().Einstellungsliste[kExportLayoutEntry], "True");
    // The layout comes back from the settings entry at the next opening.
    whileShown("frmExport", [&] {
        EXPECT_TRUE(app().frmExport.Check3D1.checked());
        EventArgs esc;
        esc.KeyCode = vbKeyEscape;
        raiseEvent(app(), "frmExport", "KeyDown", esc);
    });
    openForm();
}

}  // namespace
}  // namespace mk::test
