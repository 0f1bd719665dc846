#include <QCoreApplication>
#include <gtest/gtest.h>
#include <cstdlib>

// The core test programs need no screen; the offscreen platform stands in where one is asked for.
int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
