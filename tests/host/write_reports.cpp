#include <filesystem>

#include "Reports.h"

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    std::filesystem::current_path(argv[1]);
    return WriteReports() ? 0 : 1;
}
