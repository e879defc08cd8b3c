// Entry of the end-to-end tests. They need no display: each desktop is one of their own.

#include "e2e/desktop_test.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    corvane::e2e::takePicturesOfFailures();
    const int status = RUN_ALL_TESTS();
    corvane::e2e::endDesktops();
    return status;
}
