#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORComponent.h"
#include "VORDictionary.h"
#include "VORIKTRGeneralSettingAtt.h"
#include "VORIKTRReporting.h"
#include "VORIKTRReportingSettingAtt.h"
#include "VORStatus.h"
#include "support/Rendering.h"

namespace
{

namespace fs = std::filesystem;

using ComponentTest = ReportTest;

/// The settings of a user, and the statuses that come with them.
struct Settings : VORIKTRReportingSettingAtt {
    struct Answers {
        int flagStatus;
        unsigned char flag;
        int pathStatus;
        std::string path;
    };

    Settings() { ++Living; }
    ~Settings() override { --Living; }
    int GetDefaultBackground(unsigned char& oDefault) override
    {
        return oDefault = Given.flag, Given.flagStatus;
    }
    int GetBackgroundPath(VORUnicodeString& oPath) override
    {
        return oPath = Given.path, Given.pathStatus;
    }

    static inline int Living;
    static inline Answers Given;
};

/// Settings that hand out a pointer and refuse it: it is not to be used, as they are gone then.
struct RefusingSettings : Settings {
    VORStatus QueryInterface(const GUID&, void** oInterface) override
    {
        return *oInterface = this, VOR_E_FAIL;
    }
};

template <typename Component>
VORBaseUnknown* New()
{
    return new Component;
}

TEST_F(ComponentTest, BackgroundIsTheUsersImageThenTheStandardOneThenColour)
{
    const std::string images = temporary.Path("images");
    fs::create_directory(images);
    WriteFile(images + "/Corp.gif", "standard");
    WriteFile(images + "/paper.png", "user's");
    const std::string paper = images + "/paper.png", missing = images + "/missing.png";
    const std::string colour = "BGCOLOR=\"#EEF3FF\"", standard = "BACKGROUND=\"Corp.gif\"";
    const std::string user = "BACKGROUND=\"paper.png\"", named = "BACKGROUND=\"missing.png\"";
    // The longest parts of a path that later pages name.
    const std::string dots = images + Repeat((256 - static_cast<int>(images.size())) / 2, "/.");
    const std::string directory = dots + std::string(256 - dots.size(), '/');
    const std::string name(256, 'n'), longest = directory + "/" + name;
    const std::string longNamed = "BACKGROUND=\"" + name + "\"";
    // In this order: the background copied last stays that of first pages.
    const struct {
        VORComponentFactory settings;
        Settings::Answers given;
        bool hasStandard;
        std::string first, next, copied;
    } cases[] = {
        {nullptr, {}, false, colour, colour, ""},
        {New<VORBaseUnknown>, {}, false, colour, colour, ""},
        {New<RefusingSettings>, {0, 0, 0, paper}, false, colour, colour, ""},
        {New<Settings>, {0, 1, 0, paper}, false, colour, colour, ""},
        {New<Settings>, {VOR_E_FAIL, 0, 0, paper}, false, colour, colour, ""},
        {New<Settings>, {0, 0, VOR_E_FAIL, paper}, false, colour, colour, ""},
        {New<Settings>, {0, 0, 0, "paper.png"}, false, colour, colour, ""},
        {New<Settings>, {0, 0, 0, images + "/"}, false, colour, colour, ""},
        {New<Settings>, {0, 0, 0, missing}, false, colour, named, ""},
        {New<Settings>, {0, 0, 0, longest}, false, colour, longNamed, ""},
        {New<Settings>, {0, 0, 0, longest + "n"}, false, colour, colour, ""},
        {New<Settings>, {0, 0, 0, directory + "//" + name}, false, colour, colour, ""},
        {New<Settings>, {0, 0, 0, paper}, true, user, user, "paper.png"},
        {New<Settings>, {0, 0, 0, missing}, false, user, named, ""},
        {New<Settings>, {0, 0, 0, missing}, true, standard, named, "Corp.gif"},
        {New<Settings>, {0, 0, VOR_E_FAIL, paper}, true, standard, colour, "Corp.gif"},
        {New<Settings>, {VOR_E_FAIL, 0, 0, paper}, true, standard, standard, "Corp.gif"},
        {nullptr, {}, true, standard, standard, "Corp.gif"},
        {nullptr, {}, false, standard, colour, ""},
    };
    Add({Title("A", 2), Title("B", 2)});
    for (const auto& one : cases) {
        SCOPED_TRACE("case " + std::to_string(&one - cases));
        VORRegisterComponent("VORKTRReportingSettingCtrl", one.settings);
        SetEnv("VORGraphicPath",
               one.hasStandard ? (site + ListSeparator + ListSeparator + images).c_str() : "");
        Settings::Given = one.given;
        fs::remove_all(site);
        report.GetPagesNumber() = 1;
        ASSERT_EQ(Make(), 0);
        EXPECT_EQ(Settings::Living, 0);
        for (const auto& [page, told] :
             {std::pair("navigation.html", one.first + " ALINK=\"#0000FF\""),
              {"page1.html", one.first},
              {"page3.html", one.next}})
            EXPECT_TRUE(Holds(Page(page), "\n<BODY " + told + ">\n")) << page;
        for (const std::string image : {"Corp.gif", "paper.png"})
            EXPECT_EQ(fs::exists(site + "/" + image), image == one.copied) << image;
    }
    WriteFile(site + "/Corp.gif", "an older and longer one");
    SetEnv("VORGraphicPath", images.c_str());
    EXPECT_EQ(report.RemoveObject(1), 0);
    EXPECT_EQ(report.Update(), 0);
    EXPECT_EQ(Page("Corp.gif"), "standard");
    EXPECT_TRUE(Holds(Page("index.html"), "\n<BODY " + standard + ">\n"));
}

TEST_F(ComponentTest, InterfacesAreInTheDictionaryFromTheStart)
{
    const struct {
        const VORMetaClass* meta;
        const char* name;
        GUID exported, id;
    } cases[] = {{VORIKTRReporting::MetaObject(),
                  VORIKTRReporting::ClassName(),
                  IID_VORIKTRReporting,
                  {0x580C9CBA, 0x86E9, 0x4B9A, {0xAC, 0x55, 0x59, 0x6D, 0x6E, 0x89, 0xA4, 0x9E}}},
                 {VORIKTRGeneralSettingAtt::MetaObject(),
                  VORIKTRGeneralSettingAtt::ClassName(),
                  IID_VORIKTRGeneralSettingAtt,
                  {0x7AF29DE1, 0xA4E8, 0x4B09, {0xB5, 0x04, 0x60, 0x03, 0x2B, 0x03, 0x90, 0x4E}}},
                 {VORIKTRReportingSettingAtt::MetaObject(),
                  VORIKTRReportingSettingAtt::ClassName(),
                  IID_VORIKTRReportingSettingAtt,
                  {0x5C3B22E5, 0x0845, 0x4AAD, {0xAB, 0x6E, 0xA9, 0x25, 0x0F, 0x6F, 0x7E, 0xE5}}}};
    std::string names;
    for (const auto& one : cases) {
        EXPECT_TRUE(VORFindInDictionary(one.id) == one.meta && one.exported == one.id) << one.name;
        EXPECT_STREQ(one.meta->GetFWname(), "VORAnalysisReportInterfaces");
        EXPECT_TRUE(one.meta->GetBase() == VORBaseUnknown::MetaObject() &&
                    one.meta->GetKind() == 8);
        names += one.name;
    }
    EXPECT_EQ(names, "VORIKTRReportingVORIKTRGeneralSettingAttVORIKTRReportingSettingAtt");
}

TEST_F(ComponentTest, AHandleTakesItsInterfaceAlone)
{
    VORIKTRReporting component;
    VORBaseUnknown stranger;
    VORIKTRReporting_var handle;
    EXPECT_EQ(handle.__CastTo(&component), &component);
    VORIKTRReporting* const held = handle;
    EXPECT_TRUE(held == &component && handle->AddRef() == 3 && held->Release() == 2);
    EXPECT_EQ(handle.__CastTo(&stranger), nullptr);
    EXPECT_TRUE(!handle && component.AddRef() == 2); // it has let go
    Settings settings;
    for (const int status : {settings.GetReservedSetting1(), settings.GetReservedSetting2(),
                             settings.GetReservedSetting3()})
        EXPECT_EQ(status, VOR_E_NOTIMPL);
}

} // namespace
