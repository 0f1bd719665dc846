#include "card/screen_guard.h"

#include "card/app_state.h"
#include "card/focus.h"
#include "card/card_cursor.h"
#include "card/card_editing.h"
#include "card/main_window.h"
#include "card/mask_transfer.h"

#include <algorithm>
#include <array>

namespace mk {

namespace {

const std::array<QString, 7> kWochentage = {
    QStringLiteral("Sonntag"),  QStringLiteral("Montag"),  QStringLiteral("Dienstag"), QStringLiteral("Mittwoch"),
    QStringLiteral("Donnerstag"), QStringLiteral("Freitag"), QStringLiteral("Samstag"),
};


}  // namespace

QString Wochentag(int tag)
{
    return tag >= 1 && tag <= 7 ? kWochentage[std::size_t(tag - 1)] : QString();
}

int WochentagNummer(const QDate& datum)
{
    // Monday is 1 and Sunday 7 in the calendar; the weekdays here start with Sunday.
    return datum.dayOfWeek() % 7 + 1;
}

void UhrAnzeigen(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    m.panel3d7.Caption = Wochentag(WochentagNummer(app.clock.Date())) + QStringLiteral(", ") + DatumText(app);
    m.Panel3d5.Caption = ZeitText(app);
}

void BildschutzEinpassen(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    Image& schutz = m.Bildschutz;
    schutz.Left = m.SSPanel2.Left;
    schutz.Top = m.SSPanel2.Top;
    schutz.Width = m.SSPanel2.Width;
    schutz.Height = m.SSPanel2.Height;

    // The picture keeps its proportions inside the guard.
    m.Image12.Stretch = true;
    BildEinpassen(m.Image12, schutz);
}

void BildschutzZeigen(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    m.Bildschutz.Visible = true;
    // The guard shows the user's own picture when asked to.
    m.Image12.Visible = app.config.Check3D11.checked();
    if (m.Image12.Visible) {
        m.Image12.Picture = m.Image2.Picture;
        m.Image12.PictureWidth = m.Image2.PictureWidth;
        m.Image12.PictureHeight = m.Image2.PictureHeight;
    }
    BildschutzEinpassen(app);
    PanelsSchliessen(app);
    SetFocus(app, QStringLiteral("Hauptmaske.Text1"));
    m.Text1.SelStart = 0;
    m.Text1.SelLength = int(m.Text1.Text.size());
}

void BildschutzAufheben(Merkkartelle& app)
{
    app.Hauptmaske.Bildschutz.Visible = false;
    app.Hauptmaske.Image12.Visible = false;
}

void Timer2_Timer(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    // The number label's hint follows the card shown.
    m.LaufendeNummer.Hint = LaufendeNummerHinweis(app);
    if (bearbeitungOffen(app) || m.Bildschutz.Visible || !app.config.SSCheck8.checked())
        return;
    BildschutzZeigen(app);
}

void registerScreenGuardHandlers(HandlerTable& table)
{
    const QString main = QStringLiteral("Hauptmaske");
    const QString timer = QStringLiteral("Timer");
    table.on(main, QStringLiteral("Timer1"), timer, UhrAnzeigen);
    table.on(main, QStringLiteral("Timer2"), timer, Timer2_Timer);
    for (const char* control : {"Bildschutz", "Image12"})
        for (const char* event : {"Click", "MouseMove"})
            table.on(main, QString::fromLatin1(control), QString::fromLatin1(event), BildschutzAufheben);
}

}  // namespace mk
