#ifndef VORKTRTableCaption_h
#define VORKTRTableCaption_h

#include "VORKTRCaption.h"

/// The caption above a table, "Table 3: ...", that links can lead to. Tables are numbered in the
/// process as figures are. The word is the message "Table_Number" of the catalog
/// "VORKTRReportingMessages".
class VORKTR_EXPORT VORKTRTableCaption : public VORKTRCaption
{
public:
    /// The text is escaped.
    explicit VORKTRTableCaption(const VORUnicodeString& iCaption);

    /// Starts the table numbers of the process at 1 again. Only the application calls it.
    static void InitTableNumber();

private:
    std::string GetHtml(const std::string& iAnchor, const std::string& iCaption) const override;
};

#endif
