// Copyright The Tintmill authors. All rights reserved.

#include "Support/LogCapture.h"
#include "Support/MenuUser.h"
#include "Support/TestFolder.h"
#include "Support/Text.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/GameViewportClient.h"
#include "LevelEditor.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "StandIn/EngineLoop.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/LogRecord.h"
#include "StandIn/ModuleHooks.h"
#include "StandIn/ViewportToolBarButtons.h"
#include "ToolMenu.h"
#include "ToolMenus.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

// A live unload of the module's library with menus that were made from it: nothing of what the editor keeps may lead into memory
// that is no longer mapped. What is wrong here shows as a crash of the process.

namespace
{
const FName ModuleName(TEXT("TintmillEditor"));
const FName ViewMenu(TEXT("LevelEditor.LevelViewportToolBar.View"));
const FName PanelMenu(TEXT("TintmillWidget.DisplayConfiguration"));

class UnloadWithMenus : public testing::Test
{
protected:
	UnloadWithMenus()
	{
		FPaths::SetProjectFilePath(Project.Path("Test.uproject"));
		delete GConfig;
		GConfig = nullptr;
		StandIn::FEngineLoopOptions Options;
		Options.Layout = TEXT("OnePane");
		Options.MaximizedPane = NAME_None;
		EngineLoop.PreInit(Options);
		EngineLoop.Init();
		EngineLoop.InitEditor();
		User = std::make_unique<FMenuUser>(false);
		User->Show(FModuleManager::GetModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")).GetFirstLevelEditor().ToSharedRef());
		User->Wait(0.1f);
	}

	virtual ~UnloadWithMenus() override
	{
		FSlateApplication::Get().DismissAllMenus();
		User.reset();
		const void* const Module = FModuleManager::Get().GetModule(ModuleName);
		EngineLoop.Exit();
		RemoveBindings(Module);
	}

	/** Unloads the module; the bindings that it leaves on purpose come off before its code does. */
	static void Unload()
	{
		const void* const Module = FModuleManager::Get().GetModule(ModuleName);
		const FDelegateHandle Handle = StandIn::OnModuleBinaryUnloading().AddLambda([Module](FName) { RemoveBindings(Module); });
		FModuleManager::Get().UnloadModule(ModuleName);
		StandIn::OnModuleBinaryUnloading().Remove(Handle);
		ASSERT_FALSE(StandIn::IsModuleBinaryMapped(ModuleName));
	}

	static void RemoveBindings(const void* Module)
	{
		FEditorDelegates::PreBeginPIE.RemoveAll(Module);
		FEditorDelegates::PostPIEStarted.RemoveAll(Module);
		UGameViewportClient::OnViewportCreated().RemoveAll(Module);
		if (GEditor)
		{
			GEditor->OnLevelViewportClientListChanged().RemoveAll(Module);
		}
	}

	static bool Load() { return FModuleManager::Get().LoadModule(ModuleName) != nullptr; }

	/** Opens the pane's View menu and the panel. */
	void OpenPanel()
	{
		for (const StandIn::FViewportToolBarButton& Button : StandIn::ListViewportToolBarButtons(StandIn::GetPanes()[0].ToSharedRef()))
		{
			if (Button.Label == TEXT("Lit"))
			{
				User->ClickAt(Button.Centre);
			}
		}
		User->Hover(TEXT("Tintmill"));
		ASSERT_EQ(2, User->CountMenus());
	}

	void OpenPicker()
	{
		OpenPanel();
		User->Hover(TEXT("Select a TML Asset"));
		User->Wait(0.1f);
		ASSERT_EQ(3, User->CountMenus());
	}

	static void CollectAll() { CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS); }

	/** The names of the entries of the panel's registered menu. */
	static std::vector<std::string> GetPanelEntries()
	{
		std::vector<std::string> Names;
		for (const FToolMenuSection& Section : UToolMenus::Get()->FindMenu(PanelMenu)->Sections)
		{
			for (const FToolMenuEntry& Entry : Section.Blocks)
			{
				Names.push_back(ToStd(Entry.Name.ToString()));
			}
		}
		return Names;
	}

	FTestFolder Project;
	StandIn::FEngineLoop EngineLoop;
	std::unique_ptr<FMenuUser> User;
};

TEST_F(UnloadWithMenus, GarbageOfClosedMenusIsCollectedSafely)
{
	OpenPicker();
	FSlateApplication::Get().DismissAllMenus();
	Unload();
	CollectAll();
	EXPECT_EQ(0, User->CountMenus());
}

TEST_F(UnloadWithMenus, GarbageOfSubMenusWithoutWidgetIsCollectedSafely)
{
	UToolMenus* const ToolMenus = UToolMenus::Get();
	UToolMenu* const Generated = ToolMenus->GenerateMenu(ViewMenu, FToolMenuContext());
	ASSERT_NE(nullptr, ToolMenus->GenerateSubMenu(Generated, TEXT("TMLDisplaySubMenu")));
	Unload();
	CollectAll();
	EXPECT_NE(nullptr, ToolMenus->FindMenu(ViewMenu));
}

TEST_F(UnloadWithMenus, OpenMenusClose)
{
	OpenPicker();
	Unload();
	EXPECT_EQ(0, User->CountMenus());
	CollectAll();
}

TEST_F(UnloadWithMenus, AMouseThatRestedOnThePanelMovesOnSafely)
{
	OpenPanel();
	User->Hover(TEXT("Enable Display"));
	Unload();
	User->MoveTo(FVector2D(600.0f, 800.0f));
	User->Wait(1.0f);
	User->Press(EKeys::Tab);
	EXPECT_EQ(0, User->CountMenus());
}

TEST_F(UnloadWithMenus, TheFocusThatWasInThePanelMovesOnSafely)
{
	OpenPanel();
	User->MoveTo(FVector2D(600.0f, 800.0f));
	User->Press(EKeys::End);
	User->Press(EKeys::Right);
	User->Wait(0.1f);
	Unload();
	User->Press(EKeys::Down);
	User->ClickAt(FVector2D(600.0f, 800.0f));
	EXPECT_EQ(0, User->CountMenus());
}

TEST_F(UnloadWithMenus, AMenuThatIsHeldLosesWhatLeadsIntoTheLibrary)
{
	UToolMenu* const Held = UToolMenus::Get()->GenerateMenu(ViewMenu, FToolMenuContext());
	Held->AddToRoot();
	ASSERT_TRUE(Held->ContainsEntry(TEXT("TMLDisplaySubMenu")));
	Unload();
	EXPECT_FALSE(Held->ContainsEntry(TEXT("TMLDisplaySubMenu")));
	Held->RemoveFromRoot();
	CollectAll();
}

TEST_F(UnloadWithMenus, ThePanelsMenuStaysRegisteredWithoutEntries)
{
	OpenPanel();
	Unload();
	EXPECT_TRUE(UToolMenus::Get()->IsMenuRegistered(PanelMenu));
	EXPECT_EQ((std::vector<std::string>()), GetPanelEntries());
}

TEST_F(UnloadWithMenus, AnotherExtensionsEntryInThePanelsMenuStays)
{
	OpenPanel();
	UToolMenus::Get()
		->FindMenu(PanelMenu)
		->FindSection(TEXT("DisplayConfiguration"))
		->AddMenuEntry(TEXT("Other"), FText::FromString(TEXT("Other")), FText::GetEmpty(), FSlateIcon(), FUIAction());
	Unload();
	EXPECT_EQ((std::vector<std::string>{"Other"}), GetPanelEntries());
}

TEST_F(UnloadWithMenus, EveryEntryThatIsDroppedIsLogged)
{
	OpenPanel();
	std::vector<std::string> Lines;
	const FDelegateHandle Handle = StandIn::OnLogRecord().AddLambda([&Lines](const StandIn::FLogRecord& Record) {
		if (Record.Category == FName(TEXT("LogToolMenus")))
		{
			Lines.push_back(ToStd(FString(Record.Text)));
		}
	});
	Unload();
	StandIn::OnLogRecord().Remove(Handle);
	EXPECT_EQ((std::vector<std::string>{
				  "Menu 'TintmillWidget.DisplayConfiguration': the entry 'EnableDisplay' goes with the library of module 'TintmillEditor'",
				  "Menu 'TintmillWidget.DisplayConfiguration': the entry 'TMLAssetSelection' goes with the library of module "
				  "'TintmillEditor'"}),
		Lines);
}

TEST_F(UnloadWithMenus, LoadedAgainTheMenuWorks)
{
	OpenPicker();
	Unload();
	CollectAll();
	ASSERT_TRUE(Load());
	OpenPanel();
	ASSERT_EQ(ECheckBoxState::Unchecked, User->FindRow(TEXT("Enable Display")).CheckState);
	User->ClickCheck(TEXT("Enable Display"));
	EXPECT_EQ(ECheckBoxState::Checked, User->FindRow(TEXT("Enable Display")).CheckState);
}

TEST_F(UnloadWithMenus, CanBeDoneThreeTimesInARow)
{
	for (int Time = 0; Time < 3; ++Time)
	{
		OpenPicker();
		Unload();
		CollectAll();
		ASSERT_TRUE(Load()) << Time;
	}
	OpenPanel();
	EXPECT_EQ((std::vector<std::string>{"EnableDisplay", "TMLAssetSelection"}), GetPanelEntries());
}
}
