#ifndef VORMsgCatalog_h
#define VORMsgCatalog_h

#include "VORUnicodeString.h"

/// This host has no translations.
class VORMsgCatalog
{
public:
    static VORUnicodeString BuildMessage(const char*, const char*, const VORUnicodeString*, int,
                                         const VORUnicodeString& iDefault)
    {
        return iDefault;
    }
};

#endif
