// Copyright The Tintmill authors. All rights reserved.

#include "ProjectsTestBase.h"

#include "HAL/PlatformProcess.h"
#include "Modules/ModuleManager.h"

namespace
{
FString PluginTestStarted;

/** Writes down that it was started. */
template <int32 Number>
class TPluginTestModule : public IModuleInterface
{
public:
	virtual void StartupModule() override { PluginTestStarted += FString::Printf(TEXT("%d "), Number); }
};

IMPLEMENT_MODULE(TPluginTestModule<1>, PluginTestEarly)
IMPLEMENT_MODULE(TPluginTestModule<2>, PluginTestFirst)
IMPLEMENT_MODULE(TPluginTestModule<3>, PluginTestSecond)
IMPLEMENT_MODULE(TPluginTestModule<4>, PluginTestElsewhere)

/** A folder of plug-ins below the engine's, deleted at the end. */
class FEnginePluginFolder
{
public:
	explicit FEnginePluginFolder(const char* Name)
		: Folder(std::filesystem::path(ToStd(FPaths::EnginePluginsDir())) / Name)
	{}

	~FEnginePluginFolder()
	{
		std::error_code Error;
		std::filesystem::remove_all(Folder, Error);
	}

	void Write(const std::string& Name, const std::string& Text) const
	{
		std::filesystem::create_directories(Folder / Name);
		std::ofstream(Folder / Name / (Name + ".uplugin")) << Text;
	}

private:
	std::filesystem::path Folder;
};

class PluginManager : public FProjectsTestBase
{
protected:
	virtual void TearDown() override
	{
		for (const TCHAR* Name : {TEXT("PluginTestEarly"), TEXT("PluginTestFirst"), TEXT("PluginTestSecond"), TEXT("PluginTestElsewhere")})
		{
			FModuleManager::Get().UnloadModule(FName(Name));
		}
		PluginTestStarted.Empty();
		FProjectsTestBase::TearDown();
	}
};
}

TEST_F(PluginManager, PluginIsFoundByItsFileNameInAnyCase)
{
	WritePlugin("Painter", "\"FriendlyName\": \"The Painter\"");
	Manager().RefreshPluginsList();
	const TSharedPtr<IPlugin> Plugin = Manager().FindPlugin(TEXT("PAINTER"));
	ASSERT_TRUE(Plugin.IsValid());
	EXPECT_EQ("Painter", ToStd(Plugin->GetName()));
	EXPECT_EQ("The Painter", ToStd(Plugin->GetFriendlyName()));
	EXPECT_EQ(ToStd(Folder.Path("Plugins/Painter")), ToStd(Plugin->GetBaseDir()));
	EXPECT_EQ(ToStd(Folder.Path("Plugins/Painter/Content")), ToStd(Plugin->GetContentDir()));
	EXPECT_EQ("/Painter/", ToStd(Plugin->GetMountedAssetPath()));
	EXPECT_EQ(EPluginLoadedFrom::Project, Plugin->GetLoadedFrom());
}

TEST_F(PluginManager, UnknownPluginIsNull)
{
	Manager().RefreshPluginsList();
	EXPECT_FALSE(Manager().FindPlugin(TEXT("NoSuchPlugin")).IsValid());
}

TEST_F(PluginManager, PluginsAreFoundAtAnyDepthButNotInsideEachOther)
{
	Folder.Write("Plugins/Group/Deep/Painter/Painter.uplugin", "{ \"FileVersion\": 3 }");
	Folder.Write("Plugins/Group/Deep/Painter/Inner/Hidden.uplugin", "{ \"FileVersion\": 3 }");
	Manager().RefreshPluginsList();
	EXPECT_TRUE(Manager().FindPlugin(TEXT("Painter")).IsValid());
	EXPECT_FALSE(Manager().FindPlugin(TEXT("Hidden")).IsValid());
}

TEST_F(PluginManager, ProjectPluginIsOnUnlessItsDescriptorSaysOtherwise)
{
	WritePlugin("Silent");
	WritePlugin("On", "\"EnabledByDefault\": true");
	WritePlugin("Off", "\"EnabledByDefault\": false");
	Manager().RefreshPluginsList();
	EXPECT_EQ(FTexts({"On", "Silent"}), Enabled());
	EXPECT_FALSE(Manager().FindPlugin(TEXT("Off"))->IsEnabled());
}

TEST_F(PluginManager, EnginePluginIsOnOnlyWhenItsDescriptorOrTheProjectSaysSo)
{
	const FEnginePluginFolder Engine("ProjectsTestPlugins");
	Engine.Write("ProjectsTestSilent", "{ \"FileVersion\": 3 }");
	Engine.Write("ProjectsTestOn", "{ \"FileVersion\": 3, \"EnabledByDefault\": true }");
	Engine.Write("ProjectsTestAsked", "{ \"FileVersion\": 3 }");
	Folder.Write("Demo.uproject", "{ \"Plugins\": [ { \"Name\": \"ProjectsTestAsked\", \"Enabled\": true } ] }");
	Manager().RefreshPluginsList();
	EXPECT_FALSE(Manager().FindPlugin(TEXT("ProjectsTestSilent"))->IsEnabled());
	EXPECT_TRUE(Manager().FindPlugin(TEXT("ProjectsTestOn"))->IsEnabled());
	EXPECT_TRUE(Manager().FindPlugin(TEXT("ProjectsTestAsked"))->IsEnabled());
	EXPECT_EQ(EPluginLoadedFrom::Engine, Manager().FindPlugin(TEXT("ProjectsTestOn"))->GetLoadedFrom());
}

TEST_F(PluginManager, ProjectPluginWinsOverTheEnginesOfItsName)
{
	const FEnginePluginFolder Engine("ProjectsTestDouble");
	Engine.Write("Painter", "{ \"FileVersion\": 3 }");
	WritePlugin("Painter");
	Manager().RefreshPluginsList();
	EXPECT_EQ(EPluginLoadedFrom::Project, Manager().FindPlugin(TEXT("Painter"))->GetLoadedFrom());
}

TEST_F(PluginManager, ExtraFolderIsSearchedOnceItIsAdded)
{
	Folder.Write("Elsewhere/Guest/Guest.uplugin", "{ \"FileVersion\": 3 }");
	EXPECT_TRUE(Manager().AddPluginSearchPath(Folder.Path("Elsewhere")));
	EXPECT_FALSE(Manager().AddPluginSearchPath(Folder.Path("Elsewhere")));
	EXPECT_TRUE(Manager().FindPlugin(TEXT("Guest")).IsValid());
}

TEST_F(PluginManager, ProjectFileTurnsPluginsOnAndOff)
{
	WritePlugin("On");
	WritePlugin("Off", "\"EnabledByDefault\": false");
	Folder.Write(
		"Demo.uproject", "{ \"Plugins\": [ { \"Name\": \"on\", \"Enabled\": false }, { \"Name\": \"Off\", \"Enabled\": true } ] }");
	Manager().RefreshPluginsList();
	EXPECT_EQ(FTexts({"Off"}), Enabled());
}

TEST_F(PluginManager, PluginTurnsOnThoseItAsksFor)
{
	WritePlugin("User", "\"Plugins\": [ { \"Name\": \"Used\", \"Enabled\": true } ]");
	WritePlugin("Used", "\"EnabledByDefault\": false, \"Plugins\": [ { \"Name\": \"User\", \"Enabled\": true } ]");
	Manager().RefreshPluginsList();
	EXPECT_EQ(FTexts({"Used", "User"}), Enabled());
}

TEST_F(PluginManager, MissingPluginThatIsAskedForGivesANoticeUnlessItIsOptional)
{
	WritePlugin("User",
		"\"Plugins\": [ { \"Name\": \"Gone\", \"Enabled\": true }, { \"Name\": \"Extra\", \"Enabled\": true, \"Optional\": true } ]");
	Manager().RefreshPluginsList();
	ASSERT_EQ(1u, Notices().size());
	EXPECT_NE(std::string::npos, Notices()[0].find("User.uplugin asks for the plug-in Gone")) << Notices()[0];
}

TEST_F(PluginManager, PluginForOtherPlatformsIsOff)
{
	WritePlugin("Console", "\"SupportedTargetPlatforms\": [ \"PS4\" ]");
	Manager().RefreshPluginsList();
	EXPECT_EQ(FTexts(), Enabled());
}

TEST_F(PluginManager, BrokenDescriptorGivesOneNoticeWithFileAndLineAndIsLeftOut)
{
	WritePlugin("Good");
	Folder.Write("Plugins/Bad/Bad.uplugin", "{\n\t\"FileVersion\": 3,\n\t\"Version\": 1,\n}\n");
	Manager().RefreshPluginsList();
	Manager().RefreshPluginsList();
	EXPECT_EQ(FTexts({ToStd(Folder.Path("Plugins/Bad/Bad.uplugin"))
				  + ":4: a field name in quotes was expected but '}' stands here; the plug-in is left out until this is corrected."}),
		Notices());
	EXPECT_FALSE(Manager().FindPlugin(TEXT("Bad")).IsValid());
	EXPECT_TRUE(Manager().FindPlugin(TEXT("Good")).IsValid());
}

TEST_F(PluginManager, CorrectedDescriptorIsFoundAndItsNoticeGone)
{
	Folder.Write("Plugins/Bad/Bad.uplugin", "rubbish");
	Manager().RefreshPluginsList();
	WritePlugin("Bad");
	Manager().RefreshPluginsList();
	EXPECT_EQ(FTexts(), Notices());
	EXPECT_TRUE(Manager().FindPlugin(TEXT("Bad")).IsValid());
}

TEST_F(PluginManager, BrokenProjectFileGivesANoticeAndItsListIsIgnored)
{
	WritePlugin("On");
	Folder.Write("Demo.uproject", "{\n\"Plugins\": [ { \"Enabled\": true } ]\n}");
	Manager().RefreshPluginsList();
	ASSERT_EQ(1u, Notices().size());
	EXPECT_EQ(0u, Notices()[0].find(ToStd(Folder.Path("Demo.uproject")) + ":2: an entry of \"Plugins\" has no \"Name\"")) << Notices()[0];
	EXPECT_EQ(FTexts({"On"}), Enabled());
}

TEST_F(PluginManager, SecondPluginOfANameIsLeftOut)
{
	Folder.Write("Plugins/A/Painter.uplugin", "{ \"FileVersion\": 3 }");
	Folder.Write("Plugins/B/Painter.uplugin", "{ \"FileVersion\": 3 }");
	Manager().RefreshPluginsList();
	EXPECT_EQ(ToStd(Folder.Path("Plugins/A/Painter.uplugin")), ToStd(Manager().FindPlugin(TEXT("Painter"))->GetDescriptorFileName()));
	EXPECT_EQ(FTexts({"Painter"}), Enabled());
}

TEST_F(PluginManager, FileLeadsToItsPlugin)
{
	WritePlugin("Painter");
	Manager().RefreshPluginsList();
	const TSharedPtr<IPlugin> Plugin = Manager().FindPluginFromPath(Folder.Path("Plugins/Painter/Editor/Icons/Icon.png"));
	ASSERT_TRUE(Plugin.IsValid());
	EXPECT_EQ("Painter", ToStd(Plugin->GetName()));
}

TEST_F(PluginManager, ModulesAreLoadedInTheirPhaseInTheDescriptorsOrder)
{
	WritePlugin("Painter",
		"\"Modules\": [ { \"Name\": \"PluginTestFirst\", \"Type\": \"Runtime\", \"LoadingPhase\": \"Default\" },"
		"{ \"Name\": \"PluginTestEarly\", \"Type\": \"Runtime\", \"LoadingPhase\": \"PreDefault\" },"
		"{ \"Name\": \"PluginTestElsewhere\", \"Type\": \"Editor\", \"BlacklistPlatforms\": [ \"Win64\", \"Linux\" ] },"
		"{ \"Name\": \"PluginTestSecond\", \"Type\": \"Editor\" } ]");
	Manager().RefreshPluginsList();
	EXPECT_TRUE(Manager().LoadModulesForEnabledPlugins(ELoadingPhase::PreDefault));
	EXPECT_EQ("1 ", ToStd(PluginTestStarted));
	EXPECT_TRUE(Manager().LoadModulesForEnabledPlugins(ELoadingPhase::Default));
	EXPECT_EQ("1 2 3 ", ToStd(PluginTestStarted));
}

TEST_F(PluginManager, ModulesOfAPluginThatIsOffAreNotLoaded)
{
	WritePlugin("Painter", "\"EnabledByDefault\": false, \"Modules\": [ { \"Name\": \"PluginTestFirst\", \"Type\": \"Runtime\" } ]");
	Manager().RefreshPluginsList();
	EXPECT_TRUE(Manager().LoadModulesForEnabledPlugins(ELoadingPhase::Default));
	EXPECT_EQ("", ToStd(PluginTestStarted));
}

TEST_F(PluginManager, ModuleWithoutLibraryGivesANoticeAndAFailure)
{
	ELoadingPhase::Type Phase = ELoadingPhase::Max;
	bool bSuccess = true;
	WritePlugin("Painter", "\"Modules\": [ { \"Name\": \"PluginTestAbsent\", \"Type\": \"Runtime\", \"LoadingPhase\": \"PostDefault\" } ]");
	Manager().RefreshPluginsList();
	const FDelegateHandle Handle = Manager().OnLoadingPhaseComplete().AddLambda([&](ELoadingPhase::Type InPhase, bool bInSuccess) {
		Phase = InPhase;
		bSuccess = bInSuccess;
	});
	EXPECT_FALSE(Manager().LoadModulesForEnabledPlugins(ELoadingPhase::PostDefault));
	Manager().OnLoadingPhaseComplete().Remove(Handle);
	EXPECT_EQ(ELoadingPhase::PostDefault, Phase);
	EXPECT_FALSE(bSuccess);
	ASSERT_EQ(1u, Notices().size());
	EXPECT_NE(std::string::npos, Notices()[0].find("module PluginTestAbsent could not be loaded: its library was not found"))
		<< Notices()[0];
}

TEST_F(PluginManager, LibrariesAreLookedForInThePluginsBinariesFolder)
{
	const std::string Platform = ToStd(FPlatformProcess::GetBinariesSubdirectory());
	const std::string Leaf =
		ToStd(FPlatformProcess::GetModulePrefix()) + "UE4Editor-PluginTestFile." + ToStd(FPlatformProcess::GetModuleExtension());
	WritePlugin("Painter", "\"Modules\": [ { \"Name\": \"PluginTestFile\", \"Type\": \"Runtime\" } ]");
	Folder.Write("Plugins/Painter/Binaries/" + Platform + "/" + Leaf, "not a library");
	Manager().RefreshPluginsList();
	FString File;
	EXPECT_TRUE(FModuleManager::Get().ModuleExists(TEXT("PluginTestFile"), &File));
	EXPECT_EQ(ToStd(Folder.Path("Plugins/Painter/Binaries/" + Platform + "/" + Leaf)), ToStd(File));
}

TEST_F(PluginManager, FoldersOfFormerProjectsAreSearchedNoMore)
{
	const std::string Leaf =
		ToStd(FPlatformProcess::GetModulePrefix()) + "UE4Editor-PluginTestFile." + ToStd(FPlatformProcess::GetModuleExtension());
	WritePlugin("Painter", "\"Modules\": [ { \"Name\": \"PluginTestFile\", \"Type\": \"Runtime\" } ]");
	Folder.Write("Plugins/Painter/Binaries/" + ToStd(FPlatformProcess::GetBinariesSubdirectory()) + "/" + Leaf, "not a library");
	Manager().RefreshPluginsList();
	FPaths::SetProjectFilePath(TEXT(""));
	Manager().RefreshPluginsList();
	EXPECT_FALSE(FModuleManager::Get().ModuleExists(TEXT("PluginTestFile")));
}
