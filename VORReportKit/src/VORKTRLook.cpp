#include "VORKTRLook.h"

#include <cstring>

#include "VORFile.h"
#include "VORKTRLookStyles.h"
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

VORKTRLook::VORKTRLook() = default;

VORKTRLook::VORKTRLook(const VORUnicodeString& iDirectory) : _Directory(iDirectory) {}

VORKTRLook::~VORKTRLook() = default;

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
}

void VORKTRLook::ASCIIReport(VORUnicodeString&) const {}

int VORKTRLook::GetWidthInChar() const
{
    return 0;
}
