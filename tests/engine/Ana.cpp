#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

// The driver of this build, data sources of its own, and the locale that the environment asks for.
int main(int argc, char** argv) {
    if (!std::setlocale(LC_ALL, "")) {
        std::fputs("The locale of the environment is not there.\n", stderr);
        return 2;
    }
    std::string klasör = (std::filesystem::temp_directory_path() / "test_engine.XXXXXX").string();
    if (!mkdtemp(klasör.data())) return 2;
    setenv("ODBCSYSINI", VARNEK_BIN, 1);
    setenv("ODBCINI", (klasör + "/odbc.ini").c_str(), 1);
    testing::InitGoogleTest(&argc, argv);
    const int sonuç = RUN_ALL_TESTS();
    std::filesystem::remove_all(klasör);
    return sonuç;
}
