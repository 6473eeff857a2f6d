// Copyright The Tintmill authors. All rights reserved.

#include "Editor.h"
#include "HAL/PlatformProcess.h"
#include "Support/EditorFixture.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

// The editor's variables are there once, for the program and for a module in a library of its own.

namespace
{
class SharedEditor : public FEngineFixture
{
protected:
	virtual void SetUp() override
	{
		FEngineFixture::SetUp();
		const FString Directory(UTF8_TO_TCHAR(TEST_MODULES_DIR));
		const FString File = Directory / FPlatformProcess::GetModulePrefix() + TEXT("UE4Editor-UnrealEdTestSharing.")
			+ FPlatformProcess::GetModuleExtension();
		Library = FPlatformProcess::GetDllHandle(*File);
		ASSERT_NE(nullptr, Library);
	}

	virtual void TearDown() override
	{
		FPlatformProcess::FreeDllHandle(Library);
		FEngineFixture::TearDown();
	}

	/** What one of the library's functions returns. */
	const void* Ask(const TCHAR* Name) const
	{
		return reinterpret_cast<const void* (*)()>(FPlatformProcess::GetDllExport(Library, Name))();
	}

	void* Library = nullptr;
};
}

TEST_F(SharedEditor, ModuleSeesTheSameEditorVariable)
{
	EXPECT_EQ(&GEditor, Ask(TEXT("UnrealEdTestEditorVariable")));
}

TEST_F(SharedEditor, ModuleBindsToTheSamePlayEvents)
{
	EXPECT_EQ(&FEditorDelegates::PreBeginPIE, Ask(TEXT("UnrealEdTestPlayEvent")));
}

TEST_F(SharedEditor, ModuleSeesTheSameTransientPackage)
{
	EXPECT_EQ(GetTransientPackage(), Ask(TEXT("UnrealEdTestTransientPackage")));
}
