#include "VORKTRLook.h"

#include <cstring>

#include "VORFile.h"
#include "VORKTRLookStyles.h"
#include "VORKTRReportingBuffer.h"
#include "VORPath.h"

namespace
{

VORStatus WriteFile(const VORUnicodeString& iPath, const char* iText)
{
    unsigned int file = 0;
    const VORStatus opened = VORFOpen(iPath, "w", file);
    if (opened < 0)
        return opened;
    const VORStatus written = VORFWrite(file, iText, std::strlen(iText), nullptr);
    const VORStatus closed = VORFClose(file);
    return written < 0 ? written : closed;
}

VORStatus CopyFrom(const VORUnicodeString& iDirectory, const char* iName,
                   const VORUnicodeString& iTarget)
{
    VORUnicodeString source;
    const VORStatus joined = VORMakePath(iDirectory, iName, source);
    return joined < 0 ? joined : VORFCopy(source, iTarget, 1);
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
    VORUnicodeString target;
    VORStatus status = VORMakePath(iPath, iName, target);
    if (status >= 0)
        status =
            _Directory == "" ? WriteFile(target, iStyles) : CopyFrom(_Directory, iName, target);
    if (_Buffer)
        _Buffer->NoteWriteStatus(status);
}
