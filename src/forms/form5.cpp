#include "forms/form5.h"

namespace mk {

Form5::Form5()
{
    Width = 6600;
    Height = 3600;
    Label5.Caption = QStringLiteral("Programm beenden ?");
    nameControls(*this, "Form5");
}

}  // namespace mk
