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
        const char* path;
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
    const std::string paper = images + "/paper.png", missing = images + "/missing.png",
                      decoy = images + "/";
    const std::string colour = "BGCOLOR=\"#EEF3FF\"", standard = "BACKGROUND=\"Corp.gif\"";
    const std::string user = "BACKGROUND=\"paper.png\"", named = "BACKGROUND=\"missing.png\"";
    // The longest parts of a path that later pages name.
    const std::string dots = images + Repeat((256 - static_cast<int>(images.size())) / 2, "/.");
    const std::string directory = dots + std::string(256 - dots.size(), '/');
    const std::string name(256, 'n'), longest = directory + "/" + name;
    const std::string longName = longest + "n", longDirectory = directory + "//" + name;
    const std::string longNamed = "BACKGROUND=\"" + name + "\"";
    // In this order: the background copied last stays that of first pages.
    const struct {
        VORComponentFactory settings;
        Settings::Answers given;
        bool hasStandard;
        std::string_view first, next, copied;
    } cases[] = {
        {nullptr, {0, 0, 0, ""}, false, colour, colour, ""},
        {New<VORBaseUnknown>, {0, 0, 0, ""}, false, colour, colour, ""},
        {New<RefusingSettings>, {0, 0, 0, paper.c_str()}, false, colour, colour, ""},
        {New<Settings>, {0, 1, 0, paper.c_str()}, false, colour, colour, ""},
        {New<Settings>, {VOR_E_FAIL, 0, 0, paper.c_str()}, false, colour, colour, ""},
        {New<Settings>, {0, 0, VOR_E_FAIL, paper.c_str()}, false, colour, colour, ""},
        {New<Settings>, {0, 0, 0, "paper.png"}, false, colour, colour, ""},
        {New<Settings>, {0, 0, 0, decoy.c_str()}, false, colour, colour, ""},
        {New<Settings>, {0, 0, 0, missing.c_str()}, false, colour, named, ""},
        {New<Settings>, {0, 0, 0, longest.c_str()}, false, colour, longNamed, ""},
        {New<Settings>, {0, 0, 0, longName.c_str()}, false, colour, colour, ""},
        {New<Settings>, {0, 0, 0, longDirectory.c_str()}, false, colour, colour, ""},
        {New<Settings>, {0, 0, 0, paper.c_str()}, true, user, user, "paper.png"},
        {New<Settings>, {0, 0, 0, missing.c_str()}, false, user, named, ""},
        {New<Settings>, {0, 0, 0, missing.c_str()}, true, standard, named, "Corp.gif"},
        {New<Settings>, {0, 0, VOR_E_FAIL, paper.c_str()}, true, standard, colour, "Corp.gif"},
        {New<Settings>, {VOR_E_FAIL, 0, 0, paper.c_str()}, true, standard, standard, "Corp.gif"},
        {nullptr, {0, 0, 0, ""}, true, standard, standard, "Corp.gif"},
        {nullptr, {0, 0, 0, ""}, false, standard, colour, ""},
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
             {std::pair("navigation.html", std::string(one.first) + " ALINK=\"#0000FF\""),
              std::pair("page1.html", std::string(one.first)),
              std::pair("page3.html", std::string(one.next))})
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

template <typename Interface>
void ExpectInterface(const char* iName, const GUID& iExported, const GUID& iId)
{
    VORMetaClass* const entered = VORFindInDictionary(iId);
    ASSERT_NE(entered, nullptr) << iName;
    EXPECT_TRUE(Interface::MetaObject() == entered && Interface::ClassId() == iId &&
                iExported == iId);
    EXPECT_STREQ(Interface::ClassName(), iName);
    EXPECT_STREQ(entered->GetFWname(), "VORAnalysisReportInterfaces");
    EXPECT_EQ(entered->GetBase(), VORBaseUnknown::MetaObject());
    EXPECT_EQ(entered->GetKind(), 8);
}

TEST_F(ComponentTest, InterfacesAreInTheDictionaryFromTheStart)
{
    ExpectInterface<VORIKTRReporting>(
        "VORIKTRReporting", IID_VORIKTRReporting,
        {0x580C9CBA, 0x86E9, 0x4B9A, {0xAC, 0x55, 0x59, 0x6D, 0x6E, 0x89, 0xA4, 0x9E}});
    ExpectInterface<VORIKTRGeneralSettingAtt>(
        "VORIKTRGeneralSettingAtt", IID_VORIKTRGeneralSettingAtt,
        {0x7AF29DE1, 0xA4E8, 0x4B09, {0xB5, 0x04, 0x60, 0x03, 0x2B, 0x03, 0x90, 0x4E}});
    ExpectInterface<VORIKTRReportingSettingAtt>(
        "VORIKTRReportingSettingAtt", IID_VORIKTRReportingSettingAtt,
        {0x5C3B22E5, 0x0845, 0x4AAD, {0xAB, 0x6E, 0xA9, 0x25, 0x0F, 0x6F, 0x7E, 0xE5}});
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
