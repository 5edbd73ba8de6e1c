#include "VORKTRLook.h"

#include <cstring>

#include "VORFile.h"
#include "VORKTRLookStyles.h"
#include "VORKTRReportingBuffer.h"
#include "VORPath.h"

using namespace VORKit;

namespace
{

VORStatus WriteStyles(const VORUnicodeString& iPath, const char* iStyles)
{
    unsigned int file = 0;
    const VORStatus opened = VORFOpen(iPath, "w", file);
    if (opened < 0)
        return opened;
    for (const char* const text : {SharedLook, iStyles})
        VORFWrite(file, text, std::strlen(text), nullptr); // the close tells a failure too
    return VORFClose(file);
}

} // namespace

void VORKTRLook::Report(unsigned int, const char* iPath, unsigned char iFrames, unsigned int) const
{
    Replace(iPath, "main.css", MainLook);
    if (iFrames)
        Replace(iPath, "navigation.css", NavigationLook);
}

void VORKTRLook::Replace(const char* iPath, const char* iName, const char* iStyles) const
{
    VORUnicodeString source;
    VORUnicodeString target;
    VORStatus status = VORMakePath(iPath, iName, target);
    if (status >= 0 && _Directory != "")
        status = VORMakePath(_Directory, iName, source);
    if (status >= 0)
        status = source == "" ? WriteStyles(target, iStyles) : VORFCopy(source, target, 1);
    if (_Buffer)
        _Buffer->NoteWriteStatus(status);
}
