#include "forms/dialer.h"

namespace mk {

DIALER::DIALER()
{
    Caption = QStringLiteral("Dialer");
    Width = 4800;
    Height = 5400;

    Text6.Left = 120;
    Text6.Top = 120;
    Text6.Width = 4440;
    Text1.Left = 120;
    Text1.Top = 480;
    Text1.Width = 4440;
    Text2.Left = 120;
    Text2.Top = 840;
    Text2.Width = 1200;
    Dialnumber = ControlArray<Button>(0, 6, [](Button& b, int i) {
        b.Left = 120;
        b.Top = 1320 + i * 420;
        b.Width = 4440;
        b.Height = 375;
    });

    nameControls(*this, "DIALER");
}

}  // namespace mk
