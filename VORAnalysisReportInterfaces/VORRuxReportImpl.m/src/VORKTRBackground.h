#ifndef VORKTRBackground_h
#define VORKTRBackground_h

#include <memory>
#include <optional>

#include "VORIKTRReportingSettingAtt.h"
#include "VORUnicodeString.h"

namespace VORReport
{

constexpr const char* StandardBackgroundImage = "Corp.gif";

/// Attributes of BODY: the plain colour, or an image of the report directory.
constexpr const char* PlainBackground = "BGCOLOR=\"#EEF3FF\"";
VORUnicodeString ImageBackground(const VORUnicodeString& iFileName);

struct Releaser {
    void operator()(IUnknown* ioObject) const { ioObject->Release(); }
};
using SettingsPointer = std::unique_ptr<VORIKTRReportingSettingAtt, Releaser>;

/// What the user's settings say of the page background.
struct BackgroundSetting {
    SettingsPointer settings; ///< Held until the background is chosen; null without a component.
    bool isStandard = true;
    std::optional<VORUnicodeString> image; ///< Path of the user's, unless it could not be read.
};

/// Asks the settings component; without one, the standard background.
BackgroundSetting ReadBackgroundSetting();

/// The attribute for a later page of a site in the directory iPath, for which the setting is read
/// again: the standard image when it is there, the user's when the directory it comes from exists.
/// ioFailure notes why that could not be told.
VORUnicodeString ChoosePageBackground(const VORUnicodeString& iPath, int& ioFailure);

} // namespace VORReport

#endif
