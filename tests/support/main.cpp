#include <clocale>
#include <gtest/gtest.h>

// In the user's locale, as applications run: no test may depend on it.
int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, "");
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
