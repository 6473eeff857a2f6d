// Copyright The Tintmill authors. All rights reserved.

#include "Modules/ModuleManager.h"

#include "Logging/LogSuppressionInterface.h"
#include "StandIn/ModuleHooks.h"
#include "Support/LogCapture.h"
#include "gtest/gtest.h"

// Modules in libraries of their own.

namespace
{
typedef std::vector<std::string> FModuleLines;

const TCHAR* const TestModuleName = TEXT("CoreTestModule");

class ModuleLibrary : public testing::Test
{
protected:
	virtual void SetUp() override { Manager.AddBinariesDirectory(*ModulesDirectory, false); }

	virtual void TearDown() override
	{
		Manager.LoadModule(TestModuleName);
		Manager.UnloadModule(TestModuleName);
		StandIn::RemoveBinariesDirectory(ModulesDirectory);
	}

	/** What the module has logged so far. */
	FModuleLines Lines() const { return Capture.TextsOf("LogCoreTestModule"); }

	const FString ModulesDirectory = FString(UTF8_TO_TCHAR(TEST_MODULES_DIR));
	FModuleManager& Manager = FModuleManager::Get();
	FLogCapture Capture;
};
}

TEST_F(ModuleLibrary, LibraryIsMappedAndItsModuleStarted)
{
	EXPECT_FALSE(StandIn::IsModuleBinaryMapped(TestModuleName));
	EXPECT_NE(nullptr, Manager.LoadModule(TestModuleName));
	EXPECT_TRUE(StandIn::IsModuleBinaryMapped(TestModuleName));
	EXPECT_EQ(FModuleLines({"start 1"}), Lines());
	EXPECT_NE(std::string::npos, ToStd(Manager.GetModuleFilename(TestModuleName)).find("UE4Editor-CoreTestModule."));
}

TEST_F(ModuleLibrary, UnloadShutsDownDestroysAndUnmaps)
{
	Manager.LoadModule(TestModuleName);
	EXPECT_TRUE(Manager.UnloadModule(TestModuleName));
	EXPECT_EQ(FModuleLines({"start 1", "shut down", "destroyed"}), Lines());
	EXPECT_FALSE(StandIn::IsModuleBinaryMapped(TestModuleName));
}

TEST_F(ModuleLibrary, UnloadedLibraryIsLoadedAgainAsNew)
{
	for (int32 Round = 0; Round < 3; ++Round)
	{
		Manager.LoadModule(TestModuleName);
		Manager.UnloadModule(TestModuleName);
	}
	EXPECT_EQ(FModuleLines({"start 1", "shut down", "destroyed", "start 1", "shut down", "destroyed", "start 1", "shut down", "destroyed"}),
		Lines());
}

TEST_F(ModuleLibrary, LibraryStaysMappedAtShutdownAndItsModuleCanStartAgain)
{
	Manager.LoadModule(TestModuleName);
	EXPECT_TRUE(Manager.UnloadModule(TestModuleName, true));
	EXPECT_TRUE(StandIn::IsModuleBinaryMapped(TestModuleName));
	EXPECT_NE(nullptr, Manager.LoadModule(TestModuleName));
	EXPECT_EQ(FModuleLines({"start 1", "shut down", "destroyed", "start 2"}), Lines());
}

TEST_F(ModuleLibrary, ObjectsAreProcessedBetweenMappingAndStart)
{
	FModuleLines Before;
	const FDelegateHandle Handle = Manager.OnProcessLoadedObjectsCallback().AddLambda([&](FName Name, bool) {
		if (Name == FName(TestModuleName))
		{
			Before = Lines();
			EXPECT_TRUE(StandIn::IsModuleBinaryMapped(Name));
			EXPECT_FALSE(Manager.IsModuleLoaded(Name));
		}
	});
	Manager.LoadModule(TestModuleName);
	Manager.OnProcessLoadedObjectsCallback().Remove(Handle);
	EXPECT_EQ(FModuleLines(), Before);
	EXPECT_EQ(FModuleLines({"start 1"}), Lines());
}

TEST_F(ModuleLibrary, UnloadingIsAnnouncedBetweenDestructionAndUnmapping)
{
	FModuleLines Before;
	bool bWasMapped = false;
	Manager.LoadModule(TestModuleName);
	const FDelegateHandle Handle = StandIn::OnModuleBinaryUnloading().AddLambda([&](FName Name) {
		Before = Lines();
		bWasMapped = StandIn::IsModuleBinaryMapped(Name);
	});
	Manager.UnloadModule(TestModuleName);
	StandIn::OnModuleBinaryUnloading().Remove(Handle);
	EXPECT_EQ(FModuleLines({"start 1", "shut down", "destroyed"}), Before);
	EXPECT_TRUE(bWasMapped);
}

TEST_F(ModuleLibrary, LogCategoriesComeAndGoWithTheLibrary)
{
	FLogSuppressionInterface& Suppression = FLogSuppressionInterface::Get();
	Suppression.ProcessLogCommand(TEXT("LogCoreTestModule Warning"));
	Manager.LoadModule(TestModuleName);
	EXPECT_EQ(FModuleLines(), Lines());
	Manager.UnloadModule(TestModuleName);
	EXPECT_TRUE(Suppression.ProcessLogCommand(TEXT("LogCoreTestModule default")));
}

TEST_F(ModuleLibrary, LibraryWithoutEntryIsUnmappedAgainWithAWarning)
{
	EModuleLoadResult Result = EModuleLoadResult::Success;
	EXPECT_EQ(nullptr, Manager.LoadModuleWithFailureReason("CoreTestNoEntry", Result));
	EXPECT_EQ(EModuleLoadResult::FailedToInitialize, Result);
	EXPECT_FALSE(StandIn::IsModuleBinaryMapped("CoreTestNoEntry"));
	EXPECT_EQ(FModuleLines({"ModuleManager: Unable to load module 'CoreTestNoEntry' because InitializeModule function was not found."}),
		Capture.TextsOf("LogModuleManager"));
}
