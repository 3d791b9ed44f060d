// Runs the tests of a program in the locale of the environment, as the window system would set it.

#include <clocale>
#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (std::setlocale(LC_ALL, "") == nullptr) {
        std::fputs("the locale of the environment does not exist here; is LOCPATH set?\n", stderr);
        return 1;
    }
    return RUN_ALL_TESTS();
}
