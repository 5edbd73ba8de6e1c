#include "Program.h"

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    PrepareEnvironment(argv[1] + std::string("/images"));
    return Program(argv[1]).Write() ? 0 : 1;
}
