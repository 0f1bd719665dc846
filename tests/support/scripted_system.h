#pragma once
// A system object for behaviour tests: the scripted user interface and a clock that stands
// still at a fixed moment until a test moves it.

#include "card/app_state.h"

#include <QDateTime>

namespace mk::test {

struct ScriptedSystem {
    ScriptedUserInterface ui;
    Clock clock = Clock::fixedAt(QDateTime(QDate(2024, 5, 17), QTime(10, 0, 0)));
    Merkkartelle app{ui, clock};
};

}  // namespace mk::test
