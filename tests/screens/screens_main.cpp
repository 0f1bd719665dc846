#include "screens/qt_user_interface.h"

#include <QApplication>
#include <gtest/gtest.h>
#include <cstdlib>

// The screen tests need a QApplication; without a display the offscreen platform stands in.
int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Merkkartelle"));
    QApplication::setQuitOnLastWindowClosed(false);
    mk::installGermanTranslations(app);
    return RUN_ALL_TESTS();
}
