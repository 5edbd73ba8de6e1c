#include "VORMsgCatalog.h"

#include <map>
#include <string>
#include <utility>

namespace
{

using MessageMap = std::map<std::pair<std::string, std::string>, VORUnicodeString>;

MessageMap& Messages()
{
    static MessageMap messages;
    return messages;
}

// Index of the parameter that a placeholder at iText stands for, -1 when there is none.
int PlaceholderAt(const char* iText)
{
    const bool isPlaceholder =
        iText[0] == '/' && iText[1] == 'p' && iText[2] >= '1' && iText[2] <= '9';
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
    Messages()[{iCatalog, iKey}] = iText;
}

VORUnicodeString VORMsgCatalog::BuildMessage(const char* iCatalog, const char* iKey,
                                             const VORUnicodeString* iParameters, int iCount,
                                             const VORUnicodeString& iDefault)
{
    const auto found = Messages().find({iCatalog, iKey});
    const VORUnicodeString& text = found == Messages().end() ? iDefault : found->second;
    return Fill(text.ConvertToChar(), iParameters, iCount).c_str();
}
