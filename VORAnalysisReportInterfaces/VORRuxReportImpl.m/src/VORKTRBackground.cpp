#include "VORKTRBackground.h"

#include "VORComponent.h"
#include "VORFile.h"
#include "VORKTRSite.h"
#include "VORPath.h"

using namespace VORReport;

VORUnicodeString VORReport::ImageBackground(const VORUnicodeString& iFileName)
{
    return VORUnicodeString("BACKGROUND=\"").Append(iFileName).Append("\"");
}

namespace
{

SettingsPointer FindSettings()
{
    void* found = nullptr;
    const int status = VORInstantiateComponent("VORKTRReportingSettingCtrl",
                                               IID_VORIKTRReportingSettingAtt, &found);
    return SettingsPointer(status < 0 ? nullptr : static_cast<VORIKTRReportingSettingAtt*>(found));
}

bool Exists(const VORUnicodeString& iPath, int& ioFailure)
{
    return NotedUnlessMissing(ioFailure, VORFileAccess(iPath, 0, 0)) == VOR_S_OK;
}

bool IsStandardImageIn(const VORUnicodeString& iPath, int& ioFailure)
{
    VORUnicodeString image;
    return VORMakePath(iPath, StandardBackgroundImage, image) >= 0 && Exists(image, ioFailure);
}

} // namespace

BackgroundSetting VORReport::ReadBackgroundSetting()
{
    BackgroundSetting setting;
    setting.settings = FindSettings();
    if (!setting.settings)
        return setting;
    unsigned char isStandard = 1;
    if (setting.settings->GetDefaultBackground(isStandard) >= 0)
        setting.isStandard = isStandard != 0;
    VORUnicodeString image;
    if (!setting.isStandard && setting.settings->GetBackgroundPath(image) >= 0)
        setting.image = image;
    return setting;
}

VORUnicodeString VORReport::ChoosePageBackground(const VORUnicodeString& iPath, int& ioFailure)
{
    const BackgroundSetting setting = ReadBackgroundSetting();
    if (setting.isStandard)
        return IsStandardImageIn(iPath, ioFailure) ? ImageBackground(StandardBackgroundImage)
                                                   : PlainBackground;
    constexpr std::size_t longestPart = 256;
    char directory[longestPart + 1];
    char name[longestPart + 1];
    const bool isThere =
        setting.image &&
        VORSplitPath(setting.image->ConvertToChar(), directory, name, sizeof name) >= 0 &&
        Exists(directory, ioFailure);
    return isThere ? ImageBackground(name) : PlainBackground;
}
