#ifndef VORMsgCatalog_h
#define VORMsgCatalog_h

#include "VORSystemExport.h"
#include "VORUnicodeString.h"

/// The texts that a host registers for the messages of its libraries.
class VORSYSTEM_EXPORT VORMsgCatalog
{
public:
    VORMsgCatalog() = delete;

    /// Sets the text of iKey in iCatalog, replacing an earlier one; a null name is ignored.
    static void RegisterMessage(const char* iCatalog, const char* iKey,
                                const VORUnicodeString& iText);

    /// The text registered for iKey in iCatalog, else iDefault, also for null names. "/p1" to "/p9"
    /// in it stand for the iCount parameters (none when null), "/p1" for the first; others are left
    /// as they are.
    static VORUnicodeString BuildMessage(const char* iCatalog, const char* iKey,
                                         const VORUnicodeString* iParameters, int iCount,
                                         const VORUnicodeString& iDefault);
};

#endif
