#pragma once
// The desktop's screens over a system object whose handler table the test fills itself.

#include "card/app_state.h"
#include "platform/clock.h"
#include "screens/binder.h"
#include "screens/desktop.h"
#include "screens/qt_user_interface.h"

#include <QDateTime>
#include <QDir>
#include <QWidget>
#include <gtest/gtest.h>

namespace mk::test {

// Where the screens tests leave their pictures, made when missing.
inline QString pictureFolder()
{
    const QString folder = QStringLiteral(MK_BUILD_DIR) + QStringLiteral("/screens");
    QDir().mkpath(folder);
    return folder;
}

// A window grabbed into build/screens/NAME.png.
inline bool savePicture(QWidget* window, const QString& name)
{
    return window->grab().save(pictureFolder() + u'/' + name + QStringLiteral(".png"));
}

class ScreensTest : public ::testing::Test {
protected:
    ScreensTest()
    {
        app.handlers = HandlerTable{};  // only what the test registers runs
    }
    ~ScreensTest() override
    {
        for (const QString& form : app.forms.formNames())
            app.forms.form(form).Visible = false;
        if (!app.ended)
            binder.refresh();
    }

    template <class W>
    W* widget(const QString& path)
    {
        auto* w = qobject_cast<W*>(binder.widget(path));
        EXPECT_NE(w, nullptr) << path.toStdString();
        return w;
    }
    void show(const QString& form)
    {
        binder.run([&] { showForm(app, form); });
    }

    QtUserInterface ui;
    Clock clock = Clock::fixedAt(QDateTime(QDate(2024, 5, 17), QTime(10, 0, 0)));
    Merkkartelle app{ui, clock};
    Desktop desktop{app, ui};
    Binder& binder = desktop.binder();
};

}  // namespace mk::test
