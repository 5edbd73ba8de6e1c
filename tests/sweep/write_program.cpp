#include <filesystem>

#include "Program.h"

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    PrepareEnvironment("root/images");
    std::filesystem::current_path(argv[1]);
    return Program("root").Write() ? 0 : 1;
}
