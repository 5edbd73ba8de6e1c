#include <iostream>
#include <string>

#include <gtest/gtest.h>

#include "TestSystem.h"
#include "VORComponent.h"
#include "VORDictionary.h"
#include "VOREnvironment.h"
#include "VORFatalError.h"
#include "VORFile.h"
#include "VORMsgCatalog.h"
#include "VORPath.h"

namespace
{

void Fail()
{
    VORFatalError("Failed:_Text", nullptr, nullptr, nullptr, "src/VORText", 4711);
}

TEST(FatalErrorDeathTest, AbortsUnlessAHandlerThrows)
{
    const VORFatalErrorHandler returning = [](const char* iKey, const char* iPath, int iLine) {
        std::cerr << iKey << '|' << iPath << '|' << iLine;
    };
    const VORFatalErrorHandler throwing = [](const char*, const char*, int) { throw 1; };
    EXPECT_EXIT(Fail(), Aborted, "Failed:_Text.*src/VORText.*4711");
    EXPECT_EQ(VORSetFatalErrorHandler(returning), nullptr);
    EXPECT_EXIT(Fail(), Aborted, "^Failed:_Text.src/VORText.4711");
    EXPECT_EQ(VORSetFatalErrorHandler(throwing), returning);
    EXPECT_THROW(Fail(), int);
    VORSetFatalErrorHandler(nullptr);
}

TEST(Messages, RegisteredTextsComeBeforeTheDefault)
{
    const VORUnicodeString parameters[] = {"plots/p2.gif", "second"};
    const auto build = [&](const char* iCatalog, const char* iKey) {
        return VORMsgCatalog::BuildMessage(iCatalog, iKey, parameters, 2, "/p2:/p1,/p1 /p3/p/ p=1");
    };
    VORMsgCatalog::RegisterMessage("Catalog", "Key", "first");
    VORMsgCatalog::RegisterMessage("Catalog", "Key", "Bild \u00E9");
    EXPECT_TRUE(build("Catalog", "Key") == "Bild \u00E9");
    EXPECT_TRUE(build("Other", "Key") == "second:plots/p2.gif,plots/p2.gif /p3/p/ p=1");
    EXPECT_TRUE(build("Catalog", "Other") == build("Other", "Key"));
}

TEST(NullArguments, AreRefused)
{
    const GUID id = IID_IUnknown;
    char text[8] = "";
    VORUnicodeString path = "left alone";
    VORDIR closed;
    for (const VORStatus status :
         {VORFWrite(1, nullptr, 1, nullptr), VORMakePath("a", "b", nullptr, 8),
          VORSplitPath("a/b", nullptr, text, 8), VORSplitPath("a/b", text, nullptr, 8),
          VORFindPath(nullptr, "/", path), VOROpenDirectory("/", nullptr),
          VORCloseDirectory(nullptr), VORCloseDirectory(&closed),
          VORInstantiateComponent(nullptr, id, nullptr),
          VORBaseUnknown().QueryInterface(id, nullptr)})
        EXPECT_LT(status, 0);
    EXPECT_EQ(VORGetEnv(nullptr), nullptr);
    EXPECT_STREQ(VORStatusText(1), "success");
    EXPECT_STREQ(VORStatusText(VOR_E_DISK_FULL), "disk full");
    EXPECT_EQ(VORStatusText(VOR_E_INVALIDARG) + std::string(VORStatusText(VOR_E_NOINTERFACE)),
              "invalid argumentno such interface");
    VORRegisterComponent(nullptr, nullptr);
    VORMsgCatalog::RegisterMessage(nullptr, "key", "text");
    VORMsgCatalog::RegisterMessage("catalog", nullptr, "text");
    EXPECT_TRUE(VORMsgCatalog::BuildMessage(nullptr, nullptr, nullptr, 1, "/p1") == "/p1");
}

const GUID InterfaceId = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
const GUID ComponentId = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 12}};
VORMetaClass InterfaceMeta(&InterfaceId, "Interface", VORBaseUnknown::MetaObject(), nullptr,
                           VORInterfaceKind);
VORMetaClass ComponentMeta(&ComponentId, "Component", nullptr, &InterfaceMeta,
                           VORImplementationKind);
const VORFillDictionary Fill(InterfaceId, CLSID_VORMetaClass, &InterfaceMeta, nullptr);

struct Component : VORBaseUnknown {
    Component() { ++Living; }
    ~Component() override
    {
        --Living;
        VORBaseUnknown_var itself; // ends it no second time
        EXPECT_EQ(itself.CastTo(this, IID_VORBaseUnknown), this);
    }
    VORMetaClass* GetMetaObject() const override { return &InterfaceMeta; }

    static inline int Living = 0;
};

TEST(Components, AreMadeByNameWithOneReference)
{
    VORRegisterComponent("Nothing", []() -> VORBaseUnknown* { return nullptr; });
    VORRegisterComponent("Component", []() -> VORBaseUnknown* { return new Component; });
    void* found = nullptr;
    const GUID unknown = {0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
    for (const GUID& id : {InterfaceId, unknown, IID_VORBaseUnknown}) {
        ASSERT_EQ(VORInstantiateComponent("Component", id, &found), VOR_S_OK);
        EXPECT_EQ(static_cast<VORBaseUnknown*>(found)->Release(), 0u);
    }
    for (const char* const name : {"Component", "Nothing", "Absent"}) {
        found = &Component::Living;
        EXPECT_LT(VORInstantiateComponent(name, ComponentId, &found), 0) << name;
        EXPECT_EQ(found, nullptr) << name;
    }
    EXPECT_EQ(Component::Living, 0);
    VORRegisterComponent("Component", nullptr);
    EXPECT_LT(VORInstantiateComponent("Component", InterfaceId, &found), 0);
}

TEST(Components, AreHeldByOneReference)
{
    VORBaseUnknown* const first = new Component;
    VORBaseUnknown* const second = new Component;
    VORBaseUnknown_var handle;
    EXPECT_EQ(handle.CastTo(first, InterfaceId), first);
    EXPECT_EQ(first->Release(), 1u);
    EXPECT_EQ(handle.CastTo(handle.Get(), InterfaceId), first); // its last reference
    EXPECT_EQ(handle.CastTo(second, InterfaceId), second);
    EXPECT_EQ(Component::Living, 1);
    EXPECT_TRUE(!handle.CastTo(second, ComponentId) && !handle.CastTo(nullptr, InterfaceId));
    EXPECT_EQ(second->Release(), 0u);
    EXPECT_EQ(Component::Living, 0);
}

TEST(Dictionary, FindsTheMetaClassEnteredLast)
{
    EXPECT_EQ(VORFindInDictionary(InterfaceId), &InterfaceMeta);
    const auto add = [](const GUID& iKind, VORMetaClass* iObject) {
        AddDictionary(ComponentId, iKind, "", "", "", iObject, nullptr, nullptr, 0, 0, 0, nullptr);
    };
    add(InterfaceId, &InterfaceMeta); // an entry of another kind
    EXPECT_EQ(VORFindInDictionary(ComponentId), nullptr);
    add(CLSID_VORMetaClass, &InterfaceMeta);
    add(CLSID_VORMetaClass, &ComponentMeta);
    EXPECT_EQ(VORFindInDictionary(ComponentId), &ComponentMeta);
    EXPECT_TRUE(ComponentMeta.IsAKindOf(IID_VORBaseUnknown)); // by its second base
}

} // namespace
