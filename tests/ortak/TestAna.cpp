#include <gtest/gtest.h>

#include <QApplication>

#include "SayiYereli.h"

// One application object for the whole run, and the driver of this build.
int main(int argc, char** argv) {
    // The driver manager reads its settings once, so before anything else.
    qputenv("ODBCSYSINI", VARNEK_BIN);
    ::testing::InitGoogleTest(&argc, argv);
    QApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
