#include "VOREnvironment.h"

#include <chrono>

#include "VORSystemLayer.h"

const char* VORGetEnv(const char* iName)
{
    return iName ? VORLayer::GetEnv(iName) : nullptr;
}

void VORGetCurrentTime(unsigned long* oSeconds, unsigned long* oMicroseconds)
{
    using namespace std::chrono;
    const auto now = duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
    if (oSeconds)
        *oSeconds = static_cast<unsigned long>(now / 1000000);
    if (oMicroseconds)
        *oMicroseconds = static_cast<unsigned long>(now % 1000000);
}

int VORRunCommand(const VORUnicodeString& iCommand)
{
    return VORLayer::RunCommand(iCommand.ConvertToChar());
}
