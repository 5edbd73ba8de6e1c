#include "VORKTRBackground.h"

#include "VORComponent.h"
#include "VORFile.h"
#include "VORIKTRReportingSettingAtt.h"
#include "VORPath.h"

VORUnicodeString ImageBackground(const VORUnicodeString& iFileName)
{
    return VORUnicodeString("BACKGROUND=\"").Append(iFileName).Append("\"");
}

BackgroundSetting ReadBackgroundSetting()
{
    BackgroundSetting setting;
    void* found = nullptr;
    VORInstantiateComponent("VORKTRReportingSettingCtrl", IID_VORIKTRReportingSettingAtt, &found);
    if (!found)
        return setting;
    auto* const settings = static_cast<VORIKTRReportingSettingAtt*>(found);
    unsigned char isStandard = 1;
    if (settings->GetDefaultBackground(isStandard) >= 0)
        setting.isStandard = isStandard != 0;
    if (!setting.isStandard && settings->GetBackgroundPath(setting.image) < 0)
        setting.image = VORUnicodeString();
    settings->Release();
    return setting;
}

namespace
{

bool IsStandardImageIn(const char* iPath)
{
    VORUnicodeString image;
    return VORMakePath(iPath, StandardBackgroundImage, image) >= 0 &&
           VORFileAccess(image, 0, 0) == 0;
}

} // namespace

VORUnicodeString ChoosePageBackground(const char* iPath)
{
    const BackgroundSetting setting = ReadBackgroundSetting();
    if (setting.isStandard)
        return IsStandardImageIn(iPath) ? ImageBackground(StandardBackgroundImage)
                                        : PlainBackground;
    constexpr std::size_t longestPart = 256;
    char directory[longestPart + 1];
    char name[longestPart + 1];
    const bool isThere =
        VORSplitPath(setting.image.ConvertToChar(), directory, name, sizeof name) >= 0 &&
        VORFileAccess(directory, 0, 0) == 0;
    return isThere ? ImageBackground(name) : PlainBackground;
}
