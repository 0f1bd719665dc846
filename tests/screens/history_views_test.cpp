// The history and the connections on screen: a filled list and an enlarged connections form
// are grabbed into pictures, and both fit the screen.

#include "screens_fixture.h"

#include <QDir>
#include <QLabel>

namespace mk::test {
namespace {

class HistoryViews : public ScreensTest {
protected:
    void save(const QString& form, const QString& name)
    {
        QWidget* window = binder.window(form);
        EXPECT_LE(window->minimumSizeHint().width(), 1280) << name.toStdString();
        EXPECT_LE(window->minimumSizeHint().height(), 770) << name.toStdString();
        ASSERT_TRUE(savePicture(window, name));
    }
};

TEST_F(HistoryViews, TheFilledHistoryIsGrabbed)
{
    ListBox& list = app.replay.Schnelleauswahlliste;
    const char* lines[] = {"Müller\tHans\tMüller & Söhne GmbH\t0211 123456\t123", "\t------------------------",
                           "Schulz\tErika\tStadtwerke\t0211 555\t87"};
    const long numbers[] = {123, 44, 87};
    for (int i = 0; i < 3; ++i)
        list.setItemData(list.AddItem(QString::fromUtf8(lines[i])), numbers[i]);
    list.ListIndex = 2;
    app.replay.Label1.Caption = QStringLiteral("3");
    app.replay.Label2.Caption = QStringLiteral("87");
    app.replay.Command5.Enabled = true;
    app.replay.Panel3D1.Caption = app.replay.Command3D1.Hint;
    show(QStringLiteral("replay"));
    save(QStringLiteral("replay"), QStringLiteral("replay-filled"));
}

TEST_F(HistoryViews, TheEnlargedConnectionsFormShowsItsBrowser)
{
    Aform& f = app.Aform;
    f.Suchtext[0].Text = QStringLiteral("87");
    f.FeldA[1].Text = QStringLiteral("Erika Schulz");
    f.feldB[1].Text = QStringLiteral("87");
    f.FeldA[2].Text = QStringLiteral("* Adler");
    f.feldB[2].Text = QStringLiteral("2");
    f.Frame1.Visible = true;
    f.Width = 12600;
    f.Command7.Caption = QStringLiteral("..<");
    f.Text1.Text = QStringLiteral("Mü");
    f.SuchOption[0].Value = false;
    f.SuchOption[4].Value = true;
    const char* values[] = {"Kunde", "Dr.", "Hans", "Müller", "Müller & Söhne GmbH", "Lindenstraße 12", "Altstadt",
                            "40213", "Düsseldorf", "NRW", "Einkauf", "Deutschland", "0049", "0211 123456", "123"};
    for (int i = 0; i < Aform::kInfofelder; ++i)
        f.Infolabel[i].Caption = QString::fromUtf8(values[i]);
    show(QStringLiteral("Aform"));
    EXPECT_EQ(widget<QLabel>(QStringLiteral("Aform.Infolabel(3)"))->text(), "Müller");
    save(QStringLiteral("Aform"), QStringLiteral("Aform-gross"));
}

}  // namespace
}  // namespace mk::test
