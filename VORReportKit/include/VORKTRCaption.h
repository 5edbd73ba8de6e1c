#ifndef VORKTRCaption_h
#define VORKTRCaption_h

#include <string>
#include <vector>

#include "VORKTRLinkTarget.h"

/// A numbered caption, "Figure 3: ...": what the figures and table captions of the kit share.
class VORKIT_EXPORT VORKTRCaption : public VORKTRLinkTarget
{
public:
    /// What a kind of captions has in common.
    struct Kind {
        const char* word;    ///< In front of the number, "Figure ".
        const char* message; ///< Key of another word in the catalog "VORKTRReportingMessages".
        const char* anchor;  ///< In front of the number in links.
        int (*getNumber)();  ///< Gives the next number.
    };

protected:
    /// A caption without a number yet. Its text is escaped; the kind must live on.
    VORKTRCaption(const Kind& iKind, const VORUnicodeString& iText);
    ~VORKTRCaption() = default;

    /// Takes the next number, as an anchor on the page that iReport is writing, and returns that.
    std::string TakeNumber(VORKTRReportingBuffer* iReport, unsigned char iFrames) const;
    /// Number and text as HTML.
    std::string GetHtml() const;
    /// Number and text in lines of at most iWidth characters; takes a number when there is none.
    std::vector<std::string> GetLines(int iWidth) const;

private:
    void Count() const;

    const Kind& _Kind;
    VORUnicodeString _Text;
    mutable int _Number = 0;
};

#endif
