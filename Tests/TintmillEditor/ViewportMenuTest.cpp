// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditorModule.h"

#include "TintmillEditor/ViewMenuFixture.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "Slate/SceneViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/ScenePainter.h"
#include "StandIn/SlateDriver.h"
#include "TintmillDisplayManager.h"
#include "TintmillObject.h"
#include "UObject/UObjectGlobals.h"

// The submenu "Tintmill" of every pane's View menu: what is registered, what an opening makes, where a change goes.

namespace
{
const FName OnePane(TEXT("OnePane"));
const FName ViewMenu(TEXT("LevelEditor.LevelViewportToolBar.View"));
const FName SectionName(TEXT("ColorManagement"));
const FName SubMenuName(TEXT("TMLDisplaySubMenu"));
const FName PanelMenu(TEXT("TintmillWidget.DisplayConfiguration"));

class FViewportMenu : public FViewMenuFixture
{
protected:
	static const FToolMenuSection& GetSection() { return *UToolMenus::Get()->FindMenu(ViewMenu)->FindSection(SectionName); }

	static const FToolMenuEntry& GetEntry() { return *GetSection().FindEntry(SubMenuName); }

	static FToolMenuOwner GetOwner() { return FToolMenuOwner(static_cast<FTintmillEditorModule*>(GetModule())); }

	/** What an opening of the submenu makes, without showing it. */
	static UToolMenu* GenerateSubMenu()
	{
		return UToolMenus::Get()->GenerateSubMenu(UToolMenus::Get()->GenerateMenu(ViewMenu, FToolMenuContext()), SubMenuName);
	}

	/** An entry of another extension. */
	static FToolMenuEntry MakeEntry(const TCHAR* Name)
	{
		return FToolMenuEntry::InitMenuEntry(Name, FText::FromString(Name), FText(), FSlateIcon(), FUIAction());
	}

	/** Starts the engine with another extension that makes the section, before or after the module does. */
	void StartWithOtherExtension(bool bFirst)
	{
		Options.bLoadPlugins = false;
		PreInit();
		if (!bFirst)
		{
			FModuleManager::Get().LoadModule(TEXT("TintmillEditor"));
		}
		const FToolMenuOwnerScoped Scope(TEXT("Other"));
		UToolMenus::Get()
			->ExtendMenu(ViewMenu)
			->AddSection(SectionName, bFirst ? TAttribute<FText>(FText::FromString(TEXT("Others"))) : TAttribute<FText>())
			.AddEntry(MakeEntry(TEXT("Other")));
		if (bFirst)
		{
			FModuleManager::Get().LoadModule(TEXT("TintmillEditor"));
		}
	}

	/** Unloads the module while the editor runs, and takes the binding off that it leaves on purpose. */
	static void UnloadLive()
	{
		const void* const Module = GetModule();
		FModuleManager::Get().UnloadModule(TEXT("TintmillEditor"));
		GEditor->OnLevelViewportClientListChanged().RemoveAll(Module);
	}

	/** Names of the section's entries. */
	static std::string GetEntryNames()
	{
		std::string Names;
		for (const FToolMenuEntry& Entry : GetSection().Blocks)
		{
			Names += (Names.empty() ? "" : "|") + ToStd(Entry.Name);
		}
		return Names;
	}

	/** Runs a function whenever a panel is being made. */
	static void OnPanelMade(TFunction<void()> Function)
	{
		UToolMenus::Get()->ExtendMenu(PanelMenu)->AddDynamicSection(
			TEXT("Watch"), FNewToolMenuDelegateLegacy::CreateLambda([Function](FMenuBuilder&, UToolMenu*) { Function(); }));
	}

	TSharedPtr<SWidget> GetPanel() const { return FindWidget(GetLastMenu(), TEXT("STintmillWidget")); }

	ECheckBoxState GetCheck() const { return User->FindRow(TEXT("Enable Display")).CheckState; }

	/** What a pane shows on its next draw, at the top left. */
	static int DrawRed(int32 Number)
	{
		FViewport* const Viewport = GetViewport(Number);
		TArray<FColor> Pixels;
		Viewport->Draw();
		Viewport->ReadPixels(Pixels);
		return Pixels.Num() > 0 ? Pixels[0].R : -1;
	}

	static bool IsOn(int32 Number)
	{
		const FTintmillDisplayConfiguration* const Record = FindRecord(Number);
		return Record && Record->bEnableDisplay;
	}
};

// What start-up registers.

TEST_F(FViewportMenu, StartUpOnlyExtendsTheViewMenu)
{
	PreInit();
	EXPECT_TRUE(UToolMenus::Get()->FindMenu(ViewMenu) && !UToolMenus::Get()->IsMenuRegistered(ViewMenu));
}

TEST_F(FViewportMenu, TheSectionsLabel)
{
	PreInit();
	EXPECT_EQ(Describe(GetSection().Label.Get()), "TintmillEditorModule, ColorManagement_Label, Color Management");
}

TEST_F(FViewportMenu, TheSectionHasNoPlaceOfItsOwn)
{
	PreInit();
	EXPECT_EQ(GetSection().InsertPosition, FToolMenuInsert());
}

TEST_F(FViewportMenu, TheSectionHasTheOneEntry)
{
	PreInit();
	EXPECT_EQ(GetEntryNames(), "TMLDisplaySubMenu");
}

TEST_F(FViewportMenu, TheEntrysLabel)
{
	PreInit();
	EXPECT_EQ(Describe(GetEntry().Label.Get()), "TintmillEditorModule, TMLDisplaySubMenu_Label, Tintmill");
}

TEST_F(FViewportMenu, TheEntrysToolTip)
{
	PreInit();
	EXPECT_EQ(Describe(GetEntry().ToolTip.Get()),
		"TintmillEditorModule, TMLDisplaySubMenu_ToolTip, Configure the viewport to use a Tintmill asset.");
}

TEST_F(FViewportMenu, TheEntryHasAnEmptyIcon)
{
	PreInit();
	EXPECT_TRUE(GetEntry().Icon.IsSet() && !GetEntry().Icon.Get().IsSet());
}

TEST_F(FViewportMenu, TheEntryIsASubMenuThatHoveringOpens)
{
	PreInit();
	EXPECT_TRUE(GetEntry().IsSubMenu());
	EXPECT_FALSE(GetEntry().SubMenuData.bOpenSubMenuOnClick);
}

TEST_F(FViewportMenu, TheEntryClosesTheMenuAfterASelection)
{
	PreInit();
	EXPECT_TRUE(GetEntry().bShouldCloseWindowAfterMenuSelection);
}

TEST_F(FViewportMenu, TheEntryHasNoPlaceOfItsOwn)
{
	PreInit();
	EXPECT_EQ(GetEntry().InsertPosition, FToolMenuInsert());
}

TEST_F(FViewportMenu, TheEntrysFillerIsAToolMenuDelegateOfTheModuleObject)
{
	PreInit();
	EXPECT_TRUE(GetEntry().SubMenuData.ConstructMenu.NewToolMenu.IsBoundToObject(GetModule()));
}

TEST_F(FViewportMenu, SectionAndEntryBelongToTheModuleObject)
{
	PreInit();
	EXPECT_TRUE(GetSection().Owner == GetOwner() && GetEntry().Owner == GetOwner());
}

TEST_F(FViewportMenu, StartUpLeavesNoOwnerInForce)
{
	PreInit();
	EXPECT_FALSE(UToolMenus::Get()->CurrentOwner().IsSet());
}

TEST_F(FViewportMenu, StartUpDoesNotRegisterThePanelsMenu)
{
	PreInit();
	EXPECT_EQ(UToolMenus::Get()->FindMenu(PanelMenu), nullptr);
}

// Beside another extension.

TEST_F(FViewportMenu, AnotherExtensionsSectionKeepsItsLabel)
{
	StartWithOtherExtension(true);
	EXPECT_EQ(ToStd(GetSection().Label.Get().ToString()), "Others");
}

TEST_F(FViewportMenu, AnotherExtensionsSectionKeepsItsOwner)
{
	StartWithOtherExtension(true);
	EXPECT_EQ(GetSection().Owner, FToolMenuOwner(TEXT("Other")));
}

TEST_F(FViewportMenu, JoinsAnotherExtensionsSection)
{
	StartWithOtherExtension(true);
	EXPECT_EQ(GetEntryNames(), "Other|TMLDisplaySubMenu");
}

TEST_F(FViewportMenu, ALaterExtensionJoinsTheSection)
{
	StartWithOtherExtension(false);
	EXPECT_EQ(GetEntryNames(), "TMLDisplaySubMenu|Other");
}

TEST_F(FViewportMenu, BothExtensionsShowUnderOneHeading)
{
	ShowEditor(OnePane);
	UToolMenus::Get()->ExtendMenu(ViewMenu)->AddSection(SectionName).AddEntry(MakeEntry(TEXT("Other")));
	OpenViewMenu();
	EXPECT_EQ(ToStd(User->GetHeadings()), "View Mode|Collision|Landscape|Exposure|Color Management");
	EXPECT_TRUE(User->GetLabels().EndsWith(TEXT("|Tintmill|Other")));
}

TEST_F(FViewportMenu, ShutDownLeavesTheOtherExtensionsEntryInTheSectionItMade)
{
	StartWithOtherExtension(true);
	FModuleManager::Get().UnloadModule(TEXT("TintmillEditor"));
	EXPECT_EQ(GetEntryNames(), "Other");
}

TEST_F(FViewportMenu, ShutDownLeavesTheOtherExtensionsEntryInTheModulesSection)
{
	StartWithOtherExtension(false);
	FModuleManager::Get().UnloadModule(TEXT("TintmillEditor"));
	EXPECT_EQ(GetEntryNames(), "Other");
}

TEST_F(FViewportMenu, ShutDownRemovesTheSectionThatOnlyTheModuleUsed)
{
	PreInit();
	FModuleManager::Get().UnloadModule(TEXT("TintmillEditor"));
	EXPECT_FALSE(UToolMenus::Get()->FindMenu(ViewMenu)->ContainsSection(SectionName));
}

// What a person meets.

TEST_F(FViewportMenu, StandsBelowEverythingElseInTheViewMenu)
{
	ShowEditor(OnePane);
	OpenViewMenu();
	EXPECT_EQ(ToStd(User->GetHeadings()), "View Mode|Collision|Landscape|Exposure|Color Management");
	EXPECT_TRUE(User->GetLabels().EndsWith(TEXT("|Tintmill")));
}

TEST_F(FViewportMenu, StandsInTheViewMenuOfEveryPane)
{
	ShowEditor();
	int32 Found = 0;
	for (int32 Number = 0; Number < 4; ++Number)
	{
		OpenViewMenu(Number);
		Found += User->GetLabels().EndsWith(TEXT("|Tintmill")) ? 1 : 0;
		CloseMenus();
	}
	EXPECT_EQ(Found, 4);
}

TEST_F(FViewportMenu, TheRowHasAnArrowAndNoCheckBox)
{
	ShowEditor(OnePane);
	OpenViewMenu();
	const StandIn::FMenuRow Row = User->FindRow(TEXT("Tintmill"));
	EXPECT_TRUE(Row.bHasSubMenu && !Row.bHasCheck);
}

TEST_F(FViewportMenu, TheRowsToolTipShowsAfterAWhile)
{
	ShowEditor(OnePane);
	OpenViewMenu();
	User->Hover(TEXT("Tintmill"));
	User->Wait(0.5f);
	User->Wait(0.5f);
	EXPECT_TRUE(StandIn::FindTextOnDesktop(TEXT("Configure the viewport to use a Tintmill asset.")).IsValid());
}

TEST_F(FViewportMenu, TheTogglesToolTipShowsAfterAWhile)
{
	ShowEditor(OnePane);
	OpenPanel();
	User->Hover(TEXT("Enable Display"));
	User->Wait(0.5f);
	User->Wait(0.5f);
	EXPECT_TRUE(StandIn::FindTextOnDesktop(TEXT("Enable/Disable Tintmill rendering pass.")).IsValid());
}

TEST_F(FViewportMenu, HoveringOpensThePanel)
{
	ShowEditor(OnePane);
	OpenViewMenu();
	User->Hover(TEXT("Tintmill"));
	EXPECT_EQ(User->CountMenus(), 2);
}

TEST_F(FViewportMenu, ThePanelStandsUnderItsHeading)
{
	ShowEditor(OnePane);
	OpenPanel();
	EXPECT_EQ(ToStd(User->GetHeadings(1)), "Display Configuration");
	EXPECT_EQ(ToStd(User->GetLabels(1)), "Enable Display|Select a TML Asset");
}

TEST_F(FViewportMenu, TheKeyboardOpensThePanelToo)
{
	ShowEditor(OnePane);
	OpenViewMenu();
	User->Press(EKeys::Up);
	User->Press(EKeys::Right);
	EXPECT_EQ(ToStd(User->GetLabels(1)), "Enable Display|Select a TML Asset");
}

TEST_F(FViewportMenu, TheKeyboardTogglesToo)
{
	ShowEditor(OnePane);
	OpenViewMenu();
	User->Press(EKeys::Up);
	User->Press(EKeys::Right);
	User->Press(EKeys::Enter);
	EXPECT_TRUE(IsOn(0));
}

TEST_F(FViewportMenu, ASelectionInThePanelClosesAllMenus)
{
	ShowEditor(OnePane);
	OpenPanel();
	User->Click(TEXT("Enable Display"));
	EXPECT_EQ(User->CountMenus(), 0);
}

TEST_F(FViewportMenu, TheCheckBoxInThePanelLeavesTheMenusOpen)
{
	ShowEditor(OnePane);
	OpenPanel();
	User->ClickCheck(TEXT("Enable Display"));
	EXPECT_EQ(User->CountMenus(), 2);
	EXPECT_EQ(GetCheck(), ECheckBoxState::Checked);
}

// What an opening makes.

TEST_F(FViewportMenu, TheSubMenuHasOneSection)
{
	ShowEditor(OnePane);
	const UToolMenu* const Menu = GenerateSubMenu();
	ASSERT_EQ(Menu->Sections.Num(), 1);
	EXPECT_EQ(Menu->Sections[0].Name, FName(TEXT("DisplayConfiguration")));
}

TEST_F(FViewportMenu, TheSubMenusSectionsLabel)
{
	ShowEditor(OnePane);
	EXPECT_EQ(
		Describe(GenerateSubMenu()->Sections[0].Label.Get()), "TintmillEditorModule, DisplayConfiguration_Label, Display Configuration");
}

TEST_F(FViewportMenu, TheSubMenusSectionHasNoPlaceOfItsOwn)
{
	ShowEditor(OnePane);
	EXPECT_EQ(GenerateSubMenu()->Sections[0].InsertPosition, FToolMenuInsert());
}

TEST_F(FViewportMenu, TheSubMenusSectionHoldsThePanelsEntryAlone)
{
	ShowEditor(OnePane);
	const UToolMenu* const Menu = GenerateSubMenu();
	ASSERT_EQ(Menu->Sections[0].Blocks.Num(), 1);
	EXPECT_EQ(Menu->Sections[0].Blocks[0].Name, FName(TEXT("TintmillConfigurationWidget")));
}

TEST_F(FViewportMenu, ThePanelsEntryIsAWidgetWithTheEmptyLabel)
{
	ShowEditor(OnePane);
	const FToolMenuEntry Entry = GenerateSubMenu()->Sections[0].Blocks[0];
	EXPECT_EQ(Entry.Type, EMultiBlockType::Widget);
	EXPECT_TRUE(Entry.Label.Get().IdenticalTo(FText::GetEmpty()));
}

TEST_F(FViewportMenu, ThePanelsEntryIsNeitherIndentedNorSearched)
{
	ShowEditor(OnePane);
	const FToolMenuEntry Entry = GenerateSubMenu()->Sections[0].Blocks[0];
	EXPECT_TRUE(Entry.WidgetData.bNoIndent && !Entry.WidgetData.bSearchable);
}

TEST_F(FViewportMenu, ThePanelsEntryHoldsThePanel)
{
	ShowEditor(OnePane);
	const TSharedRef<SWidget> Widget = GenerateSubMenu()->Sections[0].Blocks[0].MakeWidget.Execute(FToolMenuContext());
	EXPECT_EQ(Widget->GetType(), FName(TEXT("STintmillWidget")));
}

TEST_F(FViewportMenu, NoPanelIsMadeBeforeThePersonPointsAtTheRow)
{
	ShowEditor(OnePane);
	int32 Made = 0;
	OnPanelMade([&Made] { ++Made; });
	OpenViewMenu();
	User->Wait(1.0f);
	EXPECT_EQ(Made, 0);
}

TEST_F(FViewportMenu, AnOpeningMakesOnePanel)
{
	ShowEditor(OnePane);
	int32 Made = 0;
	OnPanelMade([&Made] { ++Made; });
	OpenPanel();
	User->Wait(1.0f);
	User->ClickCheck(TEXT("Enable Display"));
	EXPECT_EQ(Made, 1);
}

TEST_F(FViewportMenu, EveryOpeningMakesAPanel)
{
	ShowEditor(OnePane);
	int32 Made = 0;
	OnPanelMade([&Made] { ++Made; });
	OpenPanel();
	CloseMenus();
	OpenPanel();
	EXPECT_EQ(Made, 2);
}

TEST_F(FViewportMenu, ThePanelOfASecondOpeningIsAnother)
{
	ShowEditor(OnePane);
	OpenPanel();
	const TSharedPtr<SWidget> First = GetPanel();
	CloseMenus();
	OpenPanel();
	EXPECT_NE(GetPanel(), First);
}

TEST_F(FViewportMenu, ASecondOpeningShowsNoMoreRows)
{
	ShowEditor(OnePane);
	OpenPanel();
	CloseMenus();
	OpenPanel();
	EXPECT_EQ(ToStd(User->GetLabels(1)), "Enable Display|Select a TML Asset");
}

TEST_F(FViewportMenu, NothingOfThePanelOutlivesTheMenuAndItsGarbage)
{
	ShowEditor(OnePane);
	OpenPanel();
	const TWeakPtr<SWidget> Panel = GetPanel();
	CloseMenus();
	User->Wait(0.1f);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_FALSE(Panel.IsValid());
}

// Whose record it shows.

TEST_F(FViewportMenu, ShowsTheRecordOfTheActiveViewport)
{
	WriteLook("Teal");
	ShowEditor(OnePane);
	SetRecord(0, true, 0.5f, LoadLook("Teal"));
	OpenPanel();
	EXPECT_EQ(ToStd(User->GetLabels(1)), "Enable Display|Teal");
	EXPECT_EQ(GetCheck(), ECheckBoxState::Checked);
}

TEST_F(FViewportMenu, OpenedFromAnotherPanesToolbarItStillShowsTheActiveViewport)
{
	ShowEditor();
	SetRecord(2, true, 1.0f, nullptr);
	Activate(2);
	OpenPanel(1);
	EXPECT_EQ(GetCheck(), ECheckBoxState::Checked);
}

TEST_F(FViewportMenu, OpenedFromAnotherPanesToolbarItStillChangesTheActiveViewport)
{
	ShowEditor();
	Activate(2);
	OpenPanel(1);
	User->ClickCheck(TEXT("Enable Display"));
	EXPECT_TRUE(IsOn(2) && !IsOn(1));
}

TEST_F(FViewportMenu, ClickingAPanesPictureMakesTheMenuSpeakOfIt)
{
	ShowEditor();
	SetRecord(3, true, 1.0f, nullptr);
	User->ClickAt(GetPane(3)->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f)));
	OpenPanel(0);
	EXPECT_EQ(GetCheck(), ECheckBoxState::Checked);
}

TEST_F(FViewportMenu, ShowsWhatTheRecordHoldsAtTheOpening)
{
	ShowEditor(OnePane);
	OpenViewMenu();
	SetRecord(0, true, 1.0f, nullptr);
	User->Hover(TEXT("Tintmill"));
	EXPECT_EQ(GetCheck(), ECheckBoxState::Checked);
}

TEST_F(FViewportMenu, AnOpenPanelDoesNotFollowTheRecord)
{
	ShowEditor(OnePane);
	OpenPanel();
	SetRecord(0, true, 1.0f, nullptr);
	User->Wait(0.1f);
	EXPECT_EQ(GetCheck(), ECheckBoxState::Unchecked);
}

TEST_F(FViewportMenu, AnOpeningShowsWhatTheOneBeforeChanged)
{
	ShowEditor(OnePane);
	OpenPanel();
	User->Click(TEXT("Enable Display"));
	OpenPanel();
	EXPECT_EQ(GetCheck(), ECheckBoxState::Checked);
}

TEST_F(FViewportMenu, AViewportWithoutARecordGetsTheDefaultOne)
{
	ShowEditor(OnePane);
	GetDisplayManager().RemoveDisplayConfiguration(GetClient(0));
	OpenPanel();
	const FTintmillDisplayConfiguration* const Record = FindRecord(0);
	ASSERT_NE(Record, nullptr);
	EXPECT_TRUE(!Record->bEnableDisplay && Record->Intensity == 1.0f && !Record->LookAsset);
}

TEST_F(FViewportMenu, AViewportHasItsRecordBeforeThePanelIsMade)
{
	ShowEditor(OnePane);
	GetDisplayManager().RemoveDisplayConfiguration(GetClient(0));
	bool bHasRecord = false;
	OnPanelMade([&bHasRecord] { bHasRecord = FindRecord(0) != nullptr; });
	OpenPanel();
	EXPECT_TRUE(bHasRecord);
}

TEST_F(FViewportMenu, TheViewMenuAloneMakesNoRecord)
{
	ShowEditor(OnePane);
	GetDisplayManager().RemoveDisplayConfiguration(GetClient(0));
	OpenViewMenu();
	EXPECT_EQ(FindRecord(0), nullptr);
}

TEST_F(FViewportMenu, AnOpeningHasTheViewportTracked)
{
	ShowEditor(OnePane);
	OpenPanel();
	User->Click(TEXT("Enable Display"));
	StandIn::CloseLevelEditor();
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair("OnePane.Viewport 1.Viewport0", true, "1.000000", "")});
}

TEST_F(FViewportMenu, AViewportWhosePanelWasNeverOpenedIsNotTrackedByTheViewMenu)
{
	ShowEditor(OnePane);
	OpenViewMenu();
	CloseMenus();
	StandIn::CloseLevelEditor();
	EXPECT_TRUE(ReadSettings().empty());
}

// Where a change goes.

TEST_F(FViewportMenu, AChangeReachesTheRecordAtOnce)
{
	ShowEditor(OnePane);
	OpenPanel();
	User->ClickCheck(TEXT("Enable Display"));
	EXPECT_TRUE(IsOn(0));
}

TEST_F(FViewportMenu, AChangeCarriesTheWholeRecord)
{
	WriteLook("Teal");
	WriteLook("Amber");
	ShowEditor(OnePane);
	SetRecord(0, false, 0.25f, LoadLook("Teal"));
	OpenPanel();
	SetRecord(0, false, 0.75f, LoadLook("Amber"));
	User->ClickCheck(TEXT("Enable Display"));
	EXPECT_EQ(LookName(FindRecord(0)), "Teal");
	EXPECT_TRUE(FindRecord(0)->bEnableDisplay && FindRecord(0)->Intensity == 1.0f);
}

TEST_F(FViewportMenu, AChangeGoesToTheViewportThatIsActiveWhenItHappens)
{
	ShowEditor();
	Activate(1);
	OpenPanel(0);
	Activate(3);
	User->ClickCheck(TEXT("Enable Display"));
	EXPECT_TRUE(IsOn(3) && !IsOn(1) && !IsOn(0));
}

TEST_F(FViewportMenu, AChangeMakesTheRecordOfAViewportThatHasNone)
{
	ShowEditor(OnePane);
	OpenPanel();
	GetDisplayManager().RemoveDisplayConfiguration(GetClient(0));
	User->ClickCheck(TEXT("Enable Display"));
	EXPECT_TRUE(IsOn(0));
}

TEST_F(FViewportMenu, AChangeIsNotSavedByItself)
{
	WriteSettings({MakePair("OnePane.Viewport 1.Viewport0", false, "0.500000", "")});
	ShowEditor(OnePane);
	OpenPanel();
	User->Click(TEXT("Enable Display"));
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair("OnePane.Viewport 1.Viewport0", false, "0.500000", "")});
}

TEST_F(FViewportMenu, AChangeIsSavedWhenThePaneGoes)
{
	WriteSettings({MakePair("OnePane.Viewport 1.Viewport0", false, "0.500000", "")});
	ShowEditor(OnePane);
	OpenPanel();
	User->Click(TEXT("Enable Display"));
	StandIn::CloseLevelEditor();
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair("OnePane.Viewport 1.Viewport0", true, "1.000000", "")});
}

TEST_F(FViewportMenu, AChangeShowsOnTheNextDraw)
{
	StandIn::SetScenePainter([](FViewportClient&, const FIntPoint& Size, FColor* Pixels) {
		std::fill(Pixels, Pixels + Size.X * Size.Y, FColor(200, 100, 50, 255));
	});
	WriteLook("Half");
	ShowEditor(OnePane);
	SetRecord(0, false, 1.0f, LoadLook("Half"));
	const int Before = DrawRed(0);
	OpenPanel();
	User->ClickCheck(TEXT("Enable Display"));
	const int After = DrawRed(0);
	StandIn::SetScenePainter(StandIn::FScenePainter());
	EXPECT_EQ(Before, 200);
	EXPECT_NEAR(After, 100, 1);
}

// The end.

TEST_F(FViewportMenu, ShutDownTakesTheRowOutOfEveryPanesToolbar)
{
	ShowEditor();
	UnloadLive();
	int32 Found = 0;
	for (int32 Number = 0; Number < 4; ++Number)
	{
		OpenViewMenu(Number);
		Found += User->GetLabels().EndsWith(TEXT("|Game Settings")) ? 1 : 0;
		CloseMenus();
	}
	EXPECT_EQ(Found, 4);
}

TEST_F(FViewportMenu, ShutDownLeavesThePanelsMenuRegistered)
{
	ShowEditor(OnePane);
	OpenPanel();
	CloseMenus();
	UnloadLive();
	EXPECT_TRUE(UToolMenus::Get()->IsMenuRegistered(PanelMenu));
}

TEST_F(FViewportMenu, LoadedAgainTheModuleTakesThePanelsOldMenu)
{
	ShowEditor(OnePane);
	OpenPanel();
	CloseMenus();
	UnloadLive();
	FModuleManager::Get().LoadModule(TEXT("TintmillEditor"));
	OpenPanel();
	EXPECT_EQ(ToStd(User->GetLabels(1)), "Enable Display|Select a TML Asset");
}
}
