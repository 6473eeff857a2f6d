// Copyright The Tintmill authors. All rights reserved.

#include "Modules/ModuleManager.h"

#include "HAL/PlatformProcess.h"
#include "StandIn/ModuleHooks.h"
#include "StandIn/Registrations.h"
#include "Support/DeathText.h"
#include "Support/LogCapture.h"
#include "Support/TestFolder.h"
#include "gtest/gtest.h"

// Modules that are linked into this program; those in libraries are tested with the modules themselves.

namespace
{
typedef std::vector<std::string> FEvents;

FEvents ModuleEvents;

/** Writes down what the module manager does to a module. */
class FRecordingModule : public IModuleInterface
{
public:
	explicit FRecordingModule(const char* InName)
		: Name(InName)
	{
		ModuleEvents.push_back(Name + " made");
	}

	virtual ~FRecordingModule() override { ModuleEvents.push_back(Name + " destroyed"); }
	virtual void StartupModule() override { ModuleEvents.push_back(Name + " started"); }
	virtual void PreUnloadCallback() override { ModuleEvents.push_back(Name + " told"); }
	virtual void ShutdownModule() override { ModuleEvents.push_back(Name + " shut down"); }

	const std::string Name;
};

class FFirstModule : public FRecordingModule
{
public:
	FFirstModule()
		: FRecordingModule("first")
	{}
};

/** Loads the first module while it starts. */
class FSecondModule : public FRecordingModule
{
public:
	FSecondModule()
		: FRecordingModule("second")
	{}

	virtual void StartupModule() override
	{
		ModuleEvents.push_back(FModuleManager::Get().IsModuleLoaded("ModuleTestSecond") ? "second finds itself" : "second is lost");
		FModuleManager::Get().LoadModuleChecked("ModuleTestFirst");
		FRecordingModule::StartupModule();
	}
};

class FStayingModule : public FRecordingModule
{
public:
	FStayingModule()
		: FRecordingModule("staying")
	{}

	virtual bool SupportsAutomaticShutdown() override { return false; }
};

/** Is told that there is no module object. */
IModuleInterface* MakeNoModule()
{
	return nullptr;
}

IMPLEMENT_MODULE(FFirstModule, ModuleTestFirst)
IMPLEMENT_MODULE(FSecondModule, ModuleTestSecond)
IMPLEMENT_MODULE(FStayingModule, ModuleTestStaying)
IMPLEMENT_MODULE(FDefaultGameModuleImpl, ModuleTestGame)

/** Starts with no test module loaded and ends so. */
class ModuleManager : public testing::Test
{
protected:
	virtual void SetUp() override { ModuleEvents.clear(); }

	virtual void TearDown() override
	{
		for (const TCHAR* Name : {TEXT("ModuleTestSecond"), TEXT("ModuleTestFirst"), TEXT("ModuleTestStaying"), TEXT("ModuleTestGame")})
		{
			Manager.UnloadModule(FName(Name));
		}
	}

	FModuleManager& Manager = FModuleManager::Get();
};
}

TEST_F(ModuleManager, ModuleIsMadeAndStartedOnceHoweverOftenItIsLoaded)
{
	IModuleInterface* const Module = Manager.LoadModule("ModuleTestFirst");
	EXPECT_EQ(Module, Manager.LoadModule(TEXT("moduletestFIRST")));
	EXPECT_EQ(Module, Manager.GetModule("ModuleTestFirst"));
	EXPECT_EQ(FEvents({"first made", "first started"}), ModuleEvents);
}

TEST_F(ModuleManager, ModuleIsFoundDuringItsOwnStart)
{
	Manager.LoadModule("ModuleTestSecond");
	EXPECT_EQ(FEvents({"second made", "second finds itself", "first made", "first started", "second started"}), ModuleEvents);
}

TEST_F(ModuleManager, UnloadTellsShutsDownAndDestroys)
{
	Manager.LoadModule("ModuleTestFirst");
	ModuleEvents.clear();
	EXPECT_TRUE(Manager.UnloadModule("ModuleTestFirst"));
	EXPECT_EQ(FEvents({"first told", "first shut down", "first destroyed"}), ModuleEvents);
	EXPECT_FALSE(Manager.IsModuleLoaded("ModuleTestFirst"));
	EXPECT_FALSE(Manager.UnloadModule("ModuleTestFirst"));
}

TEST_F(ModuleManager, UnloadedModuleCanBeLoadedAgain)
{
	Manager.LoadModule("ModuleTestFirst");
	Manager.UnloadModule("ModuleTestFirst");
	ModuleEvents.clear();
	EXPECT_NE(nullptr, Manager.LoadModule("ModuleTestFirst"));
	EXPECT_EQ(FEvents({"first made", "first started"}), ModuleEvents);
}

TEST_F(ModuleManager, AbandonedModuleIsShutDownAndDestroyed)
{
	Manager.LoadModule("ModuleTestFirst");
	ModuleEvents.clear();
	Manager.AbandonModule("ModuleTestFirst");
	EXPECT_EQ(FEvents({"first shut down", "first destroyed"}), ModuleEvents);
	EXPECT_FALSE(Manager.IsModuleLoaded("ModuleTestFirst"));
}

TEST_F(ModuleManager, ShutdownGoesAgainstTheOrderOfFinishedStarts)
{
	const FLogCapture Capture;
	Manager.LoadModule("ModuleTestSecond");
	Manager.LoadModule("ModuleTestStaying");
	ModuleEvents.clear();
	Manager.UnloadModulesAtShutdown();
	EXPECT_EQ(
		FEvents({"second told", "second shut down", "second destroyed", "first told", "first shut down", "first destroyed"}), ModuleEvents);
	ASSERT_EQ(2u, Capture.TextsOf("LogModuleManager").size());
	EXPECT_EQ(0u, Capture.TextsOf("LogModuleManager")[0].find("Shutting down and abandoning module ModuleTestSecond ("));
	EXPECT_TRUE(Manager.IsModuleLoaded("ModuleTestStaying"));
}

TEST_F(ModuleManager, ChangesAreReportedAfterTheyHappened)
{
	FEvents Changes;
	const FDelegateHandle Handle = Manager.OnModulesChanged().AddLambda([&](FName Name, EModuleChangeReason Reason) {
		const bool bLoaded = Reason == EModuleChangeReason::ModuleLoaded;
		EXPECT_EQ(bLoaded, Manager.IsModuleLoaded(Name));
		Changes.push_back(ToStd(Name) + (bLoaded ? " loaded" : " unloaded"));
	});
	Manager.LoadModule("ModuleTestFirst");
	Manager.LoadModule("ModuleTestFirst");
	Manager.UnloadModule("ModuleTestFirst");
	Manager.OnModulesChanged().Remove(Handle);
	EXPECT_EQ(FEvents({"ModuleTestFirst loaded", "ModuleTestFirst unloaded"}), Changes);
}

TEST_F(ModuleManager, LoadedObjectsAreProcessedBeforeTheModuleIsMade)
{
	const FDelegateHandle Handle =
		Manager.OnProcessLoadedObjectsCallback().AddLambda([](FName Name, bool) { ModuleEvents.push_back("processed " + ToStd(Name)); });
	Manager.LoadModule("ModuleTestFirst");
	Manager.OnProcessLoadedObjectsCallback().Remove(Handle);
	EXPECT_EQ(FEvents({"processed None", "processed ModuleTestFirst", "first made", "first started"}), ModuleEvents);
}

TEST_F(ModuleManager, TypedLookupsGiveTheModulesOwnClass)
{
	EXPECT_EQ(nullptr, FModuleManager::GetModulePtr<FFirstModule>("ModuleTestFirst"));
	FFirstModule& Module = FModuleManager::LoadModuleChecked<FFirstModule>("ModuleTestFirst");
	EXPECT_EQ("first", Module.Name);
	EXPECT_EQ(&Module, FModuleManager::GetModulePtr<FFirstModule>("ModuleTestFirst"));
	EXPECT_EQ(&Module, &FModuleManager::GetModuleChecked<FFirstModule>("ModuleTestFirst"));
	EXPECT_EQ(&Module, FModuleManager::LoadModulePtr<FFirstModule>("ModuleTestFirst"));
	EXPECT_EQ(&Module, &FModuleManager::Get().LoadModuleChecked<FFirstModule>("ModuleTestFirst"));
}

TEST_F(ModuleManager, MissingModuleIsNullWithAWarningThatNamesTheFile)
{
	const FLogCapture Capture;
	EModuleLoadResult Result = EModuleLoadResult::Success;
	EXPECT_EQ(nullptr, Manager.LoadModuleWithFailureReason("NoSuchModule", Result));
	EXPECT_EQ(EModuleLoadResult::FileNotFound, Result);
	const std::string File = ToStd(FPlatformProcess::BaseDir()) + ToStd(FPlatformProcess::GetModulePrefix()) + "UE4Editor-NoSuchModule."
		+ ToStd(FPlatformProcess::GetModuleExtension());
	EXPECT_EQ(FEvents({"ModuleManager: Unable to load module 'NoSuchModule' because the file '" + File + "' was not found."}),
		Capture.TextsOf("LogModuleManager"));
}

TEST_F(ModuleManager, LibraryThatIsNoneIsNullWithAWarning)
{
	const FTestFolder Folder;
	const FLogCapture Capture;
	const std::string Leaf =
		ToStd(FPlatformProcess::GetModulePrefix()) + "UE4Editor-ModuleTestRubbish." + ToStd(FPlatformProcess::GetModuleExtension());
	Folder.Write(Leaf, "rubbish");
	Manager.AddBinariesDirectory(*Folder.Path(), false);
	EModuleLoadResult Result = EModuleLoadResult::Success;
	EXPECT_EQ(nullptr, Manager.LoadModuleWithFailureReason("ModuleTestRubbish", Result));
	StandIn::RemoveBinariesDirectory(Folder.Path());
	EXPECT_EQ(EModuleLoadResult::CouldNotBeLoadedByOS, Result);
	ASSERT_EQ(1u, Capture.TextsOf("LogModuleManager").size());
	EXPECT_NE(std::string::npos, Capture.TextsOf("LogModuleManager")[0].find("couldn't be loaded by the OS"));
}

TEST_F(ModuleManager, InitializerWithoutAModuleIsNullWithAWarning)
{
	const FLogCapture Capture;
	Manager.RegisterStaticallyLinkedModule(
		"ModuleTestNothing", FModuleManager::FInitializeStaticallyLinkedModule::CreateStatic(&MakeNoModule));
	EModuleLoadResult Result = EModuleLoadResult::Success;
	EXPECT_EQ(nullptr, Manager.LoadModuleWithFailureReason("ModuleTestNothing", Result));
	EXPECT_EQ(EModuleLoadResult::FailedToInitialize, Result);
	ASSERT_EQ(1u, Capture.TextsOf("LogModuleManager").size());
	EXPECT_NE(std::string::npos, Capture.TextsOf("LogModuleManager")[0].find("InitializeModule function failed"));
}

TEST_F(ModuleManager, ExistingModulesAreToldFromMissingOnes)
{
	EXPECT_TRUE(Manager.ModuleExists(TEXT("ModuleTestFirst")));
	EXPECT_FALSE(Manager.ModuleExists(TEXT("NoSuchModule")));
}

TEST_F(ModuleManager, StatusTellsWhatIsLoadedAndWhatIsAGameModule)
{
	Manager.LoadModule("ModuleTestGame");
	FModuleStatus Status;
	EXPECT_TRUE(Manager.QueryModule("ModuleTestGame", Status));
	EXPECT_TRUE(Status.bIsLoaded);
	EXPECT_TRUE(Status.bIsGameModule);
	EXPECT_FALSE(Manager.QueryModule("NeverHeardOf", Status));
}

TEST_F(ModuleManager, LoadedModulesAreListedAmongTheRegistrations)
{
	const IModuleInterface* const Module = Manager.LoadModule("ModuleTestFirst");
	const auto IsListed = [Module] {
		return StandIn::ListRegistrations().ContainsByPredicate(
			[Module](const StandIn::FRegistration& Entry) { return Entry.Registry == TEXT("Modules") && Entry.Owner == Module; });
	};
	EXPECT_TRUE(IsListed());
	Manager.UnloadModule("ModuleTestFirst");
	EXPECT_FALSE(IsListed());
}

TEST(ModuleManagerDeathTest, CheckedLoadOfAMissingModuleIsFatalWithItsName)
{
	EXPECT_DEATH(FModuleManager::Get().LoadModuleChecked("NoSuchModule"),
		"Assertion failed: Module \\[File:.*ModuleManager\\.cpp\\] \\[Line: " DEATH_NUMBER "\\] \nNoSuchModule");
}

TEST(ModuleManagerDeathTest, CheckedLookupOfAnUnloadedModuleIsFatalWithItsName)
{
	EXPECT_DEATH(FModuleManager::GetModuleChecked<IModuleInterface>("ModuleTestFirst"),
		"Assertion failed: ModuleManager\\.IsModuleLoaded\\(ModuleName\\) \\[File:.*\\] \\[Line: " DEATH_NUMBER "\\] \n"
		"Tried to get module interface for unloaded module: 'ModuleTestFirst'");
}
