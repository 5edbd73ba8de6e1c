#include "VORMsgCatalog.h"

#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace
{

struct Catalogs {
    std::mutex mutex;
    std::map<std::pair<std::string, std::string>, VORUnicodeString> texts;
};

// Never destroyed: static reports may be written as late as they end.
Catalogs& Registered()
{
    static Catalogs& catalogs = *new Catalogs;
    return catalogs;
}

VORUnicodeString TextOf(const char* iCatalog, const char* iKey, const VORUnicodeString& iDefault)
{
    Catalogs& catalogs = Registered();
    const std::lock_guard<std::mutex> lock(catalogs.mutex);
    const auto found = catalogs.texts.find({iCatalog, iKey});
    return found == catalogs.texts.end() ? iDefault : found->second;
}

// Index of the parameter that a placeholder at iText stands for, below 0 when there is none.
int PlaceholderAt(const char* iText)
{
    const bool isPlaceholder = iText[0] == '/' && iText[1] == 'p' && iText[2] <= '9';
    return isPlaceholder ? iText[2] - '1' : -1;
}

// In one pass: a parameter may hold what looks like a placeholder.
std::string Fill(const char* iText, const VORUnicodeString* iParameters, int iCount)
{
    std::string filled;
    while (*iText) {
        const int parameter = PlaceholderAt(iText);
        if (parameter >= 0 && parameter < iCount) {
            filled += iParameters[parameter].ConvertToChar();
            iText += 3;
        } else {
            filled += *iText++;
        }
    }
    return filled;
}

} // namespace

void VORMsgCatalog::RegisterMessage(const char* iCatalog, const char* iKey,
                                    const VORUnicodeString& iText)
{
    if (!iCatalog || !iKey)
        return;
    Catalogs& catalogs = Registered();
    const std::lock_guard<std::mutex> lock(catalogs.mutex);
    catalogs.texts[{iCatalog, iKey}] = iText;
}

VORUnicodeString VORMsgCatalog::BuildMessage(const char* iCatalog, const char* iKey,
                                             const VORUnicodeString* iParameters, int iCount,
                                             const VORUnicodeString& iDefault)
{
    const VORUnicodeString text = iCatalog && iKey ? TextOf(iCatalog, iKey, iDefault) : iDefault;
    return Fill(text.ConvertToChar(), iParameters, iParameters ? iCount : 0).c_str();
}
