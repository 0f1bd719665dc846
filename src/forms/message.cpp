#include "forms/message.h"

namespace mk {

Message::Message()
{
    Caption = QString();
    Width = 4500;
    Height = 900;
    KeyPreview = true;

    Label1.AutoSize = true;
    Label1.Alignment = vbCenter;
    Label1.Font = FontSpec{QStringLiteral("Arial"), 12, true, false};
    Label1.Left = 120;
    Label1.Top = 240;
    Label1.Width = 4260;
    Label1.Height = 420;

    Label3.Visible = false;
    picAusgabe.Visible = false;
    Image1.Visible = false;
    Image2.Visible = false;

    Timer1.Interval = 2000;

    Image1.Picture = QStringLiteral("festplatte");
    Image2.Picture = QStringLiteral("diskette");
    for (Control* c : std::initializer_list<Control*>{&Image1, &Image2, &picAusgabe, &Label2})
        c->Visible = false;
    Label2.Alignment = vbCenter;

    nameControls(*this, "Message");
}

}  // namespace mk
