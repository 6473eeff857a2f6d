// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenus.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "StandIn/LogRecord.h"
#include "StandIn/Registrations.h"
#include "ToolMenuFixture.h"
#include "ToolMenuTestContext.h"
#include "UObject/UObjectGlobals.h"

using UToolMenusTest = FToolMenuFixture;
using UToolMenusDeathTest = FToolMenuFixture;
using UToolMenusUserTest = FToolMenuUserFixture;

namespace ToolMenusTestPrivate
{
/** Counts the warnings of the tool menus' log while it lives. */
class FWarningCounter
{
public:
	FWarningCounter()
	{
		Handle = StandIn::OnLogRecord().AddLambda([this](const StandIn::FLogRecord& Record) {
			Count += Record.Category == FName("LogToolMenus") && Record.Verbosity == ELogVerbosity::Warning ? 1 : 0;
		});
	}
	~FWarningCounter() { StandIn::OnLogRecord().Remove(Handle); }

	int32 Count = 0;

private:
	FDelegateHandle Handle;
};

int32 CountRegistrations(const void* Owner)
{
	int32 Count = 0;
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		Count += Registration.Registry == TEXT("ToolMenus") && Registration.Owner == Owner ? 1 : 0;
	}
	return Count;
}
}

TEST_F(UToolMenusTest, GetAlwaysGivesTheSameManager)
{
	EXPECT_EQ(UToolMenus::Get(), UToolMenus::Get());
}

TEST_F(UToolMenusTest, SurvivesACollection)
{
	UToolMenus* Manager = UToolMenus::Get();
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(UToolMenus::Get(), Manager);
}

TEST_F(UToolMenusTest, KeepsRegisteredMenusOverACollection)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	Menu->AddSection("S");
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(UToolMenus::Get()->FindMenu("M")->ContainsSection("S"));
}

TEST_F(UToolMenusTest, ExtendMenuMakesAPlaceholderThatIsNotRegistered)
{
	UToolMenus::Get()->ExtendMenu("M");
	EXPECT_FALSE(UToolMenus::Get()->IsMenuRegistered("M"));
}

TEST_F(UToolMenusTest, ExtendMenuMakesAPlaceholderThatIsFound)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	EXPECT_EQ(UToolMenus::Get()->FindMenu("M"), Menu);
}

TEST_F(UToolMenusTest, FindMenuGivesNullForAnUnknownName)
{
	EXPECT_EQ(UToolMenus::Get()->FindMenu("M"), nullptr);
}

TEST_F(UToolMenusTest, NamesIgnoreCase)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("LevelEditor.LevelViewportToolbar.View");
	EXPECT_EQ(UToolMenus::Get()->FindMenu("LevelEditor.LevelViewportToolBar.View"), Menu);
}

TEST_F(UToolMenusTest, RegisterMenuPromotesThePlaceholderOfAnExtension)
{
	UToolMenu* Extended = UToolMenus::Get()->ExtendMenu("M");
	EXPECT_EQ(UToolMenus::Get()->RegisterMenu("M"), Extended);
}

TEST_F(UToolMenusTest, RegisterMenuKeepsTheSectionsOfAnExtension)
{
	UToolMenus::Get()->ExtendMenu("M")->AddSection("S");
	EXPECT_TRUE(UToolMenus::Get()->RegisterMenu("M")->ContainsSection("S"));
}

TEST_F(UToolMenusTest, RegisterMenuGivesAPromotedPlaceholderItsParent)
{
	UToolMenus::Get()->ExtendMenu("M");
	EXPECT_EQ(UToolMenus::Get()->RegisterMenu("M", "P")->MenuParent, FName("P"));
}

TEST_F(UToolMenusTest, RegisterMenuASecondTimeReturnsTheFirstOne)
{
	UToolMenu* First = UToolMenus::Get()->RegisterMenu("M");
	EXPECT_EQ(UToolMenus::Get()->RegisterMenu("M"), First);
}

TEST_F(UToolMenusTest, RegisterMenuASecondTimeKeepsTheParent)
{
	UToolMenus::Get()->RegisterMenu("M", "P");
	EXPECT_EQ(UToolMenus::Get()->RegisterMenu("M", "Q")->MenuParent, FName("P"));
}

TEST_F(UToolMenusTest, RegisterMenuASecondTimeWarns)
{
	UToolMenus::Get()->RegisterMenu("M");
	ToolMenusTestPrivate::FWarningCounter Warnings;
	UToolMenus::Get()->RegisterMenu("M");
	EXPECT_EQ(Warnings.Count, 1);
}

TEST_F(UToolMenusTest, RegisterMenuASecondTimeIsSilentIfAskedToBe)
{
	UToolMenus::Get()->RegisterMenu("M");
	ToolMenusTestPrivate::FWarningCounter Warnings;
	UToolMenus::Get()->RegisterMenu("M", NAME_None, EMultiBoxType::Menu, false);
	EXPECT_EQ(Warnings.Count, 0);
}

TEST_F(UToolMenusTest, OwnerScopesNest)
{
	FToolMenuOwnerScoped Outer("Outer");
	{
		FToolMenuOwnerScoped Inner("Inner");
	}
	EXPECT_TRUE(UToolMenus::Get()->CurrentOwner() == FToolMenuOwner("Outer"));
}

TEST_F(UToolMenusTest, NobodyIsTheOwnerOutsideAllScopes)
{
	EXPECT_FALSE(UToolMenus::Get()->CurrentOwner().IsSet());
}

TEST_F(UToolMenusTest, PopOwnerOfAnotherOwnerIsFatal)
{
	UToolMenus::Get()->PushOwner("A");
	EXPECT_DEATH(UToolMenus::Get()->PopOwner("B"), "PoppedOwner == InOwner");
	UToolMenus::Get()->PopOwner("A");
}

TEST_F(UToolMenusTest, UnregisterOwnerRemovesItsEntries)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	{
		FToolMenuOwnerScoped Scope(this);
		Menu->AddMenuEntry("S", MakeEntry(TEXT("Mine")));
	}
	Menu->AddMenuEntry("S", MakeEntry(TEXT("Other")));
	UToolMenus::UnregisterOwner(this);
	EXPECT_TRUE(IsText(Describe(Menu), TEXT("S(Other)")));
}

TEST_F(UToolMenusTest, UnregisterOwnerRemovesItsSectionIfThatIsEmptyThen)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	{
		FToolMenuOwnerScoped Scope(this);
		Menu->AddMenuEntry("S", MakeEntry(TEXT("Mine")));
	}
	UToolMenus::UnregisterOwner(this);
	EXPECT_FALSE(Menu->ContainsSection("S"));
}

TEST_F(UToolMenusTest, UnregisterOwnerLeavesAnEmptySectionOfAnotherOwner)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->AddSection("S");
	{
		FToolMenuOwnerScoped Scope(this);
		Menu->AddMenuEntry("S", MakeEntry(TEXT("Mine")));
	}
	UToolMenus::UnregisterOwner(this);
	EXPECT_TRUE(IsText(Describe(Menu), TEXT("S()")));
}

TEST_F(UToolMenusTest, UnregisterOwnerStopsItsDynamicSection)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	{
		FToolMenuOwnerScoped Scope(this);
		Menu->AddDynamicSection("D", FNewToolMenuDelegate::CreateLambda([](UToolMenu* InMenu) { InMenu->AddSection("Made"); }));
	}
	UToolMenus::UnregisterOwner(this);
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("")));
}

TEST_F(UToolMenusTest, UnregisterOwnerOfNobodyRemovesNothing)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->AddMenuEntry("S", MakeEntry(TEXT("E")));
	UToolMenus::UnregisterOwner(FToolMenuOwner());
	EXPECT_TRUE(IsText(Describe(Menu), TEXT("S(E)")));
}

TEST_F(UToolMenusTest, UnregisterOwnerByNameRemovesItsEntries)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	{
		FToolMenuOwnerScoped Scope("Plugin");
		Menu->AddMenuEntry("S", MakeEntry(TEXT("Mine")));
	}
	UToolMenus::Get()->UnregisterOwnerByName("Plugin");
	EXPECT_FALSE(Menu->ContainsEntry("Mine"));
}

TEST_F(UToolMenusTest, UnregisterOwnerLeavesNoRegistrationOfIt)
{
	{
		FToolMenuOwnerScoped Scope(this);
		UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", MakeEntry(TEXT("Mine")));
	}
	UToolMenus::UnregisterOwner(this);
	EXPECT_EQ(ToolMenusTestPrivate::CountRegistrations(this), 0);
}

TEST_F(UToolMenusTest, RegistrationsListSectionsAndEntriesOfAnOwner)
{
	{
		FToolMenuOwnerScoped Scope(this);
		UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", MakeEntry(TEXT("Mine")));
	}
	EXPECT_EQ(ToolMenusTestPrivate::CountRegistrations(this), 2);
}

TEST_F(UToolMenusTest, UnregisterOwnerIsHarmlessWithoutTheModule)
{
	FModuleManager::Get().UnloadModule("ToolMenus");
	UToolMenus::UnregisterOwner(this);
	EXPECT_EQ(UToolMenus::TryGet(), nullptr);
}

TEST_F(UToolMenusDeathTest, UnregisterOwnerIsFatalWhenOnlyTheModuleIsLeft)
{
	UToolMenus::Get();
	EXPECT_DEATH(
		{
			StandIn::ShutdownObjectSystem();
			UToolMenus::UnregisterOwner(this);
		},
		"The object system is not running");
}

TEST_F(UToolMenusTest, RemoveMenuForgetsTheMenu)
{
	UToolMenus::Get()->RegisterMenu("M");
	UToolMenus::Get()->RemoveMenu("M");
	EXPECT_EQ(UToolMenus::Get()->FindMenu("M"), nullptr);
}

TEST_F(UToolMenusTest, RemoveSectionRemovesItFromTheMenu)
{
	UToolMenus::Get()->AddSection("M", "S", FText::GetEmpty());
	UToolMenus::Get()->RemoveSection("M", "S");
	EXPECT_FALSE(UToolMenus::Get()->FindMenu("M")->ContainsSection("S"));
}

TEST_F(UToolMenusTest, RemoveEntryRemovesItFromItsSection)
{
	UToolMenus::Get()->AddEntry("M", "S", MakeEntry(TEXT("E")));
	UToolMenus::Get()->RemoveEntry("M", "S", "E");
	EXPECT_FALSE(UToolMenus::Get()->FindMenu("M")->ContainsEntry("E"));
}

TEST_F(UToolMenusTest, SetSectionLabelChangesTheLabel)
{
	UToolMenus::Get()->AddSection("M", "S", FText::GetEmpty());
	UToolMenus::Get()->SetSectionLabel("M", "S", FText::FromString(TEXT("New")));
	EXPECT_TRUE(IsText(UToolMenus::Get()->FindMenu("M")->FindSection("S")->Label.Get().ToString(), TEXT("New")));
}

TEST_F(UToolMenusTest, IsToolMenuUIEnabledNeedsSlate)
{
	EXPECT_FALSE(UToolMenus::IsToolMenuUIEnabled());
}

TEST_F(UToolMenusTest, AStartupCallbackWaitsWithoutUserInterface)
{
	bool bRun = false;
	const FDelegateHandle Handle =
		UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([&bRun]() { bRun = true; }));
	UToolMenus::UnRegisterStartupCallback(Handle);
	EXPECT_FALSE(bRun);
}

TEST_F(UToolMenusTest, AStartupCallbackIsNotRunAfterEngineStartWithoutUserInterface)
{
	bool bRun = false;
	const FDelegateHandle Handle =
		UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([&bRun]() { bRun = true; }));
	FCoreDelegates::OnPostEngineInit.Broadcast();
	UToolMenus::UnRegisterStartupCallback(Handle);
	EXPECT_FALSE(bRun);
}

TEST_F(UToolMenusTest, AWaitingStartupCallbackHasAHandle)
{
	const FDelegateHandle Handle = UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([]() {}));
	UToolMenus::UnRegisterStartupCallback(Handle);
	EXPECT_TRUE(Handle.IsValid());
}

TEST_F(UToolMenusTest, AStartupCallbackRunsAfterEngineStartOnceThereIsAUserInterface)
{
	int32 Runs = 0;
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([&Runs]() { ++Runs; }));
	GIsEditor = true;
	FMenuUser User;
	FCoreDelegates::OnPostEngineInit.Broadcast();
	FCoreDelegates::OnPostEngineInit.Broadcast();
	EXPECT_EQ(Runs, 1);
}

TEST_F(UToolMenusUserTest, AStartupCallbackRunsAtOnceWithUserInterface)
{
	GIsEditor = true;
	bool bRun = false;
	UToolMenus::Get();
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([&bRun]() { bRun = true; }));
	EXPECT_TRUE(bRun);
}

TEST_F(UToolMenusUserTest, AStartupCallbackThatRanAtOnceHasAnEmptyHandle)
{
	GIsEditor = true;
	UToolMenus::Get();
	EXPECT_FALSE(UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([]() {})).IsValid());
}

TEST_F(UToolMenusTest, UnRegisterStartupCallbackRemovesAllOfAnObject)
{
	struct FListener
	{
		void Listen() { ++Runs; }
		int32 Runs = 0;
	};
	FListener Listener;
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateRaw(&Listener, &FListener::Listen));
	UToolMenus::UnRegisterStartupCallback(&Listener);
	GIsEditor = true;
	FMenuUser User;
	FCoreDelegates::OnPostEngineInit.Broadcast();
	EXPECT_EQ(Listener.Runs, 0);
}
