// The desktop program's start on a fresh home: the start routine through the screens, as
// main() runs it, and a picture of the mask it leaves.

#include "card/app_state.h"
#include "card/session.h"
#include "screens/binder.h"
#include "screens/desktop.h"
#include "screens/qt_user_interface.h"
#include "screens_fixture.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

namespace mk::test {
namespace {

class StartTest : public ::testing::Test {
protected:
    StartTest() { qputenv("MERKKARTELLE_HOME", home.path().toUtf8()); }
    ~StartTest() override
    {
        for (const QString& form : app.forms.formNames())
            app.forms.form(form).Visible = false;
        if (!app.ended)
            binder.refresh();
        qunsetenv("MERKKARTELLE_HOME");
    }

    QTemporaryDir home;
    QtUserInterface ui;
    Clock clock = Clock::fixedAt(QDateTime(QDate(2024, 5, 17), QTime(10, 0, 0)));
    Merkkartelle app{ui, clock};
    Desktop desktop{app, ui};
    Binder& binder = desktop.binder();
};

TEST_F(StartTest, AFirstStartShowsTheMaskWithoutAQuestion)
{
    // A box that should not come is noted and closed, so that it cannot hold the test.
    QStringList boxes;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            boxes << box->text();
            box->done(0);
        }
    });
    watch.start(50);
    binder.setTimersRunning(true);
    binder.run([&] { Start(app); });
    watch.stop();

    EXPECT_TRUE(boxes.isEmpty()) << boxes.join(u'|').toStdString();
    EXPECT_FALSE(app.ended);
    QWidget* main = binder.window("Hauptmaske");
    ASSERT_TRUE(main->isVisible());
    EXPECT_EQ(main->windowTitle(), app.Hauptmaske.Caption);
    EXPECT_FALSE(binder.window("AboutBox")->isVisible());

    main->resize(1280, 800);
    EXPECT_TRUE(savePicture(main, QStringLiteral("Hauptmaske-Start")));
}

}  // namespace
}  // namespace mk::test
