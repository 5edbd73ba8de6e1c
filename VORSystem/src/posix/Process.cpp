#include <cstdlib>

#include <unistd.h>

#include "VORSystemLayer.h"

const char* VORLayer::GetEnv(const char* iName)
{
    return std::getenv(iName);
}

int VORLayer::RunCommand(const char* iCommand)
{
    return std::system(iCommand);
}

unsigned long VORLayer::ProcessId()
{
    return static_cast<unsigned long>(::getpid());
}
