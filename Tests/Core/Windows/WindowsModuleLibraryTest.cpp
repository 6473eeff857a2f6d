// Copyright The Tintmill authors. All rights reserved.

#include "Modules/ModuleManager.h"

#include "StandIn/ModuleHooks.h"
#include "Support/LogCapture.h"
#include "Support/TestFolder.h"
#include "gtest/gtest.h"

// Libraries in folders that only the wide functions of Windows can name.

namespace
{
const TCHAR* const TestModuleName = TEXT("CoreTestModule");

class WindowsModuleLibrary : public testing::Test
{
protected:
	virtual void SetUp() override
	{
		const std::string Home = "J\xc3\xbcrgen M\xc3\xbcller \xe8\x89\xb2";
		std::filesystem::create_directories(Folder.NativePath(Home));
		std::filesystem::copy_file(std::filesystem::path(TEST_MODULES_DIR) / "UE4Editor-CoreTestModule.dll",
			Folder.NativePath(Home) / "UE4Editor-CoreTestModule.dll");
		Directory = Folder.Path(Home);
		FModuleManager::Get().AddBinariesDirectory(*Directory, false);
	}

	virtual void TearDown() override
	{
		FModuleManager::Get().LoadModule(TestModuleName);
		FModuleManager::Get().UnloadModule(TestModuleName);
		StandIn::RemoveBinariesDirectory(Directory);
	}

	const FTestFolder Folder;
	FString Directory;
};
}

TEST_F(WindowsModuleLibrary, LoadsUnloadsAndLoadsFromAFolderBeyondAscii)
{
	const FLogCapture Capture;
	for (int32 Round = 0; Round < 2; ++Round)
	{
		EXPECT_NE(nullptr, FModuleManager::Get().LoadModule(TestModuleName));
		EXPECT_TRUE(FModuleManager::Get().UnloadModule(TestModuleName));
		EXPECT_FALSE(StandIn::IsModuleBinaryMapped(TestModuleName));
	}
	EXPECT_EQ(std::vector<std::string>({"start 1", "shut down", "destroyed", "start 1", "shut down", "destroyed"}),
		Capture.TextsOf("LogCoreTestModule"));
}

TEST_F(WindowsModuleLibrary, LoadedFileCanBeReplacedOnlyAfterTheUnload)
{
	const std::filesystem::path File = std::filesystem::path(*Directory) / "UE4Editor-CoreTestModule.dll";
	std::error_code Error;
	FModuleManager::Get().LoadModule(TestModuleName);
	EXPECT_FALSE(std::filesystem::remove(File, Error));
	FModuleManager::Get().UnloadModule(TestModuleName);
	EXPECT_TRUE(std::filesystem::remove(File, Error));
	std::filesystem::copy_file(std::filesystem::path(TEST_MODULES_DIR) / "UE4Editor-CoreTestModule.dll", File);
}
