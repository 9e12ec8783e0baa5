#include <gtest/gtest.h>

#include <QApplication>

#include "kit/spoken.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    MakeControlsSpeak();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
