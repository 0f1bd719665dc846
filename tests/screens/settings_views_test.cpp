// The views of config and of the global view: every control has its widget, the settings
// form fits the screen, and the state reaches the widgets.

#include "screens_fixture.h"

#include "screens/widgets.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace mk::test {
namespace {

class SettingsViewsTest : public ScreensTest {};

TEST_F(SettingsViewsTest, EveryControlHasItsWidget)
{
    for (const QString form : {"config", "malaglobalview"}) {
        ASSERT_NE(binder.window(form), nullptr);
        for (const ControlRef& ref : app.forms.controls(form))
            EXPECT_NE(binder.widget(form + u'.' + widgetName(ref)), nullptr)
                << form.toStdString() << "." << widgetName(ref).toStdString();
    }
}

TEST_F(SettingsViewsTest, SettingsFormFitsAndShowsItsState)
{
    app.config.SSCheck7.Value = 1;
    show(QStringLiteral("config"));
    const QSize least = binder.window("config")->minimumSizeHint();
    EXPECT_LE(least.width(), 1280);
    EXPECT_LE(least.height(), 770);
    EXPECT_EQ(widget<QLineEdit>(QStringLiteral("config.Text2"))->text(), "02132");
    EXPECT_TRUE(widget<QCheckBox>(QStringLiteral("config.SSCheck7"))->isChecked());
    EXPECT_EQ(widget<QCheckBox>(QStringLiteral("config.Check3D13"))->text(), "Einstellungen speichern");
    EXPECT_FALSE(widget<QCheckBox>(QStringLiteral("config.Check3D9"))->isVisible());
    binder.run([&] { app.config.Check3D9.Visible = true; });
    EXPECT_TRUE(widget<QCheckBox>(QStringLiteral("config.Check3D9"))->isVisible());
}

TEST_F(SettingsViewsTest, GlobalViewListsThePaths)
{
    binder.run([&] {
        app.malaglobalview.Schnelleauswahlliste.AddItem(QStringLiteral("/daten/karten.mdb"));
        showForm(app, QStringLiteral("malaglobalview"));
    });
    auto* list = widget<QListWidget>(QStringLiteral("malaglobalview.Schnelleauswahlliste"));
    ASSERT_EQ(list->count(), 1);
    EXPECT_EQ(list->item(0)->text(), "/daten/karten.mdb");
    EXPECT_EQ(binder.window("malaglobalview")->windowTitle(), "Merkkartelle - Global Manager");
    EXPECT_FALSE(widget<QLabel>(QStringLiteral("malaglobalview.Label1"))->isVisible());
}

}  // namespace
}  // namespace mk::test
