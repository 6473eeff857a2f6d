// Copyright The Tintmill authors. All rights reserved.

#include "CoreGlobals.h"
#include "Delegates/IDelegateInstance.h"
#include "HAL/PlatformProcess.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Modules/ModuleManager.h"
#include "Support/Text.h"
#include "gtest/gtest.h"

#include <algorithm>
#include <vector>

// Program, engine and modules are libraries of their own, but what belongs to the engine is there once. A copy that a static library
// brought into a module would show here.

namespace
{
class SharedState : public testing::Test
{
protected:
	virtual void SetUp() override
	{
		const FString Directory(UTF8_TO_TCHAR(TEST_MODULES_DIR));
		const FString File =
			Directory / FPlatformProcess::GetModulePrefix() + TEXT("UE4Editor-CoreTestSharing.") + FPlatformProcess::GetModuleExtension();
		Library = FPlatformProcess::GetDllHandle(*File);
		ASSERT_NE(nullptr, Library);
	}

	virtual void TearDown() override { FPlatformProcess::FreeDllHandle(Library); }

	/** A function of the module's library. */
	template <typename FunctionType>
	FunctionType* Find(const TCHAR* Name) const
	{
		return reinterpret_cast<FunctionType*>(FPlatformProcess::GetDllExport(Library, Name));
	}

	/** What one of the library's functions without arguments returns. */
	const void* Ask(const TCHAR* Name) const { return Find<const void*()>(Name)(); }

	void* Library = nullptr;
};
}

TEST_F(SharedState, ModuleSeesTheSameModuleManager)
{
	EXPECT_EQ(&FModuleManager::Get(), Ask(TEXT("CoreTestModuleManager")));
}

TEST_F(SharedState, ModuleLogsToTheSameLog)
{
	EXPECT_EQ(GLog, Ask(TEXT("CoreTestLog")));
}

TEST_F(SharedState, ModuleSeesTheSameConfigurationVariable)
{
	EXPECT_EQ(&GConfig, Ask(TEXT("CoreTestConfigVariable")));
}

TEST_F(SharedState, NameOfTheProgramIsTheModulesNameOfTheSameText)
{
	const auto IsName = Find<bool(const FName*, const TCHAR*)>(TEXT("CoreTestIsName"));
	const FName First(TEXT("SharedStateFirst"));
	const FName Second(TEXT("SharedStateSecond"), 4);
	EXPECT_TRUE(IsName(&First, TEXT("sharedstatefirst")));
	EXPECT_TRUE(IsName(&Second, TEXT("SharedStateSecond_3")));
	EXPECT_FALSE(IsName(&First, TEXT("SharedStateSecond")));
}

TEST_F(SharedState, DelegateHandlesOfProgramAndModuleAreNeverTheSame)
{
	const auto MakeHandle = Find<void(FDelegateHandle*)>(TEXT("CoreTestNewHandle"));
	std::vector<FDelegateHandle> Handles;
	for (int32 Round = 0; Round < 50; ++Round)
	{
		FDelegateHandle OfModule;
		MakeHandle(&OfModule);
		for (const FDelegateHandle& Handle : {OfModule, FDelegateHandle(FDelegateHandle::GenerateNewHandle)})
		{
			EXPECT_EQ(0, std::count(Handles.begin(), Handles.end(), Handle)) << "in round " << Round;
			Handles.push_back(Handle);
		}
	}
}

TEST_F(SharedState, MemoryOfTheModuleCanBeFreedByTheProgram)
{
	const FString* const Text = static_cast<const FString*>(Ask(TEXT("CoreTestHeapBlock")));
	EXPECT_EQ("made by the module", ToStd(*Text));
	delete Text;
}
