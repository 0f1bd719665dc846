#pragma once
// A started card file in a temporary home, with the user's part inside modal forms given
// per form, for the tests of the export, the safety copy, the tools and the transfer.

#include "card/card_home.h"
#include "support/file_bytes.h"

#include <QFileInfo>
#include <functional>
#include <map>

namespace mk::test {

class MaintenanceHome : public CardHome {
protected:
    // What the user does while the form is shown modally; a form without an act is left
    // as it is (the notice closes by itself).
    void whileShown(const QString& form, std::function<void()> act)
    {
        acts[form] = std::move(act);
        ui().modalLoop = [this](const QString& shown, const std::function<bool()>&) {
            auto it = acts.find(shown);
            if (it != acts.end())
                it->second();
        };
    }

    // Runs a handler that may end the program; true when it did.
    template <class Step>
    bool ends(Step&& step)
    {
        try {
            step();
        } catch (const ProgramEnded&) {
            return true;
        }
        return false;
    }

    static bool exists(const QString& path) { return QFileInfo::exists(path); }

    std::map<QString, std::function<void()>> acts;
};

}  // namespace mk::test
